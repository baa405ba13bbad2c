// SPDX-License-Identifier: MIT
// Makes an application, and with the argument "shortcut" a shortcut in it that is registered; ends
// with the number of sockets that are still open when the application is gone, or with 255 where
// the shortcut is refused.
#include "opensockets.h"

#include <OlvShortcut>

#include <QGuiApplication>

int main(int argc, char **argv)
{
    {
        const QGuiApplication application(argc, argv);
        OlvShortcut shortcut(Qt::Key_F5, true, false, false, false);
        if (argc > 1 && qstrcmp(argv[1], "shortcut") == 0 && !shortcut.active()) {
            return 255;
        }
    }
    return int(openSockets().count());
}
