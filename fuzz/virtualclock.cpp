// SPDX-License-Identifier: MIT
#include "virtualclock.h"

#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <atomic>

namespace {

constexpr long long nanosecondsPerSecond = 1'000'000'000;

std::atomic<long long> virtualNanoseconds{ nanosecondsPerSecond };

} // namespace

// Replaces the function of the C library, so that Qt and the standard library read this clock.
extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock,
                                                                    timespec *time) noexcept
{
    if (clock != CLOCK_MONOTONIC && clock != CLOCK_MONOTONIC_COARSE && clock != CLOCK_REALTIME) {
        return int(syscall(SYS_clock_gettime, clock, time));
    }
    const long long now = virtualNanoseconds;
    time->tv_sec = now / nanosecondsPerSecond;
    time->tv_nsec = now % nanosecondsPerSecond;
    return 0;
}

void VirtualClock::advance(std::chrono::milliseconds time)
{
    virtualNanoseconds += std::chrono::nanoseconds(time).count();
}

void VirtualClock::advanceToHour()
{
    constexpr long long hour = 3600 * nanosecondsPerSecond;
    virtualNanoseconds = (virtualNanoseconds / hour + 1) * hour;
}

std::chrono::milliseconds VirtualClock::processorTime()
{
    timespec time{};
    syscall(SYS_clock_gettime, CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}
