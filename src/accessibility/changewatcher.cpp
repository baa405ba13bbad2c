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
    switch (event->type()) {
    case QEvent::DynamicPropertyChange:
    case QEvent::ToolTipChange:
    case QEvent::WindowTitleChange:
        m_accessible->tellChanges();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
