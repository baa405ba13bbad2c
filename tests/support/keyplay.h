// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QKeyEvent>
#include <QString>
#include <QStringList>

inline int keyOf(const QString &name)
{
    static const QHash<QString, int> keys{
        { QStringLiteral("ctrl"), Qt::Key_Control },  { QStringLiteral("shift"), Qt::Key_Shift },
        { QStringLiteral("alt"), Qt::Key_Alt },       { QStringLiteral("meta"), Qt::Key_Meta },
        { QStringLiteral("esc"), Qt::Key_Escape },    { QStringLiteral("back"), Qt::Key_Backspace },
        { QStringLiteral("super"), Qt::Key_Super_L }, { QStringLiteral("f5"), Qt::Key_F5 },
    };
    return keys.value(name, name.at(0).toUpper().unicode());
}

/** Plays "+ctrl +a -a": presses and releases. */
inline void play(QObject &edit, const QString &events)
{
    const QStringList names = events.split(QLatin1Char(' '));
    for (const QString &name : names) {
        const bool isPress = name.at(0) == QLatin1Char('+');
        QKeyEvent event(isPress ? QEvent::KeyPress : QEvent::KeyRelease, keyOf(name.mid(1)),
                        Qt::NoModifier);
        QCoreApplication::sendEvent(&edit, &event);
    }
}
