// SPDX-License-Identifier: MIT
#include "fuzztarget.h"
#include "wrappedslowly.h"

#include <OlvWidgets/foundation.h>

#include <QFontInfo>
#include <QFontMetrics>
#include <QGuiApplication>

#include <array>

namespace {

const QFont &fontOf(int choice)
{
    static const std::array<QFont, 7> fonts = [] {
        std::array<QFont, 7> made{ QFont(QStringLiteral("DejaVu Sans"), 9),
                                   QFont(QStringLiteral("DejaVu Sans"), 14),
                                   QFont(QStringLiteral("宋体"), 9),
                                   QFont(QStringLiteral("FontAwesome"), 12),
                                   QFont(QStringLiteral("DejaVu Sans Mono"), 2),
                                   QFont(QStringLiteral("DejaVu Sans"), 150),
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
    require(OlvGlobal::rightDocumentLine(text, next) == Slowly::run(text, next), "the run");
    require(OlvGlobal::accommodate(text, width, font) == Slowly::fitting(text, width, metrics),
            "what fits");
    const int lines = Slowly::lines(text, width, metrics);
    require(OlvGlobal::adaptDocumentOfLine(text, width, font) == lines, "the lines");
    require(OlvGlobal::adaptDocumentHeight(text, width, font) == lines * metrics.lineSpacing(),
            "the height");
    require(OlvGlobal::autoSize(text, font) == Slowly::size(text, metrics), "the size");
    if (!(choice & 0x40)) {
        return 0; // what follows makes a font for each size, and takes most of the time
    }
    settleSmallerSizes(text, font);
    const QSize box(width, height);
    require(OlvGlobal::adaptDocumentToPointSize(text, box, font)
                == Slowly::pointSize(text, box, font),
            "the point size");
    return 0;
}
