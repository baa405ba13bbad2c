// SPDX-License-Identifier: MIT
#include "portalbackend_p.h"

#include "portalnames_p.h"
#include "portalrequest_p.h"
#include "portalsession_p.h"

#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLoggingCategory>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(lcShortcuts, "olv.shortcuts")

constexpr char connectionName[] = "OlvSystemInfo";
/** How long shortcuts are gathered for one dialog. */
constexpr int gatheringTime = 50; // milliseconds

PortalShortcut portalShortcut(const ShortcutCombination &combination)
{
    const QString trigger = portalTrigger(combination.key, combination.modifiers);
    const QString text = combination.description.isEmpty()
        ? QKeySequence(int(combination.modifiers) | combination.key)
              .toString(QKeySequence::NativeText)
        : combination.description;
    return { portalName(trigger),
             { { QStringLiteral("description"), text },
               { QStringLiteral("preferred_trigger"), trigger } } };
}

void warn(const QStringList &ids, const QString &reason)
{
    if (!ids.isEmpty()) {
        qCWarning(lcShortcuts, "No shortcuts %s: %s",
                  qUtf8Printable(ids.join(QStringLiteral(", "))), qUtf8Printable(reason));
    }
}

} // namespace

PortalBackend::PortalBackend(QObject *parent)
    : QObject(parent)
    , m_connection(
          QDBusConnection::connectToBus(QDBusConnection::SessionBus, QLatin1String(connectionName)))
{
    m_gathering.setSingleShot(true);
    m_gathering.setInterval(gatheringTime);
    connect(&m_gathering, &QTimer::timeout, this, [this] { bindGathered(); });
    auto *watcher = new QDBusServiceWatcher(QLatin1String(Portal::service), m_connection,
                                            QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        m_isIntroduced = false;
        lose(nullptr, QStringLiteral("the portal has ended"));
    });
    m_connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                         QStringLiteral("org.freedesktop.DBus.Local"),
                         QStringLiteral("Disconnected"), this, SLOT(takeDisconnection()));
}

PortalBackend::~PortalBackend()
{
    withdraw();
    qDeleteAll(m_sessions);
    QDBusConnection::disconnectFromBus(QLatin1String(connectionName));
}

bool PortalBackend::grab(OlvShortcut *shortcut, const ShortcutCombination &combination)
{
    const auto registered = m_registrations.constFind(shortcut);
    if (registered != m_registrations.cend()) {
        return registered->state == OlvShortcut::Active;
    }
    if (portalTrigger(combination.key, combination.modifiers).isEmpty()) {
        return false;
    }
    const PortalShortcut wanted = portalShortcut(combination);
    if (isHeld(wanted.id)) {
        return false;
    }
    if (!m_connection.isConnected()) {
        m_registrations.insert(shortcut, { wanted, OlvShortcut::Inactive, nullptr });
        m_withoutBus.append(wanted.id);
        gather();
        return false;
    }
    PortalSession *session = sessionWith(wanted.id);
    if (!session) {
        gather();
    }
    m_registrations.insert(
        shortcut, { wanted, session ? OlvShortcut::Active : OlvShortcut::Pending, session });
    return session != nullptr;
}

void PortalBackend::release(OlvShortcut *shortcut)
{
    const auto registration = m_registrations.constFind(shortcut);
    if (registration != m_registrations.cend()) {
        PortalSession *session = registration->session;
        m_registrations.erase(registration);
        endIfUnused(session);
    }
}

OlvShortcut::State PortalBackend::state(OlvShortcut *shortcut) const
{
    const auto registration = m_registrations.constFind(shortcut);
    return registration == m_registrations.cend() ? OlvShortcut::Inactive : registration->state;
}

void PortalBackend::takeDisconnection()
{
    lose(nullptr, QStringLiteral("the session bus has ended"));
}

bool PortalBackend::isHeld(const QString &id) const
{
    return std::any_of(
        m_registrations.cbegin(), m_registrations.cend(), [&](const Registration &registration) {
            return registration.state != OlvShortcut::Inactive && registration.wanted.id == id;
        });
}

/** What has been released stays bound while another shortcut needs its session. */
PortalSession *PortalBackend::sessionWith(const QString &id) const
{
    const auto session = std::find_if(m_sessions.cbegin(), m_sessions.cend(),
                                      [&](PortalSession *s) { return s->isBound(id); });
    return session == m_sessions.cend() ? nullptr : *session;
}

void PortalBackend::gather()
{
    if (!m_gathering.isActive()) {
        m_gathering.start();
    }
}

void PortalBackend::bindGathered()
{
    // unlocked, since an application's message handler may call anything
    warn(std::exchange(m_withoutBus, {}), QStringLiteral("there is no session bus"));
    const std::lock_guard<std::mutex> lock(mutex());
    QVector<Registration *> gathered;
    for (Registration &registration : m_registrations) {
        if (registration.state == OlvShortcut::Pending && !registration.session) {
            gathered.append(&registration);
        }
    }
    if (gathered.isEmpty()) {
        return;
    }
    std::sort(gathered.begin(), gathered.end(), [](const Registration *a, const Registration *b) {
        return a->wanted.id < b->wanted.id;
    });
    PortalSession *session = newSession();
    PortalShortcuts wanted;
    for (Registration *registration : qAsConst(gathered)) {
        registration->session = session;
        wanted.append(registration->wanted);
    }
    introduceProgram(session, [=] { session->bind(wanted); });
}

