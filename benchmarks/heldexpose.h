// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRegion>

class QWidget;

/**
 * Keeps the expose event of a window that was just shown back, so that waiting for the window
 * system can be left out of what is timed while the paint that follows is not.
 */
class HeldExpose : public QObject
{
public:
    /** For @p window, shown already, and @p probe, the widget in it that is painted last. */
    HeldExpose(QWidget &window, QWidget &probe);

    /** Lets events be handled until the window is exposed. False where that painted already. */
    bool waitFor();
    /** Hands the expose event over to the window. False where that does not paint. */
    bool handOver();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_window;
    QRegion m_region;
    bool m_painted = false;
};
