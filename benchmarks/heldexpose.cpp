// SPDX-License-Identifier: MIT
#include "heldexpose.h"

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
