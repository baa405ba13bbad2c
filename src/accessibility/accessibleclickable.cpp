// SPDX-License-Identifier: MIT
#include "accessibility/accessibleclickable_p.h"

#include "buttons/mouseclick_p.h"

AccessibleClickable::AccessibleClickable(QWidget *widget)
    : AccessibleWidget(widget, QAccessible::Button)
{ }

QAccessible::Role AccessibleClickable::role() const
{
    return state().checkable ? QAccessible::CheckBox : AccessibleWidget::role();
}

QStringList AccessibleClickable::actionNames() const
{
    QStringList names;
    if (isValid() && widget()->isEnabled()) {
        if (state().checkable) {
            names << toggleAction();
        }
        names << pressAction();
    }
    return names + AccessibleWidget::actionNames();
}

void AccessibleClickable::doAction(const QString &name)
{
    if (name != pressAction() && name != toggleAction()) {
        AccessibleWidget::doAction(name);
    } else if (actionNames().contains(name)) {
        click();
    }
}

void AccessibleClickable::clickWithTheMouse()
{
    const QPointer<QWidget> button(widget());
    const bool hasComeIn = MouseClick::press(button);
    MouseClick::release(button, hasComeIn);
}
