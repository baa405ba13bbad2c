// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QString>
#include <QVariantMap>
#include <QVector>

/** A shortcut as the portal is asked for it, and as it answers: "(sa{sv})". */
struct PortalShortcut
{
    QString id;
    QVariantMap properties;
};
using PortalShortcuts = QVector<PortalShortcut>;

Q_DECLARE_METATYPE(PortalShortcut)

inline QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}
