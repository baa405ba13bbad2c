// SPDX-License-Identifier: MIT
#pragma once

#include "portaltypes_p.h"
#include "shortcutbackend_p.h"

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <functional>

class PortalSession;

/**
 * Shortcuts by the portal that Wayland desktops have for them, over a connection of this library's
 * own to the session bus.
 *
 * The portal answers late, usually once its user has confirmed a dialog, so that a combination is
 * pending at first. Those that are asked for within a moment go into one session, and one dialog.
 */
class PortalBackend : public QObject, public ShortcutBackend
{
    Q_OBJECT

public:
    explicit PortalBackend(QObject *parent);
    ~PortalBackend() override;

protected:
    bool grab(OlvShortcut *shortcut, const ShortcutCombination &combination) override;
    void release(OlvShortcut *shortcut) override;
    OlvShortcut::State state(OlvShortcut *shortcut) const override;

private Q_SLOTS:
    void takeDisconnection();

private:
    struct Registration
    {
        PortalShortcut wanted;
        /** Inactive for what has been refused: it is not asked for again unless it is released. */
        OlvShortcut::State state;
        /** Null before the portal is asked, and once it has refused. */
        PortalSession *session;
    };
    using Registrations = QHash<OlvShortcut *, Registration>;
    using Sessions = QVector<PortalSession *>;
    using Emissions = QVector<std::function<void()>>;

    bool isHeld(const QString &id) const;
    PortalSession *sessionWith(const QString &id) const;
    void gather();
    void bindGathered();
    PortalSession *newSession();
    void introduceProgram(PortalSession *session, const std::function<void()> &next);
    void settle(PortalSession *session, const QString &reason);
    void activate(PortalSession *session, const QString &id);
    void lose(PortalSession *ended, const QString &reason);
    void setState(Registrations::iterator registration, OlvShortcut::State state,
                  Emissions *emissions);
    void addEmission(OlvShortcut *shortcut, const std::function<void(OlvShortcut *)> &emission,
                     Emissions *emissions) const;
    void endIfUnused(PortalSession *session);

    QDBusConnection m_connection;
    Registrations m_registrations;
    Sessions m_sessions;
    QTimer m_gathering;
    /** What could not be asked for, until a warning tells of it. Only of the backend's thread. */
    QStringList m_withoutBus;
    int m_sessionCount = 0;
    /** Whether the portal has been told the program's name. */
    bool m_isIntroduced = false;
};
