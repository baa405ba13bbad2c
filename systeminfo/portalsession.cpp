// SPDX-License-Identifier: MIT
#include "portalsession_p.h"

#include "portalrequest_p.h"

#include <QDBusMetaType>

namespace {

/** What the portal sends may be of any type, and reading one as another would fail with a warning.
 */
PortalShortcuts shortcutsIn(const QVariant &value)
{
    if (value.userType() != qMetaTypeId<QDBusArgument>()) {
        return {};
    }
    const auto argument = value.value<QDBusArgument>();
    return argument.currentSignature() == QLatin1String("a(sa{sv})")
        ? qdbus_cast<PortalShortcuts>(argument)
        : PortalShortcuts();
}

} // namespace

PortalSession::PortalSession(const QDBusConnection &connection, const QString &token,
                             QObject *parent)
    : QObject(parent)
    , m_connection(connection)
    , m_token(token)
    , m_path(Portal::objectPath(connection, "session", token))
{
    // a slot that takes one cannot be connected before with Qt 6, which registers a type at its
    // first use
    qRegisterMetaType<QDBusObjectPath>();
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<PortalShortcuts>();
    m_connection.connect(QLatin1String(Portal::service), QLatin1String(Portal::path),
                         QLatin1String(Portal::shortcuts), QStringLiteral("Activated"), this,
                         SLOT(takeActivation(QDBusObjectPath, QString, qulonglong, QVariantMap)));
}

PortalSession::~PortalSession()
{
    if (m_isOpen) {
        Portal::close(m_connection, m_path, Portal::session);
    }
}

void PortalSession::bind(const PortalShortcuts &shortcuts)
{
    PortalRequest *creation = newRequest();
    connect(creation, &PortalRequest::answered, this, [=](uint code, const QVariantMap &results) {
        // Some portals send it as a string, and some as an object path.
        const QVariant handle = results.value(QStringLiteral("session_handle"));
        const QString path = handle.userType() == qMetaTypeId<QDBusObjectPath>()
            ? handle.value<QDBusObjectPath>().path()
            : handle.toString();
        if (code != 0 || path.isEmpty()) {
            Q_EMIT answered(QStringLiteral("it gives no session"));
        } else {
            bindIn(path, shortcuts);
        }
    });
    creation->limitTime();
    creation->send(Portal::call(Portal::shortcuts, "CreateSession"),
                   { { QStringLiteral("session_handle_token"), m_token } });
}

bool PortalSession::isBound(const QString &id) const
{
    return m_bound.contains(id);
}

void PortalSession::takeActivation(const QDBusObjectPath &session, const QString &id,
                                   qulonglong /*time*/, const QVariantMap & /*options*/)
{
    if (session.path() == m_path) {
        Q_EMIT activated(id);
    }
}

void PortalSession::takeEnd()
{
    if (m_isOpen) {
        m_isOpen = false;
        Q_EMIT closed();
    }
}

PortalRequest *PortalSession::newRequest()
{
    auto *request = new PortalRequest(m_connection, this);
    connect(request, &PortalRequest::answered, request, &QObject::deleteLater);
    connect(request, &PortalRequest::failed, request, &QObject::deleteLater);
    connect(request, &PortalRequest::failed, this, &PortalSession::answered);
    return request;
}

void PortalSession::bindIn(const QString &path, const PortalShortcuts &shortcuts)
{
    m_path = path;
    m_connection.connect(QLatin1String(Portal::service), m_path, QLatin1String(Portal::session),
                         QStringLiteral("Closed"), this, SLOT(takeEnd()));
    // No limit of time, since the user may think about a dialog for as long as they like.
    PortalRequest *binding = newRequest();
    connect(binding, &PortalRequest::answered, this,
            [=](uint /*code*/, const QVariantMap &results) { takeShortcuts(results); });
    QDBusMessage call = Portal::call(Portal::shortcuts, "BindShortcuts");
    const QString noWindow;
    call << QVariant::fromValue(QDBusObjectPath(m_path)) << QVariant::fromValue(shortcuts)
         << noWindow;
    binding->send(call, {});
}

/** The portal's code does not count: it may be that of success though nothing has been bound. */
void PortalSession::takeShortcuts(const QVariantMap &results)
{
    const PortalShortcuts bound = shortcutsIn(results.value(QStringLiteral("shortcuts")));
    for (const PortalShortcut &shortcut : bound) {
        m_bound.append(shortcut.id);
    }
    Q_EMIT answered(QString());
}
