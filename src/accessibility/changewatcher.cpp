// SPDX-License-Identifier: MIT
#include "accessibility/changewatcher_p.h"

#include "accessibility/accessiblewidget_p.h"

#include <QDynamicPropertyChangeEvent>
#include <QPointer>

namespace {

/** Whether what is told of a widget may change with the event. */
bool mayChangeWidget(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::DynamicPropertyChange:
        // not those of Qt's own, which it sets in the middle of polishing a widget for a style
        // sheet: an update handler that deletes the widget there would crash Qt
        return !static_cast<const QDynamicPropertyChangeEvent &>(event).propertyName().startsWith(
            "_q_");
    case QEvent::ToolTipChange:
    case QEvent::WindowTitleChange:
    case QEvent::ModifiedChange: // of the window's title
    case QEvent::LanguageChange:
    case QEvent::ParentChange: // a box with a title, for example
    case QEvent::Show:         // a label may have been added meanwhile
        return true;
    default:
        return false;
    }
}

} // namespace

ChangeWatcher::ChangeWatcher(QObject *widget, AccessibleWidget *accessible)
    : m_accessible(accessible)
{
    widget->installEventFilter(this);
}

bool ChangeWatcher::eventFilter(QObject *watched, QEvent *event)
{
    const QPointer<QObject> widget(watched);
    const bool consumed = QObject::eventFilter(watched, event);
    if (mayChangeWidget(*event)) {
        m_accessible->tellChanges(); // may delete this watcher
    }
    return consumed || !widget; // Qt must not deliver the event to a deleted widget
}
