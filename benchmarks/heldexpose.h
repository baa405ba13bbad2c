// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <QObject>
#include <QRegion>

#include <functional>
#include <memory>

class QWidget;

/**
 * Holds back the expose event of a window that was just shown, so that the wait for the window
 * system is not timed but the paint after it is.
 */
class HeldExpose : public QObject
{
public:
    /** For @p window, shown already, and @p probe, the widget in it that is painted last. */
    HeldExpose(QWidget &window, QWidget &probe);

    /** Handles events until the window is exposed. False if that has already painted it. */
    bool waitFor();
    /** Delivers the expose event to the window. False if that does not paint it. */
    bool handOver();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_window;
    QRegion m_region;
    bool m_painted = false;
};

/**
 * Times making a window and its first paint, which the expose event causes, but not the wait for
 * the window system. The last child of the window is painted last.
 */
void measureFirstPaint(benchmark::State &state,
                       const std::function<std::unique_ptr<QWidget>()> &makeWindow);
