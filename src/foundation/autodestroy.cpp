// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <QList>

#include <utility>

class OlvAutoDestroy::Private
{
public:
    QList<std::function<void()>> list;
};

// SINGLEGLOBAL is defined in global.cpp, where the order of the library's static initialisation is
// kept.

OlvAutoDestroy::OlvAutoDestroy()
    : d(std::make_unique<Private>())
{ }

OlvAutoDestroy::~OlvAutoDestroy() noexcept(false)
{
    // Cleared before the callables run: one of them may call addDestroy(), or destroy a guard,
    // which would destroy this instance again.
    const bool isProcessWide = SINGLEGLOBAL == this;
    if (isProcessWide) {
        SINGLEGLOBAL = nullptr;
    }
    for (const std::function<void()> &callable : qAsConst(d->list)) {
        const std::function<void()> copy = callable;
        copy();
    }
    if (!isProcessWide) {
        delete std::exchange(SINGLEGLOBAL, nullptr);
    }
}

void OlvAutoDestroy::addDestroy(std::function<void()> callable)
{
    if (SINGLEGLOBAL) {
        SINGLEGLOBAL->d->list.append(callable);
    }
}
