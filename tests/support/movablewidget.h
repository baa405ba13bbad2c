// SPDX-License-Identifier: MIT
#pragma once

#include <OlvMoveWidget>

#include <QWidget>

/** A widget in a window that is moved by all of its area. */
struct MovableWidget
{
    explicit MovableWidget(const QRect &place = { 20, 30, 100, 100 })
        : target(new QWidget(&window))
        , mover(target)
    {
        target->setGeometry(place);
        mover.setMoveArea(QRect());
    }

    QWidget window;
    QWidget *target;
    OlvMoveWidget mover;
};
