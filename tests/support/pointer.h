// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTest>
#include <QWidget>

/** The events that a pointer makes, sent one by one. */
namespace Pointer {

inline void enter(QWidget &widget)
{
    QEvent event(QEvent::Enter);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void leave(QWidget &widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void press(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(&widget, button, {}, widget.rect().center());
}

inline void release(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseRelease(&widget, button, {}, widget.rect().center());
}

/** Enters and clicks. */
inline void click(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
{
    enter(widget);
    press(widget, button);
    release(widget, button);
}

} // namespace Pointer
