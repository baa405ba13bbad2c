// SPDX-License-Identifier: MIT
// Starts the font job and leaves, as a program does that was asked only for its version: by
// returning from main(), or with the argument "exit" by std::exit(). With "stuck" it lets the job
// read the first of the two pipes that it finds, and leaves a second later, from the other one.
#include <OlvGlobal>

#include <QApplication>
#include <QThread>

#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace {

bool openForWriting(const char *pipe)
{
    const int writer = open(pipe, O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    return writer >= 0 && close(writer) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    OlvGlobal::init();
    if (argc > 1 && qstrcmp(argv[1], "exit") == 0) {
        std::exit(0);
    }
    if (argc > 1 && qstrcmp(argv[1], "stuck") == 0) {
        while (!openForWriting("fonts/a.ttf") && !openForWriting("fonts/b.ttf")) {
            QThread::msleep(1);
        }
        QThread::sleep(1);
    }
    return 0;
}
