// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

/** The portal's name, object and interfaces on the session bus. */
namespace Portal {

constexpr char service[] = "org.freedesktop.portal.Desktop";
constexpr char path[] = "/org/freedesktop/portal/desktop";
constexpr char shortcuts[] = "org.freedesktop.portal.GlobalShortcuts";
constexpr char request[] = "org.freedesktop.portal.Request";
constexpr char session[] = "org.freedesktop.portal.Session";
constexpr char registry[] = "org.freedesktop.host.portal.Registry";

/** A call of a method of the portal's own object. */
QDBusMessage call(const char *interface, const char *method);
/** Closes an object of the portal, of the interface "request" or "session". */
void close(const QDBusConnection &connection, const QString &object, const char *interface);
/**
 * The object that the portal makes of a token of the connection's: @p kind is "request" or
 * "session".
 */
QString objectPath(const QDBusConnection &connection, const char *kind, const QString &token);

} // namespace Portal

/**
 * A request to the portal, which replies to the call at once and sends its answer later, often
 * after the user has dealt with a dialog. It is withdrawn when this object is destroyed before the
 * answer.
 */
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    /** How long the portal may take where it has nothing to ask its user. */
    static constexpr int patience = 25000; // milliseconds, as D-Bus waits for replies

    explicit PortalRequest(const QDBusConnection &connection, QObject *parent);
    ~PortalRequest() override;

    /** Calls a method whose last argument, which is added here, is @p options. */
    void send(QDBusMessage call, QVariantMap options);
    /** Fails unless the answer has come within the portal's patience. */
    void limitTime();

Q_SIGNALS:
    /** The answer; 0 stands for success, but only the results say what has been granted. */
    void answered(uint code, const QVariantMap &results);
    /** There is no answer to come. Neither signal follows the other. */
    void failed(const QString &reason);

private Q_SLOTS:
    void takeResponse(uint code, const QVariantMap &results);

private:
    void fail(const QString &reason);
    void stopListening();

    QDBusConnection m_connection;
    QString m_path;
    /** A child of this object, so that the tests find it, and let it end sooner. */
    QTimer m_limit;
    bool m_isOpen = false;
};
