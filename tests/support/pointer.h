// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QString>
#include <QStringList>
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

/** Sends the events that are named: "enter press leave release". */
inline void play(QWidget &widget, const QString &events)
{
    const QStringList names = events.split(QLatin1Char(' '));
    for (const QString &name : names) {
        if (name == QLatin1String("enter")) {
            enter(widget);
        } else if (name == QLatin1String("leave")) {
            leave(widget);
        } else if (name == QLatin1String("press")) {
            press(widget);
        } else {
            QCOMPARE(name, QStringLiteral("release"));
            release(widget);
        }
    }
}

} // namespace Pointer
