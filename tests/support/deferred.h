// SPDX-License-Identifier: MIT
#pragma once

#include <QEventLoop>
#include <QTimer>

/**
 * Runs what the library has put off to the event loop, such as the raising of resize handles, whose
 * memory is freed only then.
 */
inline void runDeferred()
{
    QEventLoop loop;
    QTimer::singleShot(5, &loop, &QEventLoop::quit);
    loop.exec();
}
