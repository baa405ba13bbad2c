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
        // The timer repeats and owns this closure: it goes first, so that an event loop within the
        // callable cannot fire it again, and the callable is taken out of it before it goes.
        const std::function<void()> taken = std::move(callable);
        delete timer;
        taken();
    };
    QObject::connect(timer, &QTimer::timeout, timer, runOnce, Qt::DirectConnection);
    timer->start(delay);
}
