// SPDX-License-Identifier: MIT
// Starts a font job and ends in the way that its argument names, which tst_fontjobend and
// tst_fontfolders judge from outside.
#include "jobhold.h"
#include "jobthreads.h"

#include <OlvGlobal>

#include <QApplication>
#include <QFontMetrics>
#include <QThread>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr uid_t ordinaryUser = 65534;

int returnAtOnce()
{
    OlvGlobal::init();
    return 0;
}

[[noreturn]] int exitAtOnce()
{
    OlvGlobal::init();
    std::exit(0);
}

int returnWithoutThread()
{
    JobThreads::startJobWithoutThread();
    return OlvGlobal::isReady() ? 1 : 0;
}

void waitUntilHeld(const JobHold &hold)
{
    JobThreads::startJob();
    while (!hold.isHolding()) {
        QThread::msleep(1);
    }
}

[[noreturn]] int exitWhileAJobIsStuck()
{
    // left as it is: the job waits at it until the process is gone
    waitUntilHeld(*new JobHold);
    std::exit(0);
}

/** Forks while a job runs, and gives how its child has ended. */
int forkDuringTheJob()
{
    JobHold hold;
    waitUntilHeld(hold);
    const pid_t child = fork();
    if (child == 0) {
        std::exit(0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    hold.release();
    while (!JobThreads::haveEnded()) {
        QThread::msleep(1);
    }
    return status;
}

/** Waits for the fonts, measures a text in each that was loaded, and prints the ids of all. */
int tellFonts()
{
    OlvGlobal::init();
    while (!OlvGlobal::isReady()) {
        QThread::msleep(1);
    }
    QStringList keys = OlvGlobal::OlvPluginFonts.keys();
    keys.sort();
    for (const QString &key : qAsConst(keys)) {
        const int id = OlvGlobal::OlvPluginFonts.value(key);
        if (id >= 0) {
            QFontMetrics(OlvGlobal::getFont(key, 12)).boundingRect(QStringLiteral("A text"));
        }
        std::printf("%s=%s\n", qPrintable(key), id >= 0 ? "loaded" : "bad");
    }
    return 0;
}

struct Way
{
    const char *name;
    int (*play)();
};

constexpr Way ways[] = {
    { "return", returnAtOnce },         { "exit", exitAtOnce },
    { "refused", returnWithoutThread }, { "stuck", exitWhileAJobIsStuck },
    { "fork", forkDuringTheJob },       { "tell", tellFonts },
};

} // namespace

int main(int argc, char **argv)
{
    // to an administrator no file is unreadable
    if (getuid() == 0 && (setgid(ordinaryUser) != 0 || setuid(ordinaryUser) != 0)) {
        return EXIT_FAILURE;
    }
    const QApplication application(argc, argv);
    for (const Way &way : ways) {
        if (argc == 2 && qstrcmp(argv[1], way.name) == 0) {
            return way.play();
        }
    }
    return EXIT_FAILURE;
}
