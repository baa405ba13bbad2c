// SPDX-License-Identifier: MIT
// The costs of loading the library into a program that has loaded Qt, and of starting whole
// programs: this program links Qt, but not the library.
#include <benchmark/benchmark.h>

#include <QApplication>

#include <array>
#include <cstdio>
#include <dlfcn.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

namespace {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
constexpr char xcbPlatform[] = "libQt6XcbQpa.so.6";
#else
constexpr char xcbPlatform[] = "libQt5XcbQpa.so.5";
#endif

/** What a child process reports. */
struct Cost
{
    double seconds;
    double bytes;
};

double cpuSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

double heapInUse()
{
    const auto info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/** False where @p path could not be loaded. */
bool load(const char *path, Cost &cost)
{
    const double bytes = heapInUse();
    const double seconds = cpuSeconds();
    // lazy binding, as for a program that links the library
    const void *handle = dlopen(path, RTLD_LAZY | RTLD_LOCAL);
    cost.seconds = cpuSeconds() - seconds;
    cost.bytes = heapInUse() - bytes;
    if (!handle) {
        std::fprintf(stderr, "%s\n", dlerror());
    }
    return handle;
}

/** Loads it in a child process, since the library is never unloaded. */
bool loadInChild(const char *path, Cost &cost)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        return false;
    }
    const pid_t child = fork();
    if (child == 0) {
        Cost own{};
        const bool done = load(path, own) && write(ends[1], &own, sizeof own) == sizeof own;
        _exit(done ? 0 : 1);
    }
    close(ends[1]);
    const bool done = child > 0 && read(ends[0], &cost, sizeof cost) == sizeof cost;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return done;
}

void measureLoading(benchmark::State &state, const char *path)
{
    Cost cost{};
    while (state.KeepRunning()) {
        if (!loadInChild(path, cost)) {
            state.SkipWithError("the library could not be loaded");
            return;
        }
        state.SetIterationTime(cost.seconds);
    }
    state.counters["bytes"] = cost.bytes;
}

/** From the start of a program to the first paint of its window, in processor time. */
void measureStart(benchmark::State &state, const char *program)
{
    while (state.KeepRunning()) {
        const pid_t child = fork();
        if (child == 0) {
            execl(program, program, nullptr);
            _exit(1);
        }
        int status = 0;
        rusage usage{};
        if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
            state.SkipWithError("the program did not paint its window");
            return;
        }
        state.SetIterationTime(seconds(usage.ru_utime) + seconds(usage.ru_stime));
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    // Qt's platform plugin for X, which uses the same X libraries as the second library.
    if (!dlopen(xcbPlatform, RTLD_NOW | RTLD_GLOBAL)) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    benchmark::RegisterBenchmark("load/library", measureLoading, OLV_LIBRARY)->UseManualTime();
    benchmark::RegisterBenchmark("load/empty", measureLoading, OLV_EMPTY_LIBRARY)->UseManualTime();
    benchmark::RegisterBenchmark("program-start/library", measureStart, OLV_START_LIBRARY)
        ->UseManualTime();
    benchmark::RegisterBenchmark("program-start/sheet", measureStart, OLV_START_SHEET)
        ->UseManualTime();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
