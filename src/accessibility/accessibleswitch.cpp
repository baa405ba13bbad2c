// SPDX-License-Identifier: MIT
#include "accessibility/accessibleswitch_p.h"

#include <OlvWidgets/value.h>

#include <QAbstractEventDispatcher>

#include <algorithm>

AccessibleSwitch::AccessibleSwitch(QWidget *widget)
    : AccessibleClickable(widget)
{ }

/** Whether a timer of the switch runs; there may be others, of a subclass. */
bool AccessibleSwitch::isRunning(const QVariant &timer) const
{
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    const auto timers = dispatcher ? dispatcher->registeredTimers(object())
                                   : QList<QAbstractEventDispatcher::TimerInfo>();
    return std::any_of(timers.cbegin(), timers.cend(),
                       [&](const auto &running) { return running.timerId == timer.toInt(); });
}

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
    const bool isMoving = property("moveCount").toInt() != 0 || isRunning(property("timerId"));
    if (widget && !isMoving) {
        widget->setValue(!property("switch").toBool());
    }
}
