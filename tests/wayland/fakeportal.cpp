// SPDX-License-Identifier: MIT
#include "fakeportal.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QTimer>

namespace {

const char serviceName[] = "org.freedesktop.portal.Desktop";
const char portalPath[] = "/org/freedesktop/portal/desktop";

QString pathOf(const char *kind, const QString &sender, const QVariant &token)
{
    const QString name = sender.mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("%1/%2/%3/%4")
        .arg(QLatin1String(portalPath), QLatin1String(kind), name, token.toString());
}

} // namespace

/** As in the portal's interface: "(sa{sv})". */
struct BoundShortcut
{
    QString id;
    QVariantMap properties;
};
Q_DECLARE_METATYPE(BoundShortcut)
Q_DECLARE_METATYPE(QVector<BoundShortcut>)

QDBusArgument &operator<<(QDBusArgument &argument, const BoundShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, BoundShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

FakePortal::FakePortal()
    : m_connection(
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QLatin1String(connectionName)))
{
    qDBusRegisterMetaType<BoundShortcut>();
    qDBusRegisterMetaType<QVector<BoundShortcut>>();
    m_connection.registerVirtualObject(QLatin1String(portalPath), this, QDBusConnection::SubPath);
    m_connection.registerService(QLatin1String(serviceName));
}

FakePortal::~FakePortal()
{
    m_connection.unregisterService(QLatin1String(serviceName));
    m_connection.unregisterObject(QLatin1String(portalPath), QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus(QLatin1String(connectionName));
}

QStringList FakePortal::calls() const
{
    return m_calls;
}

void FakePortal::forgetCalls()
{
    m_calls.clear();
}

QStringList FakePortal::sessionNames() const
{
    return m_sessionNames;
}

QHash<QString, QVariantMap> FakePortal::wanted() const
{
    return m_wanted;
}

QStringList FakePortal::bound() const
{
    QStringList ids;
    for (const Session &session : m_sessions) {
        ids += session.ids;
    }
    ids.sort();
    return ids;
}

void FakePortal::press(const QString &id)
{
    for (auto it = m_sessions.cbegin(); it != m_sessions.cend(); ++it) {
        if (it->ids.contains(id)) {
            QDBusMessage signal = QDBusMessage::createTargetedSignal(
                it->owner, QLatin1String(portalPath),
                QStringLiteral("org.freedesktop.portal.GlobalShortcuts"),
                QStringLiteral("Activated"));
            signal << QVariant::fromValue(QDBusObjectPath(it.key())) << id << qulonglong(1234)
                   << QVariantMap();
            m_connection.send(signal);
        }
    }
}

void FakePortal::closeSessionOf(const QString &id)
{
    for (auto it = m_sessions.begin(); it != m_sessions.end(); ++it) {
        if (it->ids.contains(id)) {
            QDBusMessage signal = QDBusMessage::createTargetedSignal(
                it->owner, it.key(), QStringLiteral("org.freedesktop.portal.Session"),
                QStringLiteral("Closed"));
            signal << QVariantMap();
            m_connection.send(signal);
            m_sessions.erase(it);
            return;
        }
    }
}

QString FakePortal::introspect(const QString & /*path*/) const
{
    return QString();
}

bool FakePortal::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const QString member = message.member();
    if (member == QLatin1String("Register")) {
        m_named.append(message.service());
        m_calls.append(QStringLiteral("Register ") + message.arguments().value(0).toString());
        return connection.send(message.createReply());
    }
    if (wantsName && !m_named.contains(message.service())) {
        m_calls.append(member + QStringLiteral(" without a name"));
        return connection.send(
            message.createErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotAllowed"),
                                     QStringLiteral("An app id is required")));
    }
    if (member == QLatin1String("CreateSession")) {
        createSession(message);
    } else if (member == QLatin1String("BindShortcuts")) {
        bindShortcuts(message);
    } else if (member == QLatin1String("Close")) {
        m_sessions.remove(message.path());
        const QString kind = message.interface().section(QLatin1Char('.'), -1);
        m_calls.append(QStringLiteral("Close ") + kind);
        connection.send(message.createReply());
    } else {
        return false;
    }
    return true;
}

void FakePortal::createSession(const QDBusMessage &call)
{
    const auto options = qdbus_cast<QVariantMap>(call.arguments().value(0));
    const QVariant token = options.value(QStringLiteral("session_handle_token"));
    m_calls.append(QStringLiteral("CreateSession"));
    m_sessionNames.append(token.toString());
    const QString path = pathOf("session", call.service(), token);
    m_sessions.insert(path, { call.service(), {} });
    answer(call, options, 0, { { QStringLiteral("session_handle"), path } }, isMuteForSessions);
}

void FakePortal::bindShortcuts(const QDBusMessage &call)
{
    const QString path = call.arguments().value(0).value<QDBusObjectPath>().path();
    const auto session = m_sessions.find(path);
    if (session == m_sessions.end() || !session->ids.isEmpty()) {
        m_calls.append(QStringLiteral("BindShortcuts in no session, or twice"));
        m_connection.send(
            call.createErrorReply(QDBusError::AccessDenied, QStringLiteral("Invalid session")));
        return;
    }
    const auto shortcuts = qdbus_cast<QVector<BoundShortcut>>(call.arguments().value(1));
    QVector<BoundShortcut> granted;
    QStringList ids;
    m_wanted.clear();
    for (const BoundShortcut &shortcut : shortcuts) {
        ids.append(shortcut.id);
        m_wanted.insert(shortcut.id, shortcut.properties);
        if (!refusesAll && !refused.contains(shortcut.id)) {
            granted.append({ shortcut.id, {} });
            session->ids.append(shortcut.id);
        }
    }
    m_calls.append(QStringLiteral("BindShortcuts ") + ids.join(QLatin1Char(' ')));
    const QVariant list = isConfused ? QVariant(42) : QVariant::fromValue(granted);
    answer(call, qdbus_cast<QVariantMap>(call.arguments().value(3)), code,
           { { QStringLiteral("shortcuts"), list } }, isMuteForShortcuts);
}

void FakePortal::answer(const QDBusMessage &call, const QVariantMap &options, uint answerCode,
                        const QVariantMap &results, bool isMute)
{
    const QString path =
        pathOf("request", call.service(), options.value(QStringLiteral("handle_token")));
    if (isFrozen) {
        return;
    }
    m_connection.send(call.createReply(QVariant::fromValue(QDBusObjectPath(path))));
    if (isMute) {
        return;
    }
    QTimer::singleShot(delay, this, [=] {
        QDBusMessage signal = QDBusMessage::createTargetedSignal(
            call.service(), path, QStringLiteral("org.freedesktop.portal.Request"),
            QStringLiteral("Response"));
        signal << answerCode << results;
        m_connection.send(signal);
    });
}
