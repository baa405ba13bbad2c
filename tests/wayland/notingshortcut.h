// SPDX-License-Identifier: MIT
#pragma once

#include "patience.h"

#include <OlvShortcut>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTest>

/** A shortcut of Ctrl and a key, which notes its changes of state and counts its presses. */
class NotingShortcut : public OlvShortcut
{
public:
    explicit NotingShortcut(Qt::Key key)
        : OlvShortcut(key, true, false, false, false)
    {
        connect(this, &OlvShortcut::stateChanged, this, [this](State state) { states += state; });
        connect(this, &OlvShortcut::activated, this, [this] { ++presses; });
    }

    QVector<State> states;
    int presses = 0;
};

/** The id of Ctrl and a key, by the name that the portal gets for the key. */
inline QString portalId(const char *key)
{
    return QCoreApplication::applicationName() + QStringLiteral("_CTRL_") + QLatin1String(key);
}

/** Expects one warning that no shortcuts are to be had, for a reason. */
inline void expectWarning(const char *reason)
{
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression(QStringLiteral("No shortcuts .*: %1").arg(QLatin1String(reason))));
}
