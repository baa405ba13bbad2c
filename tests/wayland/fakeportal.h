// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QStringList>
#include <QVariantMap>

/**
 * The desktop's portal for shortcuts, on the session bus, that answers as it is told to and writes
 * down what it is asked.
 */
class FakePortal : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /** The name of its connection to the session bus. */
    static constexpr char connectionName[] = "fake portal";

    FakePortal();
    ~FakePortal() override;

    /** The ids of what is not bound. */
    QStringList refused;
    /** Whether nothing is bound at all. */
    bool refusesAll = false;
    /** The code of the answer to BindShortcuts. */
    uint code = 0;
    /** How long it takes to answer. */
    int delay = 20; // milliseconds
    /** Whether it replies to calls, and never answers the requests for a session, or for shortcuts.
     */
    bool isMuteForSessions = false;
    bool isMuteForShortcuts = false;
    /** Whether it does not even reply to calls. */
    bool isFrozen = false;
    /** Whether it answers with values of other types than it should. */
    bool isConfused = false;
    /** Whether it takes calls only from programs that have told their name. */
    bool wantsName = false;

    /** What it has been asked: "CreateSession", "BindShortcuts name_a". */
    QStringList calls() const;
    void forgetCalls();
    /** The names of the sessions that it has been asked for. */
    QStringList sessionNames() const;
    /** What BindShortcuts was called with last, by id. */
    QHash<QString, QVariantMap> wanted() const;
    /** The ids that are bound now. */
    QStringList bound() const;

    /** The user presses the shortcut with this id. */
    void press(const QString &id);
    /** The user takes back the session that has the shortcut with this id. */
    void closeSessionOf(const QString &id);

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    struct Session
    {
        QString owner;
        QStringList ids;
    };

    void createSession(const QDBusMessage &call);
    void bindShortcuts(const QDBusMessage &call);
    void answer(const QDBusMessage &call, const QVariantMap &options, uint answerCode,
                const QVariantMap &results, bool isMute);

    QDBusConnection m_connection;
    QStringList m_calls;
    QStringList m_sessionNames;
    QStringList m_named;
    QHash<QString, QVariantMap> m_wanted;
    QHash<QString, Session> m_sessions; // by path
};
