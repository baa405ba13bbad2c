// SPDX-License-Identifier: MIT
#pragma once

#include <QFontInfo>
#include <QFontMetrics>
#include <QString>
#include <QStringList>

/**
 * What OlvGlobal's text fitting has to give, found by its documented rules in the plainest way.
 * Tests and fuzz targets compare the library with it.
 */
namespace Slowly {

inline bool isDigit(QChar character)
{
    return character.unicode() >= 48 && character.unicode() <= 57;
}

inline bool isLetter(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 65 && code <= 90) || (code >= 97 && code <= 122);
}

/** rightDocumentLine() */
inline int run(const QString &text, QChar next)
{
    int length = 0;
    for (int i = int(text.size()) - 1; i >= 0; --i) {
        const bool belongs =
            (isDigit(next) && isDigit(text[i])) || (isLetter(next) && isLetter(text[i]));
        if (!belongs) {
            break;
        }
        ++length;
    }
    return length;
}

/** accommodate() */
inline int fitting(const QString &text, int width, const QFontMetrics &metrics)
{
    long long sum = 0;
    int count = 0;
    for (const QChar character : text) {
        sum += metrics.horizontalAdvance(character);
        if (sum >= width) {
            break;
        }
        ++count;
    }
    return count;
}

/** adaptDocumentOfLine() */
inline int lines(const QString &text, int width, const QFontMetrics &metrics)
{
    int count = 0;
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    for (QString rest : paragraphs) {
        while (!rest.isEmpty()) {
            ++count;
            const int taken = fitting(rest, width, metrics);
            if (taken == rest.size()) {
                break;
            }
            const int carried = run(rest.left(taken), rest[taken]);
            // a run that is wider than a line is split, and a line takes a character at least
            rest = rest.mid(qMax(1, carried == taken ? taken : taken - carried));
        }
    }
    return count;
}

/** Whether the text is no higher than the box. */
inline bool fits(const QString &text, const QSize &box, const QFont &font)
{
    const QFontMetrics metrics(font);
    return static_cast<long long>(lines(text, box.width(), metrics)) * metrics.lineSpacing()
        <= box.height();
}

/** adaptDocumentToPointSize(), by trying one size after the other */
inline int pointSize(const QString &text, const QSize &box, QFont font)
{
    if (fits(text, box, font)) {
        return font.pointSize();
    }
    int size = font.pointSize() > 0 ? font.pointSize() - 1 : QFontInfo(font).pointSize();
    while (size > 1) {
        font.setPointSize(size);
        if (fits(text, box, font)) {
            return size;
        }
        --size;
    }
    return 1;
}

/** autoSize() */
inline QSize size(const QString &text, const QFontMetrics &metrics)
{
    int width = 0;
    int height = metrics.lineSpacing();
    QString line;
    for (const QChar character : text + QLatin1Char('\n')) {
        if (character != QLatin1Char('\n')) {
            line.append(character);
            continue;
        }
        width += metrics.horizontalAdvance(line);
        line.clear();
    }
    height += int(text.count(QLatin1Char('\n'))) * metrics.lineSpacing();
    return QSize(width, height);
}

} // namespace Slowly
