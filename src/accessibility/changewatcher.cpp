// SPDX-License-Identifier: MIT
#include "accessibility/changewatcher_p.h"

#include "accessibility/accessiblewidget_p.h"

#include <QEvent>
#include <QPointer>

ChangeWatcher::ChangeWatcher(QObject *widget, AccessibleWidget *accessible)
    : m_accessible(accessible)
{
    widget->installEventFilter(this);
}

bool ChangeWatcher::eventFilter(QObject *watched, QEvent *event)
{
    const QPointer<QObject> widget(watched);
    const bool consumed = QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::DynamicPropertyChange:
    case QEvent::ToolTipChange:
    case QEvent::WindowTitleChange:
    case QEvent::ModifiedChange: // of the window's title
    case QEvent::LanguageChange:
    case QEvent::ParentChange:       // a box with a title, for example
    case QEvent::Show:               // a label may have been added meanwhile
        m_accessible->tellChanges(); // may delete this watcher
        break;
    default:
        break;
    }
    return consumed || !widget; // Qt must not deliver the event to a deleted widget
}
