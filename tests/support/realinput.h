// SPDX-License-Identifier: MIT
#pragma once

#include "patience.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QtGlobal>

#include <memory>

class QWidget;

/**
 * The pointer and the keyboard of the X server, driven through its XTEST extension, so that events
 * take the way that a person's would. Every call returns once the server has taken it; what it
 * makes of it reaches the program through the event loop (QTRY_COMPARE, QTRY_VERIFY).
 *
 * Under scripts/with-wayland it is the X server that the compositor draws on and takes its input
 * from.
 */
class RealInput
{
public:
    enum Button { Left = 1, Middle = 2, Right = 3, WheelUp = 4, WheelDown = 5 };

    RealInput();
    ~RealInput();

    /** Whether there is an X server that has the extension. */
    bool isValid() const;

    /** Moves the pointer to a place on the screen. */
    void moveTo(QPoint place);
    /** Moves the pointer to a place in a widget. */
    void moveTo(const QWidget &widget, QPoint place);
    void press(Button button = Left);
    void release(Button button = Left);
    void click(Button button = Left);
    /** Presses, or lets go of, the key that carries an X key symbol (XK_a, XK_Control_L). */
    void pressKey(quint32 symbol);
    void releaseKey(quint32 symbol);

    /** Where the server has a window, in coordinates of the screen. */
    QRect geometryOf(quintptr window) const;
    /** What the screen shows. */
    QImage screen() const;

private:
    Q_DISABLE_COPY(RealInput)

    struct Server;
    std::unique_ptr<Server> m_server;

    void send(quint8 type, quint8 detail, QPoint place = QPoint());
    quint8 keycodeOf(quint32 symbol) const;
};
