// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>

#include <functional>
#include <utility>

/** Does something, once, when an event of a type comes to an object, before the object receives it.
 */
class OnEvent : public QObject
{
public:
    OnEvent(QObject *object, QEvent::Type type, std::function<void()> action)
        : m_type(type)
        , m_action(std::move(action))
    {
        object->installEventFilter(this); // clazy:exclude=install-event-filter
    }

    bool happened() const
    {
        return !m_action;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == m_type && m_action) {
            const auto action = std::exchange(m_action, nullptr);
            action();
            return false;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_action;
};
