// SPDX-License-Identifier: MIT
#include "jobthreads.h"

#include <OlvGlobal>

#include <QtGlobal>

#include <dlfcn.h>
#include <pthread.h>

#include <atomic>
#include <cerrno>
#include <memory>
#include <new>

namespace {

using Routine = void *(*)(void *);

enum class Watching { Nothing, Counting, Refusing };

struct Counted
{
    Routine routine;
    void *argument;
};

thread_local Watching watching = Watching::Nothing;
std::atomic<int> running{ 0 };

void *runCounted(void *argument)
{
    const std::unique_ptr<Counted> counted(static_cast<Counted *>(argument));
    void *result = counted->routine(counted->argument);
    --running;
    return result;
}

void callInit(Watching as)
{
    watching = as;
    OlvGlobal::init();
    watching = Watching::Nothing;
}

} // namespace

// exported, so that the C++ library's std::thread finds it before that of the C library
extern "C" Q_DECL_EXPORT int pthread_create(pthread_t *thread, const pthread_attr_t *attributes,
                                            Routine routine, void *argument) noexcept
{
    static const auto next =
        reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
    if (watching == Watching::Refusing) {
        return EAGAIN;
    }
    if (watching == Watching::Nothing) {
        return next(thread, attributes, routine, argument);
    }
    auto *counted = new (std::nothrow) Counted{ routine, argument };
    if (!counted) {
        return EAGAIN;
    }
    ++running;
    const int error = next(thread, attributes, runCounted, counted);
    if (error != 0) {
        delete counted;
        --running;
    }
    return error;
}

void JobThreads::startJob()
{
    callInit(Watching::Counting);
}

void JobThreads::startJobWithoutThread()
{
    callInit(Watching::Refusing);
}

bool JobThreads::haveEnded()
{
    return running == 0;
}
