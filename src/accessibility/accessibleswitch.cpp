// SPDX-License-Identifier: MIT
#include "accessibility/accessibleswitch_p.h"

#include <OlvWidgets/value.h>

#include "value/valueproperties_p.h"

AccessibleSwitch::AccessibleSwitch(QWidget *widget)
    : AccessibleClickable(widget)
{ }

QAccessible::State AccessibleSwitch::ownState() const
{
    QAccessible::State state;
    state.checkable = true;
    state.checked = property(ValueProperties::switchIsOn).toBool();
    return state;
}

void AccessibleSwitch::click()
{
    auto *widget = qobject_cast<OlvSwitch *>(object());
    // A click within the animation, before its first step too, would start a second timer, which
    // has the switch flip back and forth.
    const bool on = property(ValueProperties::switchIsOn).toBool();
    if (widget && widget->isChecked() == on) {
        widget->setValue(!on);
    }
}
