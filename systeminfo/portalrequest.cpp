// SPDX-License-Identifier: MIT
#include "portalrequest_p.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

QDBusMessage Portal::call(const char *interface, const char *method)
{
    return QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(path),
                                          QLatin1String(interface), QLatin1String(method));
}

void Portal::close(const QDBusConnection &connection, const QString &object, const char *interface)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QLatin1String(service), object, QLatin1String(interface), QStringLiteral("Close"));
    call.setAutoStartService(false); // a portal that is no longer there has closed everything
    connection.send(call);
}

QString Portal::objectPath(const QDBusConnection &connection, const char *kind,
                           const QString &token)
{
    // ":1.42" is "1_42" there.
    const QString sender =
        connection.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("%1/%2/%3/%4")
        .arg(QLatin1String(path), QLatin1String(kind), sender, token);
}

PortalRequest::PortalRequest(const QDBusConnection &connection, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
    , m_limit(this)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(patience);
    connect(&m_limit, &QTimer::timeout, this,
            [this] { fail(QStringLiteral("it does not answer")); });
}

PortalRequest::~PortalRequest()
{
    if (m_isOpen) {
        stopListening();
        Portal::close(m_connection, m_path, Portal::request);
    }
}

void PortalRequest::send(QDBusMessage call, QVariantMap options)
{
    static int count = 0;
    const QString token = QStringLiteral("olv%1").arg(++count);
    m_path = Portal::objectPath(m_connection, "request", token);
    m_isOpen = true;
    // The answer may come before the reply to the call, which has the path.
    m_connection.connect(QLatin1String(Portal::service), m_path, QLatin1String(Portal::request),
                         QStringLiteral("Response"), this, SLOT(takeResponse(uint, QVariantMap)));
    options.insert(QStringLiteral("handle_token"), token);
    call << options;
    auto *reply = new QDBusPendingCallWatcher(m_connection.asyncCall(call, patience), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [=] {
        reply->deleteLater();
        if (reply->isError()) {
            fail(reply->error().message());
        }
    });
}

void PortalRequest::limitTime()
{
    m_limit.start();
}

void PortalRequest::takeResponse(uint code, const QVariantMap &results)
{
    if (m_isOpen) {
        stopListening();
        Q_EMIT answered(code, results);
    }
}

void PortalRequest::fail(const QString &reason)
{
    if (m_isOpen) {
        stopListening();
        Q_EMIT failed(reason);
    }
}

void PortalRequest::stopListening()
{
    m_isOpen = false;
    m_limit.stop();
    m_connection.disconnect(QLatin1String(Portal::service), m_path, QLatin1String(Portal::request),
                            QStringLiteral("Response"), this,
                            SLOT(takeResponse(uint, QVariantMap)));
}
