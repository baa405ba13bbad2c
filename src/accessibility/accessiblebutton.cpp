// SPDX-License-Identifier: MIT
#include "accessibility/accessiblebutton_p.h"

#include "buttons/buttonstate_p.h"

AccessibleButton::AccessibleButton(QWidget *button)
    : AccessibleClickable(button)
{ }

QString AccessibleButton::ownName() const
{
    return property("content").toString();
}

QAccessible::State AccessibleButton::ownState() const
{
    QAccessible::State state;
    state.checkable = property("isCheckable").toBool();
    state.checked = property("isChecked").toBool();
    state.pressed = property("state").toString() == ButtonState::pressed();
    return state;
}

void AccessibleButton::click()
{
    clickWithTheMouse();
}
