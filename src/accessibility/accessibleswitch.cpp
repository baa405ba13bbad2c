// SPDX-License-Identifier: MIT
#include "accessibility/accessibleswitch_p.h"

#include <OlvWidgets/value.h>

#include "value/switchflip_p.h"
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
    if (auto *toggle = qobject_cast<OlvSwitch *>(object())) {
        flipUnlessSliding(*toggle);
    }
}