PortalSession *PortalBackend::newSession()
{
    const QString token = portalName(QString::number(++m_sessionCount));
    auto *session = new PortalSession(m_connection, token, this);
    connect(session, &PortalSession::answered, this,
            [=](const QString &reason) { settle(session, reason); });
    connect(session, &PortalSession::activated, this,
            [=](const QString &id) { activate(session, id); });
    connect(session, &PortalSession::closed, this,
            [=] { lose(session, QStringLiteral("the desktop has taken them back")); });
    m_sessions.append(session);
    return session;
}

/**
 * Tells the portal the name of the program's desktop file, and then does what is next. Newer
 * portals take nothing from a program without a name, and older ones do not know the call.
 */
void PortalBackend::introduceProgram(PortalSession *session, const std::function<void()> &next)
{
    const QString desktopFile = QGuiApplication::desktopFileName();
    if (m_isIntroduced || desktopFile.isEmpty()) {
        next();
        return;
    }
    m_isIntroduced = true;
    QDBusMessage call = Portal::call(Portal::registry, "Register");
    call << desktopFile << QVariantMap();
    auto *reply =
        new QDBusPendingCallWatcher(m_connection.asyncCall(call, PortalRequest::patience), session);
    connect(reply, &QDBusPendingCallWatcher::finished, session, [=] {
        reply->deleteLater();
        next();
    });
}

/** The portal has answered for the shortcuts of a session, or is not going to. */
void PortalBackend::settle(PortalSession *session, const QString &reason)
{
    Emissions emissions;
    QStringList refused;
    {
        const std::lock_guard<std::mutex> lock(mutex());
        for (auto it = m_registrations.begin(); it != m_registrations.end(); ++it) {
            if (it->session == session) {
                const bool isBound = session->isBound(it->wanted.id);
                refused += isBound ? QStringList() : QStringList(it->wanted.id);
                setState(it, isBound ? OlvShortcut::Active : OlvShortcut::Inactive, &emissions);
            }
        }
        endIfUnused(session);
    }
    // unlocked, since an application's message handler may call anything
    warn(refused, reason.isEmpty() ? QStringLiteral("they have not been confirmed") : reason);
    for (const auto &emit : qAsConst(emissions)) {
        emit();
    }
}

void PortalBackend::activate(PortalSession *session, const QString &id)
{
    Emissions emissions;
    {
        const std::lock_guard<std::mutex> lock(mutex());
        for (auto it = m_registrations.begin(); it != m_registrations.end(); ++it) {
            if (it->session == session && it->wanted.id == id) {
                addEmission(it.key(), &OlvShortcut::activated, &emissions);
            }
        }
    }
    for (const auto &emit : qAsConst(emissions)) {
        emit();
    }
}

/** Drops the bound and pending shortcuts of @p ended; null: of all sessions. */
void PortalBackend::lose(PortalSession *ended, const QString &reason)
{
    Emissions emissions;
    QStringList lost;
    {
        // before the list is read, too: another thread that releases a shortcut may end a session
        const std::lock_guard<std::mutex> lock(mutex());
        const Sessions sessions = ended ? Sessions{ ended } : m_sessions;
        for (auto it = m_registrations.begin(); it != m_registrations.end(); ++it) {
            if (sessions.contains(it->session)) {
                lost.append(it->wanted.id);
                setState(it, OlvShortcut::Inactive, &emissions);
            }
        }
        for (PortalSession *session : sessions) {
            endIfUnused(session);
        }
    }
    warn(lost, reason);
    for (const auto &emit : qAsConst(emissions)) {
        emit();
    }
}

void PortalBackend::setState(Registrations::iterator registration, OlvShortcut::State state,
                             Emissions *emissions)
{
    registration->state = state;
    if (state == OlvShortcut::Inactive) {
        registration->session = nullptr;
    }
    addEmission(
        registration.key(), [=](OlvShortcut *shortcut) { Q_EMIT shortcut->stateChanged(state); },
        emissions);
}

/** Notes what to emit once the mutex is unlocked. Another thread emits its own. */
void PortalBackend::addEmission(OlvShortcut *shortcut,
                                const std::function<void(OlvShortcut *)> &emission,
                                Emissions *emissions) const
{
    if (shortcut->thread() == thread()) {
        emissions->append([emission, guarded = QPointer<OlvShortcut>(shortcut)] {
            if (guarded) {
                emission(guarded);
            }
        });
    } else {
        // Qt drops the call when the shortcut is destroyed in its thread before.
        QMetaObject::invokeMethod(
            shortcut, [=] { emission(shortcut); }, Qt::QueuedConnection);
    }
}

/** May be called in any thread, but a session is deleted in its own. */
void PortalBackend::endIfUnused(PortalSession *session)
{
    const bool isUsed = std::any_of(
        m_registrations.cbegin(), m_registrations.cend(),
        [=](const Registration &registration) { return registration.session == session; });
    if (session && !isUsed) {
        m_sessions.removeOne(session);
        session->deleteLater();
    }
}
