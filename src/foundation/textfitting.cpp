// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <QFontInfo>
#include <QFontMetrics>

#include <array>
#include <bitset>
#include <limits>

namespace {

constexpr int smallestPointSize = 1;
/** The sizes from here downwards are tried one by one. */
constexpr int largestTriedPointSize = 48;
/** What a length in pixels may differ by from the one that its font's size makes it. */
constexpr int slack = 2;
constexpr QLatin1Char newline('\n');

/** A length in pixels; one that no int holds becomes the largest that an int holds. */
int toInt(qint64 length)
{
    return int(qMin<qint64>(length, std::numeric_limits<int>::max()));
}

/** The advances of single characters, each measured once: a wrapped text asks for them many times.
 */
class Advances
{
public:
    explicit Advances(const QFont &font)
        : m_metrics(font)
    { }

    int of(QChar character)
    {
        const ushort code = character.unicode();
        if (code >= m_latin1.size()) {
            const auto found = m_others.constFind(code);
            return found != m_others.cend()
                ? *found
                : *m_others.insert(code, m_metrics.horizontalAdvance(character));
        }
        if (!m_isKnown[code]) {
            m_isKnown[code] = true;
            m_latin1[code] = m_metrics.horizontalAdvance(character);
        }
        return m_latin1[code];
    }

    int lineSpacing() const
    {
        // Qt 6 gives fonts of more than about 17,000 pixels a negative one
        const int spacing = m_metrics.lineSpacing();
        return spacing < 0 ? std::numeric_limits<int>::max() : spacing;
    }

private:
    QFontMetrics m_metrics;
    std::bitset<256> m_isKnown;
    // not filled at first: a short caption asks for fewer advances than filling it would cost
    std::array<int, 256> m_latin1;
    QHash<ushort, int> m_others;
};

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool isLetter(QChar character)
{
    return (character >= QLatin1Char('a') && character <= QLatin1Char('z'))
        || (character >= QLatin1Char('A') && character <= QLatin1Char('Z'));
}

/** The length of the run before @p end, not beyond @p begin, of the class that @p next is of. */
int runBefore(const QChar *begin, const QChar *end, QChar next)
{
    const auto isOfClass = isDigit(next) ? isDigit : isLetter;
    if (!isOfClass(next)) {
        return 0;
    }
    const QChar *start = end;
    while (start != begin && isOfClass(*(start - 1))) {
        --start;
    }
    return int(end - start);
}

int fittingCharacters(const QChar *begin, const QChar *end, int width, Advances &advances)
{
    qint64 sum = 0;
    for (const QChar *character = begin; character != end; ++character) {
        sum += advances.of(*character);
        if (sum >= width) {
            return int(character - begin);
        }
    }
    return int(end - begin);
}

/** How many characters of a text without newlines the next line takes: at least one. */
int charactersOfLine(const QChar *begin, const QChar *end, int width, Advances &advances)
{
    const int fitting = fittingCharacters(begin, end, width, advances);
    if (begin + fitting == end) {
        return fitting;
    }
    const int carried = runBefore(begin, begin + fitting, begin[fitting]);
    // a run as long as the line cannot be carried over: it would never end
    return qMax(carried < fitting ? fitting - carried : fitting, 1);
}

/** The wrapped lines of @p text; wrapping stops where one more than @p most begins. */
int wrappedLines(const QString &text, int width, Advances &advances,
                 int most = std::numeric_limits<int>::max() - 1)
{
    const QChar *const begin = text.constData();
    const QChar *const end = begin + text.size();
    const QChar *position = begin;
    int lines = 0;
    while (position != end) {
        const auto found = text.indexOf(newline, int(position - begin));
        const QChar *const paragraphEnd = found < 0 ? end : begin + found;
        while (position != paragraphEnd) {
            if (lines == most) {
                return most + 1;
            }
            position += charactersOfLine(position, paragraphEnd, width, advances);
            ++lines;
        }
        if (position != end) {
            ++position; // the newline itself
        }
    }
    return lines;
}

bool fits(const QString &text, const QSize &box, Advances &advances)
{
    if (box.height() < 0) {
        return false;
    }
    const int most = box.height() / qMax(advances.lineSpacing(), 1);
    return wrappedLines(text, box.width(), advances, most) <= most;
}

/**
 * Whether @p text, which is too high for @p box at the size of @p advances, may fit at a size
 * between half of that and that one.
 *
 * Half the size makes everything half as large, but for what rounding, hinting and small bitmaps do
 * to it: a length is taken to be at least a quarter of what it was, less the slack, and at most as
 * large plus the slack. A line is narrower than the box unless it has one character alone.
 */
bool mayFitAboveHalf(const QString &text, const QSize &box, Advances &advances)
{
    qint64 length = 0;
    int widest = box.width();
    for (const QChar character : text) {
        if (character != newline) {
            const int advance = advances.of(character);
            length += qMax(advance / 4 - slack, 0);
            widest = qMax(widest, advance + slack);
        }
    }
    const qint64 lines = qMax<qint64>(length / qMax(widest, 1), 1);
    const qint64 spacing = advances.lineSpacing() / 4 - slack;
    return lines * spacing <= box.height();
}

} // namespace

int OlvGlobal::rightDocumentLine(const QString &text, const QChar &next)
{
    return runBefore(text.constData(), text.constData() + text.size(), next);
}

int OlvGlobal::accommodate(const QString &text, int width, const QFont &font)
{
    Advances advances(font);
    return fittingCharacters(text.constData(), text.constData() + text.size(), width, advances);
}

QSize OlvGlobal::autoSize(const QString &text, const QFont &font)
{
    const QFontMetrics metrics(font);
    const QStringList lines = text.split(newline);
    qint64 width = 0;
    for (const QString &line : lines) {
        width += metrics.horizontalAdvance(line);
    }
    return QSize(toInt(width), toInt(qint64(lines.size()) * metrics.lineSpacing()));
}

int OlvGlobal::adaptDocumentOfLine(QString text, int width, const QFont &font)
{
    Advances advances(font);
    return wrappedLines(text, width, advances);
}

int OlvGlobal::adaptDocumentHeight(const QString &text, int width, const QFont &font)
{
    return toInt(qint64(adaptDocumentOfLine(text, width, font)) * QFontMetrics(font).lineSpacing());
}

int OlvGlobal::adaptDocumentToPointSize(const QString &text, const QSize &box, QFont font)
{
    {
        Advances advances(font);
        if (fits(text, box, advances)) {
            return font.pointSize();
        }
    }
    // a font sized in pixels has no point size to start below
    int pointSize = font.pointSize() > 0 ? font.pointSize() - 1 : QFontInfo(font).pointSize();
    while (pointSize > smallestPointSize) {
        font.setPointSize(pointSize);
        Advances advances(font);
        if (fits(text, box, advances)) {
            return pointSize;
        }
        const bool isFarAbove =
            pointSize > largestTriedPointSize && !mayFitAboveHalf(text, box, advances);
        pointSize = isFarAbove ? pointSize / 2 : pointSize - 1;
    }
    return smallestPointSize;
}
