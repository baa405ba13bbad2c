// SPDX-License-Identifier: MIT
#include "accessibility/accessibleglyphbutton_p.h"

#include <OlvWidgets/input.h>

#include <QAbstractButton>

#include <algorithm>

namespace {

/** Whether a text means something to whom it is read out: icon fonts use the private characters. */
bool isReadable(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar character) {
        return character.category() != QChar::Other_PrivateUse;
    });
}

} // namespace

AccessibleGlyphButton::AccessibleGlyphButton(QWidget *button)
    : AccessibleClickable(button)
{ }

QAccessible::State AccessibleGlyphButton::state() const
{
    QAccessible::State state = AccessibleClickable::state();
    if (const auto *button = qobject_cast<QAbstractButton *>(object())) {
        state.checkable = button->isCheckable();
        state.checked = button->isChecked();
        state.pressed = button->isDown();
    }
    return state;
}

QString AccessibleGlyphButton::ownName() const
{
    const auto *button = qobject_cast<QAbstractButton *>(object());
    if (!button || !button->toolTip().isEmpty()) {
        return button ? button->toolTip() : QString();
    }
    if (qobject_cast<OlvLineEdit *>(button->parentWidget())) {
        return QStringLiteral("显示密码");
    }
    return isReadable(button->text()) ? button->text() : QString();
}

void AccessibleGlyphButton::click()
{
    if (auto *button = qobject_cast<QAbstractButton *>(object())) {
        button->click();
    }
}
