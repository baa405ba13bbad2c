// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QString>
#include <QStringList>

/** What a line of a text without newlines takes, found the slow way, by the rules as they are told.
 */
inline int expectedLine(const QString &text, int width, const QFontMetrics &metrics)
{
    int sum = 0;
    int fitting = 0;
    while (fitting < text.size()) {
        sum += metrics.horizontalAdvance(text.at(fitting));
        if (sum >= width) {
            break;
        }
        ++fitting;
    }
    if (fitting == text.size()) {
        return fitting;
    }
    const QString digits = QStringLiteral("0123456789");
    const QString letters = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    int carried = 0;
    for (const QString &kind : { digits, letters }) {
        if (kind.contains(text.at(fitting))) {
            while (carried < fitting && kind.contains(text.at(fitting - 1 - carried))) {
                ++carried;
            }
        }
    }
    if (carried == fitting) {
        return fitting == 0 ? 1 : fitting;
    }
    return fitting - carried;
}

inline int expectedLines(const QString &text, int width, const QFont &font)
{
    const QFontMetrics metrics(font);
    int lines = 0;
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    for (QString rest : paragraphs) {
        while (!rest.isEmpty()) {
            rest = rest.mid(expectedLine(rest, width, metrics));
            ++lines;
        }
    }
    return lines;
}
