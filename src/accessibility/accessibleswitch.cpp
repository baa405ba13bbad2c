// SPDX-License-Identifier: MIT
#include "accessibility/accessibleswitch_p.h"

#include <OlvWidgets/value.h>

#include <QAbstractEventDispatcher>

AccessibleSwitch::AccessibleSwitch(QWidget *widget)
    : AccessibleClickable(widget)
{ }

QAccessible::State AccessibleSwitch::ownState() const
{
    QAccessible::State state;
    state.checkable = true;
    state.checked = property("switch").toBool();
    return state;
}

void AccessibleSwitch::click()
{
    auto *widget = qobject_cast<OlvSwitch *>(object());
    // Clicks do nothing during the animation. Here that begins with its timer, not with its first
    // step: a second timer would have the switch flip back and forth.
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    if (widget && dispatcher && dispatcher->registeredTimers(widget).isEmpty()) {
        widget->setValue(!property("switch").toBool());
    }
}
