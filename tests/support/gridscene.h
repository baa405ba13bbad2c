// SPDX-License-Identifier: MIT
#pragma once

#include <OlvGridLayout>

#include <QCoreApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

inline QWidget *makeTile(QWidget *parent, int width, int height = 20)
{
    auto *tile = new QWidget(parent);
    tile->resize(width, height);
    return tile;
}

inline QLabel *labelOf(const OlvGridLayout &grid)
{
    return grid.findChild<QLabel *>();
}

inline QScrollBar *barOf(const OlvGridLayout &grid)
{
    return reinterpret_cast<QScrollBar *>(grid.property("ScrollBar").toULongLong());
}

/** A grid in a viewport, which is a child of a window, or in the window itself. */
struct GridScene
{
    explicit GridScene(bool embedded, QSize size = { 300, 200 })
        : viewport(embedded ? new QWidget(&window) : &window)
    {
        viewport->resize(size);
        grid = new OlvGridLayout(viewport);
        grid->resize(size.width(), grid->height());
    }
    QWidget window;
    QWidget *viewport;
    OlvGridLayout *grid;
};

inline void wheel(OlvGridLayout &grid, QPoint angle)
{
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&grid, &event);
}

inline QTimer *timerOf(const OlvGridLayout &grid)
{
    return reinterpret_cast<QTimer *>(grid.property("ResizeTimer").toULongLong());
}
