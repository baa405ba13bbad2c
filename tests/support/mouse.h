// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>

/** Mouse events at a place in a widget, sent without a pointer. */
namespace Mouse {

inline void send(QObject *receiver, QEvent::Type type, const QPointF &place,
                 Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(type, place, QCursor::pos(), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &event);
}

inline void press(QObject *receiver, const QPointF &place, Qt::MouseButton button = Qt::LeftButton)
{
    send(receiver, QEvent::MouseButtonPress, place, button);
}

inline void move(QObject *receiver, const QPointF &place)
{
    send(receiver, QEvent::MouseMove, place);
}

inline void release(QObject *receiver, const QPointF &place = {},
                    Qt::MouseButton button = Qt::LeftButton)
{
    send(receiver, QEvent::MouseButtonRelease, place, button);
}

} // namespace Mouse
