// SPDX-License-Identifier: MIT
#pragma once

class QMouseEvent;
class QWidget;

/**
 * Has the window system move @p target with the pointer until the mouse button is released, where a
 * program cannot place its windows itself: on Wayland. @p move is the mouse move that asks for it.
 *
 * Returns whether the window system has taken over. The target and everything that listens to it
 * have then been told that the button is released, and may have deleted it. False for widgets in a
 * window, for windows on other platforms, and with a Qt before 5.15.
 */
bool startSystemMove(const QWidget *target, const QMouseEvent *move);
