// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

OlvPluginEventFilter::OlvPluginEventFilter(QObject *parent)
    : QObject(parent)
{
    addObject(parent);
}

OlvPluginEventFilter::~OlvPluginEventFilter() = default;

void OlvPluginEventFilter::addObject(QObject *object)
{
    if (object) {
        object->installEventFilter(this);
    }
}

void OlvPluginEventFilter::addEventListener(QEvent::Type type,
                                            std::function<void(QEvent *)> listener)
{
    m_listeners.insert(type, listener);
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
