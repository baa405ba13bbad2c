// SPDX-License-Identifier: MIT
#include <OlvWidgets/forms.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include "value/valueproperties_p.h"

#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QHash>
#include <QKeySequence>
#include <QLineEdit>
#include <QPointer>
#include <QtMath>

#include <utility>

namespace {

constexpr int fullProgress = 100;

/** Whether a text says yes or no: QVariant takes every other one for yes, too. */
bool isTruth(const QString &text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber || text == QLatin1String("true") || text == QLatin1String("false");
}

bool toBool(const QVariant &value)
{
    const bool isText =
        value.userType() == QMetaType::QString || value.userType() == QMetaType::QByteArray;
    return (!isText || isTruth(value.toString())) && value.toBool();
}

int toPercent(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && !qIsNaN(number) ? qRound(qBound(0.0, number, double(fullProgress))) : 0;
}

/** The shortcut that a text names; null where it names none, or more than one combination. */
OlvShortcut *shortcutOf(const QString &text)
{
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::NativeText);
    if (sequence.count() != 1 || sequence[0] == Qt::Key_unknown) {
        return nullptr;
    }
    const auto has = [&](Qt::KeyboardModifier modifier) {
        return (sequence[0] & modifier) != 0;
    };
    return new OlvShortcut(Qt::Key(sequence[0] & ~int(Qt::KeyboardModifierMask)),
                           has(Qt::ControlModifier), has(Qt::ShiftModifier), has(Qt::AltModifier),
                           has(Qt::MetaModifier));
}

/** What the user has chosen; invalid where there is nothing to store. */
QVariant chosenValue(OlvWidget *editor)
{
    if (const auto *toggle = qobject_cast<OlvSwitch *>(editor)) {
        return toggle->isChecked();
    }
    if (auto *shortcut = qobject_cast<OlvShortcutEdit *>(editor)) {
        return shortcut->shortcut() ? shortcut->getValue() : QVariant();
    }
    return editor->getValue();
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

/** Shows @p value at once, what is null or of another kind as off, 0 or empty. */
void show(OlvWidget *editor, const QVariant &value)
{
    if (auto *toggle = qobject_cast<OlvSwitch *>(editor)) {
        toggle->setChecked(toBool(value));
    } else if (auto *slider = qobject_cast<OlvSlider *>(editor)) {
        slider->setSliderPosition(toPercent(value));
    } else if (auto *shortcut = qobject_cast<OlvShortcutEdit *>(editor)) {
        show(shortcut, value);
    } else if (auto *line = qobject_cast<OlvLineEdit *>(editor)) {
        show(line, value);
    } else {
        editor->setValue(value.isNull() ? QVariant() : value);
    }
}

/** @p value in the type of what it replaces, so that a column keeps its type. */
QVariant converted(const QVariant &value, const QVariant &replaced)
{
    // A text that is neither yes nor no equals true to QVariant, and so to QSqlTableModel, which
    // would leave it; a number in its place is written.
    const bool isOtherText = replaced.userType() == QMetaType::QString
        && value.userType() != QMetaType::QString && !isTruth(replaced.toString());
    if (isOtherText) {
        return value.userType() == QMetaType::Bool ? QVariant(value.toInt()) : value;
    }
    QVariant result = value;
    const bool isConverted = !replaced.isNull() && result.canConvert(replaced.userType())
        && result.convert(replaced.userType());
    return isConverted ? result : value;
}

/** The properties that change with the value, or with the start of a slide towards it. */
bool isOfValue(const QByteArray &property)
{
    return property == "value" || property == ValueProperties::sliderProgress
        || property == ValueProperties::switchIsOn || property == ValueProperties::switchTimerId;
}

/** The types of events that QStyledItemDelegate may consume, or close an editor at. */
bool isHandledByQt(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::ShortcutOverride || type == QEvent::FocusOut
        || type == QEvent::Hide;
}

/** Sent to an editor to see whether a delegate is still an event filter of it. */
class FilterProbe : public QEvent
{
public:
    const QObject *const filter;
    bool isHeard = false;

    explicit FilterProbe(const QObject *wanted)
        : QEvent(probeType())
        , filter(wanted)
    { }

    static Type probeType()
    {
        static const auto type = Type(registerEventType());
        return type;
    }
};

/** A mapper that no longer maps a widget takes the delegate from it, but from no part of it. */
bool isFilterOf(const QObject *filter, QObject *widget)
{
    FilterProbe probe(filter);
    QCoreApplication::sendEvent(widget, &probe);
    return probe.isHeard;
}

} // namespace

class Q_DECL_HIDDEN OlvValueDelegate::Private
{
public:
    struct Editor
    {
        QVariant shown; ///< the value as it was when the record was shown or stored last
        QPersistentModelIndex record;
        bool isLoading = false;
        bool isDragged = false;
    };

    explicit Private(OlvValueDelegate *delegate)
        : q(delegate)
    { }

    Editor &adopt(OlvWidget *widget);
    /** The editor that @p part is, or is a part of; null for every other object. */
    OlvWidget *editorOf(QObject *part) const;
    void commit(OlvWidget *widget);

    QHash<QObject *, Editor> editors;

private:
    OlvValueDelegate *q;
    /** Ends the connections to the editors with this, since the delegate's destroyed() comes after
     * it, and a slot there may delete an editor. */
    QObject context;
};

