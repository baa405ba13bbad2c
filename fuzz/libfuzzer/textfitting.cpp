// SPDX-License-Identifier: MIT
#include "fuzztarget.h"

#include <OlvWidgets/foundation.h>

#include <QFontInfo>
#include <QFontMetrics>
#include <QGuiApplication>

#include <array>

/** The documented rules, implemented a second time in the simplest way. */
namespace Plain {

bool isDigit(QChar character)
{
    return character.unicode() >= 48 && character.unicode() <= 57;
}

bool isLetter(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 65 && code <= 90) || (code >= 97 && code <= 122);
}

int run(const QString &text, QChar next)
{
    int length = 0;
    for (int i = text.size() - 1; i >= 0; --i) {
        const bool belongs =
            (isDigit(next) && isDigit(text[i])) || (isLetter(next) && isLetter(text[i]));
        if (!belongs) {
            break;
        }
        ++length;
    }
    return length;
}

int fitting(const QString &text, int width, const QFontMetrics &metrics)
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

int lines(const QString &text, int width, const QFontMetrics &metrics)
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

int pointSize(const QString &text, const QSize &box, QFont font)
{
    const auto isHighEnough = [&] {
        const QFontMetrics metrics(font);
        return static_cast<long long>(lines(text, box.width(), metrics)) * metrics.lineSpacing()
            <= box.height();
    };
    if (isHighEnough()) {
        return font.pointSize();
    }
    int size = font.pointSize() > 0 ? font.pointSize() - 1 : QFontInfo(font).pointSize();
    while (size > 1) {
        font.setPointSize(size);
        if (isHighEnough()) {
            return size;
        }
        --size;
    }
    return 1;
}

QSize size(const QString &text, const QFontMetrics &metrics)
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
    height += text.count(QLatin1Char('\n')) * metrics.lineSpacing();
    return QSize(width, height);
}

} // namespace Plain

namespace {

const QFont &fontOf(int choice)
{
    static const std::array<QFont, 6> fonts = [] {
        std::array<QFont, 6> made{ QFont(QStringLiteral("DejaVu Sans"), 9),
                                   QFont(QStringLiteral("DejaVu Sans"), 14),
                                   QFont(QStringLiteral("宋体"), 9),
                                   QFont(QStringLiteral("FontAwesome"), 12),
                                   QFont(QStringLiteral("DejaVu Sans Mono"), 2),
                                   QFont(QStringLiteral("DejaVu Sans")) };
        made.back().setPixelSize(13);
        for (size_t i = 1; i < made.size(); ++i) {
            // Qt would search all fonts each time for a character that none has
            made[i].setStyleStrategy(QFont::NoFontMerging);
        }
        return made;
    }();
    // the first one searches the other fonts, and takes as long as all the rest
    return fonts[choice == 0 ? 0 : 1 + size_t(choice) % (fonts.size() - 1)];
}

/**
 * Has Qt measure every character. The advance of an unprintable one changes once Qt has searched
 * the other fonts for a character, so that the comparison has to come after that.
 */
void settle(const QString &text, const QFont &font)
{
    const QFontMetrics metrics(font);
    for (const QChar character : text) {
        metrics.horizontalAdvance(character);
    }
    metrics.horizontalAdvance(text);
}

void settleSmallerSizes(const QString &text, QFont font)
{
    for (int size = qMax(font.pointSize(), QFontInfo(font).pointSize()); size > 0; --size) {
        font.setPointSize(size);
        settle(text, font);
    }
}

/** Mostly the width of a few characters; any int at times. */
int lengthOf(FuzzInput &input)
{
    const int choice = input.byte();
    return choice == 255 ? input.number() : choice * 2 - 10;
}

} // namespace

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // never deleted, since it is needed until the program ends
    new QGuiApplication(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    const int choice = input.byte();
    const QFont &font = fontOf(choice);
    const bool isLatin = choice & 0x80;
    const int width = lengthOf(input);
    const int height = lengthOf(input);
    const QChar next = isLatin ? QChar(ushort(input.byte())) : QChar(ushort(input.word()));
    QString text;
    while (isLatin && !input.isEmpty() && text.size() < 80) {
        text.append(QChar(ushort(input.byte())));
    }
    text.append(input.text(12));

    settle(text, font);
    const QFontMetrics metrics(font);
    require(OlvGlobal::rightDocumentLine(text, next) == Plain::run(text, next), "the run");
    require(OlvGlobal::accommodate(text, width, font) == Plain::fitting(text, width, metrics),
            "what fits");
    const int lines = Plain::lines(text, width, metrics);
    require(OlvGlobal::adaptDocumentOfLine(text, width, font) == lines, "the lines");
    require(OlvGlobal::adaptDocumentHeight(text, width, font) == lines * metrics.lineSpacing(),
            "the height");
    require(OlvGlobal::autoSize(text, font) == Plain::size(text, metrics), "the size");
    if (!(choice & 0x40)) {
        return 0; // what follows makes a font for each size, and takes most of the time
    }
    settleSmallerSizes(text, font);
    const QSize box(width, height);
    require(OlvGlobal::adaptDocumentToPointSize(text, box, font)
                == Plain::pointSize(text, box, font),
            "the point size");
    return 0;
}
