// SPDX-License-Identifier: MIT
#include "forms/editorvalue_p.h"

#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include "support/qtversion_p.h"
#include "value/slidermetrics_p.h"

#include <QKeySequence>
#include <QLineEdit>
#include <QPointer>
#include <QValidator>
#include <QtMath>

namespace {

/** Whether a text says yes or no: QVariant takes every other one for yes, too. */
bool isTruth(const QString &text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber || text == QLatin1String("true") || text == QLatin1String("false");
}

int toPercent(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && !qIsNaN(number) ? qRound(SliderMetrics::inRange(number))
                                       : SliderMetrics::noProgress;
}

QKeySequence sequenceOf(const QString &text)
{
    return QKeySequence::fromString(text, QKeySequence::NativeText);
}

/** The shortcut that a text names; null where it names none, or more than one combination. */
OlvShortcut *shortcutOf(const QString &text)
{
    const QKeySequence sequence = sequenceOf(text);
    if (sequence.count() != 1) {
        return nullptr;
    }
    const int keys = QtVersion::combined(sequence[0]);
    if (keys == Qt::Key_unknown) {
        return nullptr;
    }
    const auto has = [&](Qt::KeyboardModifier modifier) {
        return (keys & int(modifier)) != 0;
    };
    return new OlvShortcut(Qt::Key(keys & ~int(Qt::KeyboardModifierMask)), has(Qt::ControlModifier),
                           has(Qt::ShiftModifier), has(Qt::AltModifier), has(Qt::MetaModifier));
}

void show(OlvShortcutEdit *editor, const QVariant &value)
{
    const QString text = value.toString();
    const OlvShortcut *held = editor->shortcut();
    if (held && editor->getValue().toString() == text) {
        return;
    }
    const QPointer<OlvShortcutEdit> guarded(editor);
    editor->clear();
    if (!guarded) {
        return;
    }
    if (OlvShortcut *shortcut = shortcutOf(text)) {
        editor->setShortcut(shortcut);
    }
    if (guarded) {
        editor->update();
    }
}

void show(OlvLineEdit *editor, const QVariant &value)
{
    const QString text = value.toString();
    if (editor->getText() != text) { // setting it again would move the cursor
        editor->setText(text);
    }
}

} // namespace

bool EditorValue::toBool(const QVariant &value)
{
    const bool isText =
        value.userType() == QMetaType::QString || value.userType() == QMetaType::QByteArray;
    return (!isText || isTruth(value.toString())) && value.toBool();
}

QVariant EditorValue::chosenValue(OlvWidget *editor)
{
    if (const auto *toggle = qobject_cast<OlvSwitch *>(editor)) {
        return toggle->isChecked();
    }
    if (auto *shortcut = qobject_cast<OlvShortcutEdit *>(editor)) {
        return shortcut->shortcut() ? shortcut->getValue() : QVariant();
    }
    return editor->getValue();
}

void EditorValue::show(OlvWidget *editor, const QVariant &value)
{
    if (auto *toggle = qobject_cast<OlvSwitch *>(editor)) {
        toggle->setChecked(toBool(value));
    } else if (auto *slider = qobject_cast<OlvSlider *>(editor)) {
        slider->setSliderPosition(toPercent(value));
    } else if (auto *shortcut = qobject_cast<OlvShortcutEdit *>(editor)) {
        ::show(shortcut, value);
    } else if (auto *line = qobject_cast<OlvLineEdit *>(editor)) {
        ::show(line, value);
    } else {
        editor->setValue(value.isNull() ? QVariant() : value);
    }
}

bool EditorValue::fixUp(OlvWidget *editor)
{
    const auto *line = qobject_cast<OlvLineEdit *>(editor);
    const QPointer<QLineEdit> text(line ? line->lineEdit() : nullptr);
    if (!text || text->hasAcceptableInput()) {
        return true;
    }
    if (const QValidator *validator = text->validator()) {
        QString corrected = text->text();
        validator->fixup(corrected);
        if (text) {
            text->setText(corrected);
        }
    }
    return text && text->hasAcceptableInput();
}

bool EditorValue::isOtherSpelling(const OlvWidget *editor, const QVariant &value,
                                  const QVariant &stored)
{
    if (!qobject_cast<const OlvShortcutEdit *>(editor)) {
        return false;
    }
    const QKeySequence sequence = sequenceOf(value.toString());
    return sequence.count() == 1 && sequence == sequenceOf(stored.toString());
}

QVariant EditorValue::converted(const QVariant &value, const QVariant &replaced)
{
    // A text that is neither yes nor no equals true to QVariant, and so to QSqlTableModel, which
    // would leave it; a number in its place is written.
    const bool isOtherText = replaced.userType() == QMetaType::QString
        && value.userType() != QMetaType::QString && !isTruth(replaced.toString());
    if (isOtherText) {
        return value.userType() == QMetaType::Bool ? QVariant(value.toInt()) : value;
    }
    QVariant result = value;
    const bool isConverted = !replaced.isNull()
        && QtVersion::canConvert(result, replaced.userType())
        && QtVersion::convert(&result, replaced.userType());
    return isConverted ? result : value;
}
