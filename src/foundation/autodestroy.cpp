// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <utility>

// SINGLEGLOBAL is defined in global.cpp, where the order of the library's static initialisation is
// kept.

OlvAutoDestroy::OlvAutoDestroy() = default;

OlvAutoDestroy::~OlvAutoDestroy() noexcept(false)
{
    // Nobody may find the process-wide instance once its callables run: neither a callable that
    // calls addDestroy(), nor a guard that would destroy it again.
    const bool isProcessWide = SINGLEGLOBAL == this;
    if (isProcessWide) {
        SINGLEGLOBAL = nullptr;
    }
    for (const std::function<void()> &callable : qAsConst(m_list)) {
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
        SINGLEGLOBAL->m_list.append(callable);
    }
}
