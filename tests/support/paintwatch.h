// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPointer>
#include <QRegion>
#include <QTest>
#include <QVector>
#include <QWidget>

#include <utility>

/**
 * Tells what a shown widget has been asked to repaint.
 *
 * Qt collects the calls of update() until the event loop runs; take() has them answered at once, so
 * that a test can tell apart what each step of it asks for, without waiting.
 */
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget &widget)
        : m_widget(&widget)
    {
        widget.installEventFilter(this); // clazy:exclude=install-event-filter
    }

    /** Shows the widget's window, and waits until it has been painted. */
    bool showWindow()
    {
        m_widget->window()->show();
        return QTest::qWaitForWindowExposed(m_widget->window())
            && QTest::qWaitFor([this] { return !take().isEmpty(); })
            && QTest::qWaitFor([this] { return take().isEmpty(); });
    }

    /** The areas that have been repainted since the last call, one for each paint event. */
    QVector<QRegion> take()
    {
        if (m_widget) {
            QCoreApplication::sendPostedEvents(m_widget->window(), QEvent::UpdateRequest);
        }
        return std::exchange(m_painted, {});
    }

    /** How often the widget has been repainted as a whole since the last call. */
    int takeWhole()
    {
        const QVector<QRegion> painted = take();
        return m_widget ? int(painted.count(QRegion(m_widget->rect()))) : 0;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            m_painted.append(static_cast<QPaintEvent *>(event)->region());
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QPointer<QWidget> m_widget;
    QVector<QRegion> m_painted;
};
