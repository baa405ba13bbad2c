// SPDX-License-Identifier: MIT
#pragma once

#include <OlvSwitch>

#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>

inline SwitchRound *knobOf(const OlvSwitch &toggle)
{
    return reinterpret_cast<SwitchRound *>(toggle.property("round").toULongLong());
}

/** Resizes a widget that is not shown, and has it hear of that at once. */
inline void resizeAndTell(QWidget &widget, QSize size)
{
    widget.resize(size);
    QResizeEvent event(size, size);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void tick(QObject &receiver)
{
    QTimerEvent event(1);
    QCoreApplication::sendEvent(&receiver, &event);
}

inline void releaseMouse(QWidget &widget, Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseButtonRelease, QPointF(1, 1), QCursor::pos(), button,
                      Qt::NoButton, {});
    QCoreApplication::sendEvent(&widget, &event);
}

/** Runs a whole animation in five timer events, without waiting. */
inline void runAnimation(OlvSwitch &toggle)
{
    for (int i = 0; i < 5; ++i) {
        tick(toggle);
    }
}

/** A switch 100 by 20 pixels large, so that a step is 16. */
class SizedSwitch : public OlvSwitch
{
public:
    explicit SizedSwitch(QSize size = { 100, 20 })
    {
        resizeAndTell(*this, size);
    }
};
