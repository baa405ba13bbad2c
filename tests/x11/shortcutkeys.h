// SPDX-License-Identifier: MIT
#pragma once

#include "realinput.h"

#include <OlvShortcut>

#include <QProcess>
#include <QTest>

// symbols of X's keysymdef.h
constexpr quint32 symbolControl = 0xffe3;
constexpr quint32 symbolShift = 0xffe1;
constexpr quint32 symbolF5 = 0xffc2;
constexpr int maskControl = 4;

inline OlvShortcut *ctrl(Qt::Key key)
{
    return new OlvShortcut(key, true, false, false, false);
}

inline void setLayout(const char *layout)
{
    QCOMPARE(QProcess::execute(QStringLiteral("setxkbmap"), { QLatin1String(layout) }), 0);
}

inline void pressWithControl(RealInput &input, quint32 symbol)
{
    // A press in the same millisecond as the release before it counts as the repetition of a held
    // key.
    QTest::qWait(5);
    input.pressKey(symbolControl);
    input.pressKey(symbol);
    input.releaseKey(symbol);
    input.releaseKey(symbolControl);
}
