// SPDX-License-Identifier: MIT
#include "heldexpose.h"
#include "support.h"

#include <QCoreApplication>
#include <QExposeEvent>
#include <QPaintEvent>
#include <QWidget>
#include <QWindow>

HeldExpose::HeldExpose(QWidget &window, QWidget &probe)
    : m_window(window)
{
    window.windowHandle()->installEventFilter(this);
    probe.installEventFilter(this);
}

bool HeldExpose::waitFor()
{
    while (m_region.isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    m_window.windowHandle()->removeEventFilter(this);
    return !m_painted;
}

bool HeldExpose::handOver()
{
    QExposeEvent event(m_region);
    QCoreApplication::sendEvent(m_window.windowHandle(), &event);
    return m_painted;
}

bool HeldExpose::eventFilter(QObject *watched, QEvent *event)
{
    const bool isExpose = event->type() == QEvent::Expose;
    const bool isPaint = event->type() == QEvent::Paint;
    if (watched == m_window.windowHandle() && (isExpose || isPaint)) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        // a paint event of the window follows, which has the region
        if (isPaint) {
            m_region += static_cast<QPaintEvent *>(event)->region();
        }
#else
        m_region += static_cast<QExposeEvent *>(event)->region();
#endif
        return true;
    }
    m_painted = m_painted || isPaint;
    return QObject::eventFilter(watched, event);
}

void measureFirstPaint(benchmark::State &state,
                       const std::function<std::unique_ptr<QWidget>()> &makeWindow)
{
    settle();
    while (state.KeepRunning()) {
        auto window = makeWindow();
        window->show();
        state.PauseTiming();
        HeldExpose expose(*window, *static_cast<QWidget *>(window->children().last()));
        const bool waited = expose.waitFor();
        state.ResumeTiming();
        const bool painted = expose.handOver();
        state.PauseTiming();
        if (!waited || !painted) {
            state.SkipWithError("the first paint did not come with the expose");
            return;
        }
        window.reset();
        settle();
        state.ResumeTiming();
    }
}
