// SPDX-License-Identifier: MIT
#include "heldexpose.h"
#include "support.h"

#include <QCoreApplication>
#include <QExposeEvent>
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
    if (event->type() == QEvent::Expose) {
        m_region += static_cast<QExposeEvent *>(event)->region();
        return true;
    }
    m_painted = m_painted || event->type() == QEvent::Paint;
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
