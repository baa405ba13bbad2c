// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QSet>

#include <sys/socket.h>

/** The sockets that this process has open. */
inline QSet<int> openSockets()
{
    QSet<int> sockets;
    const QStringList names =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System);
    for (const QString &name : names) {
        int type = 0;
        socklen_t size = sizeof type;
        if (getsockopt(name.toInt(), SOL_SOCKET, SO_TYPE, &type, &size) == 0) {
            sockets.insert(name.toInt());
        }
    }
    return sockets;
}
