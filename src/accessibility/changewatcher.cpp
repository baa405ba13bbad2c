// SPDX-License-Identifier: MIT
#include "accessibility/changewatcher_p.h"

#include "accessibility/accessiblewidget_p.h"

#include <QEvent>

ChangeWatcher::ChangeWatcher(QObject *widget, AccessibleWidget *accessible)
    : m_accessible(accessible)
{
    widget->installEventFilter(this);
}

bool ChangeWatcher::eventFilter(QObject *watched, QEvent *event)
{
    const bool mayChange =
        event->type() == QEvent::DynamicPropertyChange || event->type() == QEvent::ToolTipChange;
    if (mayChange && QAccessible::isActive()) {
        m_accessible->tellChanges();
    }
    return QObject::eventFilter(watched, event);
}
