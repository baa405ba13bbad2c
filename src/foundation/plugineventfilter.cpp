// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <QHash>

class OlvPluginEventFilter::Private
{
public:
    QHash<QEvent::Type, std::function<void(QEvent *)>> listeners;
};

OlvPluginEventFilter::OlvPluginEventFilter(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    addObject(parent);
}

OlvPluginEventFilter::~OlvPluginEventFilter()
{
    // Destroying what listeners hold may send events to this filter, which still watches, and may
    // add listeners: each round leaves a valid, empty table.
    while (!d->listeners.isEmpty()) {
        decltype(d->listeners) going;
        d->listeners.swap(going);
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
    // the previous listener is destroyed with the argument, after the table has changed, because
    // its destruction may call this function again
    d->listeners[type].swap(listener);
}

bool OlvPluginEventFilter::eventFilter(QObject *watched, QEvent *event)
{
    const auto found = d->listeners.constFind(event->type());
    if (found == d->listeners.cend() || !*found) {
        return QObject::eventFilter(watched, event);
    }
    // a copy: the listener may replace itself in the table, and destroy the filter
    const std::function<void(QEvent *)> listener = *found;
    listener(event);
    return true;
}
