// SPDX-License-Identifier: MIT
#include "accessibility/accessibleflexwidget_p.h"

AccessibleFlexWidget::AccessibleFlexWidget(QWidget *panel)
    : AccessibleWidget(panel, QAccessible::Pane)
{ }

QAccessible::Role AccessibleFlexWidget::role() const
{
    return isValid() && widget()->isWindow() ? QAccessible::Window : AccessibleWidget::role();
}

QString AccessibleFlexWidget::ownName() const
{
    // Qt gives a title only to windows, and leaves the mark of a modified one in it
    return widget()->isWindow() ? QString() : widget()->windowTitle();
}

QAccessible::State AccessibleFlexWidget::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    const bool isFree = isValid() && !widget()->isMaximized();
    state.movable = isFree;
    state.sizeable = isFree;
    return state;
}