OlvValueDelegate::Private::Editor &OlvValueDelegate::Private::adopt(OlvWidget *widget)
{
    const auto found = editors.find(widget);
    if (found != editors.end()) {
        return *found;
    }
    QObject::connect(widget, &QObject::destroyed, &context,
                     [this, widget] { editors.remove(widget); });
    QObject::connect(widget, &OlvWidget::valueChanged, &context,
                     [this, widget] { commit(widget); });
    // again, in case the mapper was told of the delegate after the widget: Qt takes it once
    widget->installEventFilter(q);
    if (const auto *line = qobject_cast<OlvLineEdit *>(widget)) {
        if (QLineEdit *text = line->lineEdit()) {
            text->installEventFilter(q);
            QObject::connect(text, &QLineEdit::editingFinished, &context,
                             [this, widget] { commit(widget); });
        }
    }
    for (QObject *child : widget->children()) {
        if (dynamic_cast<SliderRound *>(child)) {
            child->installEventFilter(q);
        }
    }
    return editors[widget];
}

OlvWidget *OlvValueDelegate::Private::editorOf(QObject *part) const
{
    QObject *editor = editors.contains(part) ? part : part->parent();
    return editors.contains(editor) ? qobject_cast<OlvWidget *>(editor) : nullptr;
}

void OlvValueDelegate::Private::commit(OlvWidget *widget)
{
    const auto editor = editors.constFind(widget);
    if (editor == editors.cend() || editor->isLoading || editor->isDragged) {
        return;
    }
    Q_EMIT q->commitData(widget);
}

OlvValueDelegate::OlvValueDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , d(std::make_unique<Private>(this))
{ }

OlvValueDelegate::~OlvValueDelegate() = default;

QWidget *OlvValueDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto *line = qobject_cast<OlvLineEdit *>(editor)) {
        line->setFocusProxy(line->lineEdit());
    } else if (qobject_cast<OlvWidget *>(editor) && editor->focusPolicy() == Qt::NoFocus) {
        editor->setFocusPolicy(Qt::StrongFocus); // a view closes its editor when the focus leaves
    }
    if (editor) {
        editor->setAutoFillBackground(true); // or the item shows through
    }
    return editor;
}

void OlvValueDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *widget = qobject_cast<OlvWidget *>(editor);
    if (!widget) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    // a slot of the widget's may destroy it, or this
    const QPointer<QObject> self(const_cast<OlvValueDelegate *>(this));
    const QPointer<OlvWidget> guarded(widget);
    Private::Editor &adopted = d->adopt(widget);
    const QVariant value = index.data(Qt::EditRole);
    const auto *toggle = qobject_cast<OlvSwitch *>(widget);
    if (toggle && adopted.record == index && toggle->isChecked() == toBool(value)) {
        adopted.shown = toggle->isChecked();
        return; // it may slide there, and is left to do so
    }
    adopted.record = index;
    const bool wasLoading = std::exchange(adopted.isLoading, true);
    show(widget, value);
    if (!self || !guarded) {
        return;
    }
    const QVariant shown = chosenValue(widget);
    Private::Editor &loaded = d->editors[widget];
    loaded.shown = shown;
    loaded.isLoading = wasLoading;
}

void OlvValueDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    auto *widget = qobject_cast<OlvWidget *>(editor);
    if (!widget) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    const QVariant value = chosenValue(widget);
    const QVariant before = d->editors.value(widget).shown;
    if (!value.isValid() || value == before) {
        return;
    }
    const QPointer<QObject> self(const_cast<OlvValueDelegate *>(this));
    const QPointer<OlvWidget> guarded(widget);
    // noted first: the model tells of the change, which shows the record again
    d->adopt(widget).shown = value;
    if (!model->setData(index, converted(value, index.data(Qt::EditRole)), Qt::EditRole) && self
        && guarded) {
        d->editors[widget].shown = before; // the next time tries again
    }
}

bool OlvValueDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == FilterProbe::probeType()) {
        auto *probe = static_cast<FilterProbe *>(event);
        probe->isHeard = probe->isHeard || probe->filter == this;
        return probe->isHeard;
    }
    const QPointer<QObject> receiver(watched);
    const auto handleAsQt = [&](QObject *widget) {
        const bool isConsumed = QStyledItemDelegate::eventFilter(widget, event);
        return isConsumed || !receiver; // what has gone must not get the event any more
    };
    OlvWidget *editor = d->editorOf(watched);
    if (!editor) {
        return handleAsQt(watched);
    }
    const bool isKnob = watched != editor && dynamic_cast<SliderRound *>(watched);
    const QPointer<QObject> self(this);
    const QPointer<OlvWidget> guarded(editor);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        d->editors[editor].isDragged = isKnob;
        break;
    case QEvent::MouseButtonRelease:
        if (isKnob) {
            d->editors[editor].isDragged = false;
            d->commit(editor);
        }
        break;
    case QEvent::Hide: // a hidden knob gets no release
        if (isKnob && std::exchange(d->editors[editor].isDragged, false)) {
            d->commit(editor);
        }
        break;
    case QEvent::DynamicPropertyChange:
        if (watched == editor
            && isOfValue(static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName())) {
            d->commit(editor);
        }
        break;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        if (qobject_cast<OlvShortcutEdit *>(editor)) {
            return false; // every key may be the user's new shortcut
        }
        break;
    default:
        break;
    }
    if (!self || !guarded || isKnob) {
        return !receiver;
    }
    const bool isServed =
        watched == editor || (isHandledByQt(event->type()) && isFilterOf(this, editor));
    return isServed && self && guarded ? handleAsQt(editor) : !receiver;
}
