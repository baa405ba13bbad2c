// SPDX-License-Identifier: MIT
// Makes an application, and with the argument "shortcut" a shortcut in it that is registered; ends
// with the number of sockets that are still open when the application is gone, or -1.
#include "opensockets.h"

#include <OlvShortcut>

#include <QGuiApplication>

int main(int argc, char **argv)
{
    {
        const QGuiApplication application(argc, argv);
        OlvShortcut shortcut(Qt::Key_F5, true, false, false, false);
        if (argc > 1 && qstrcmp(argv[1], "shortcut") == 0 && !shortcut.active()) {
            return -1;
        }
    }
    return openSockets().count();
}
