// SPDX-License-Identifier: MIT
#pragma once

#include "portaltypes_p.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>

class PortalRequest;

/**
 * A session with the portal. It asks once, for one list of shortcuts, and tells of their presses
 * until it is closed, at the latest when this object is destroyed.
 */
class PortalSession : public QObject
{
    Q_OBJECT

public:
    /** @p token, of letters, digits and underscores, is the session's name. */
    PortalSession(const QDBusConnection &connection, const QString &token, QObject *parent);
    ~PortalSession() override;

    /** Asks for shortcuts. The answer comes from the event loop. */
    void bind(const PortalShortcuts &shortcuts);
    /** Whether the portal has bound the shortcut with this id. */
    bool isBound(const QString &id) const;

Q_SIGNALS:
    /**
     * The portal has dealt with the shortcuts, and isBound() says how. @p reason is empty unless
     * something other than its user decided.
     */
    void answered(const QString &reason);
    /** The shortcut with this id was pressed. */
    void activated(const QString &id);
    /** The portal has ended the session. */
    void closed();

private Q_SLOTS:
    void takeActivation(const QDBusObjectPath &session, const QString &id, qulonglong time,
                        const QVariantMap &options);
    void takeEnd();

private:
    PortalRequest *newRequest();
    void bindIn(const QString &path, const PortalShortcuts &shortcuts);
    void takeShortcuts(const QVariantMap &results);

    QDBusConnection m_connection;
    QString m_token;
    /** At first where the session is expected to be, then where it is. */
    QString m_path;
    QStringList m_bound;
    bool m_isOpen = true;
};
