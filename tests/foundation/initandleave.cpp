// SPDX-License-Identifier: MIT
// Starts the font job and leaves at once, as a program does that was asked only for its version: by
// returning from main(), or with the argument "exit" by std::exit().
#include <OlvGlobal>

#include <QApplication>

#include <cstdlib>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    OlvGlobal::init();
    if (argc > 1 && qstrcmp(argv[1], "exit") == 0) {
        std::exit(0);
    }
    return 0;
}
