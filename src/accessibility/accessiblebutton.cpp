// SPDX-License-Identifier: MIT
#include "accessibility/accessiblebutton_p.h"

#include "buttons/buttonsproperties_p.h"
#include "buttons/buttonstate_p.h"

AccessibleButton::AccessibleButton(QWidget *button)
    : AccessibleClickable(button)
{ }

QString AccessibleButton::ownName() const
{
    return property(ButtonsProperties::content).toString();
}

QAccessible::State AccessibleButton::ownState() const
{
    QAccessible::State state;
    state.checkable = property(ButtonsProperties::checkable).toBool();
    state.checked = property(ButtonsProperties::checked).toBool();
    state.pressed = property(ButtonsProperties::state).toString() == ButtonState::pressed();
    return state;
}

void AccessibleButton::click()
{
    clickWithTheMouse();
}
