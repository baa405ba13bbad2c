// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <QTimer>

#include <utility>

namespace {
constexpr int delay = 1; // milliseconds
}

OlvLastOnceFunction::OlvLastOnceFunction(std::function<void()> callable)
{
    auto *timer = new QTimer;
    const auto runOnce = [timer, callable = std::move(callable)]() mutable {
        // The repeating timer owns this closure: it is deleted first, so that an event loop within
        // the callable cannot fire it again, after the callable has been moved out of it.
        const std::function<void()> taken = std::move(callable);
        delete timer;
        taken();
    };
    QObject::connect(timer, &QTimer::timeout, timer, runOnce, Qt::DirectConnection);
    timer->start(delay);
}
