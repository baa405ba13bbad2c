// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

OlvPluginEventFilter::OlvPluginEventFilter(QObject *parent)
    : QObject(parent)
{
    addObject(parent);
}

OlvPluginEventFilter::~OlvPluginEventFilter()
{
    // What listeners hold may send events when it goes, and add further listeners. Until then the
    // filter watches: it must have a table to look into, an empty one.
    while (!m_listeners.isEmpty()) {
        decltype(m_listeners) going;
        m_listeners.swap(going);
    }
}

void OlvPluginEventFilter::addObject(QObject *object)
{
    if (object) {
        object->installEventFilter(this);
    }
}

void OlvPluginEventFilter::addEventListener(QEvent::Type type,
                                            std::function<void(QEvent *)> listener)
{
    // the one before goes with the argument, once the table is in order: what it holds may come
    // back
    m_listeners[type].swap(listener);
}

bool OlvPluginEventFilter::eventFilter(QObject *watched, QEvent *event)
{
    const auto found = m_listeners.constFind(event->type());
    if (found == m_listeners.cend() || !*found) {
        return QObject::eventFilter(watched, event);
    }
    // a copy: the listener may replace itself in the table, and destroy the filter
    const std::function<void(QEvent *)> listener = *found;
    listener(event);
    return true;
}
