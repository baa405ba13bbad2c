// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>
#include <QThread>

#include <atomic>
#include <mutex>

/**
 * Keeps a font job at the first font file that it registers, as a slow disk does, until it is
 * released. Qt's font database is locked meanwhile: whatever asks for a font waits as well.
 */
class JobHold
{
public:
    JobHold()
    {
        m_gate.lock();
        // Qt emits this on the thread that registers a file
        m_connection = QObject::connect(
            qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp,
            [this] {
                if (QThread::currentThread() != qGuiApp->thread()) {
                    m_isHolding = true;
                    const std::lock_guard<std::mutex> passing(m_gate);
                }
            },
            Qt::DirectConnection);
    }
    ~JobHold()
    {
        release();
    }

    bool isHolding() const
    {
        return m_isHolding;
    }

    void release()
    {
        if (m_connection) {
            QObject::disconnect(m_connection);
            m_connection = {};
            m_gate.unlock();
        }
    }

private:
    Q_DISABLE_COPY(JobHold)

    std::mutex m_gate;
    std::atomic<bool> m_isHolding{ false };
    QMetaObject::Connection m_connection;
};
