// SPDX-License-Identifier: MIT
#pragma once

#include "fakeportal.h"
#include "notingshortcut.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QTest>

#include <memory>

/** Longer than shortcuts are gathered, and the portal takes to answer. */
constexpr int settlingTime = 150; // milliseconds

/** The states that a shortcut has told. */
using States = QVector<OlvShortcut::State>;

/** The portal of a test's function, and what it takes that the next function has one of its own. */
struct PortalScene
{
    void begin()
    {
        portal = std::make_unique<FakePortal>();
    }
    void end()
    {
        QGuiApplication::setDesktopFileName(QString());
        exchange();
        if (portal) {
            QTRY_COMPARE(portal->bound(), QStringList());
        }
        portal.reset();
        exchange();
    }

    /** Registers and waits until it is granted. */
    void grant(OlvShortcut *shortcut) const
    {
        portal->forgetCalls();
        QVERIFY(!shortcut->active());
        QTRY_COMPARE(shortcut->state(), OlvShortcut::Active);
        portal->forgetCalls();
    }

    /** Waits until what the library and the portal have sent one another has arrived. */
    static void exchange()
    {
        const char *const library = "OlvSystemInfo";
        // the library's once more, for replies to what came by the first
        for (const char *name : { library, FakePortal::connectionName, library }) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const QDBusConnection connection{ QLatin1String(name) };
            if (connection.isConnected()) {
                // What a connection was sent before this reply comes before it.
                connection.call(QDBusMessage::createMethodCall(
                    QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                    QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
            }
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    std::unique_ptr<FakePortal> portal;
};
