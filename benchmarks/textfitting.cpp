// SPDX-License-Identifier: MIT
#include "groups.h"
#include "support.h"

#include <OlvWidgets/foundation.h>

#include <QFontMetrics>

namespace {

constexpr QSize box(120, 36);
constexpr int captionPointSize = 9;
constexpr int textLengths[] = { 5, 20, 80, 320, 1280 };

QFont captionFont()
{
    return QFont(QStringLiteral("宋体"), captionPointSize);
}

QString textOf(int characters)
{
    const QString words =
        QStringLiteral("Every widget of the window keeps its place 24 pixels from the edge. ");
    return words.repeated(characters / words.size() + 1).left(characters);
}

void fitByLibrary(benchmark::State &state, const QString &text)
{
    const QFont font = captionFont();
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(OlvGlobal::adaptDocumentToPointSize(text, box, font));
    }
}

/**
 * The least work of any search that tries one size after the other: it measures every character
 * once at each size. Breaking lines is left out, and the size at which to stop is known in advance.
 */
void measureAtEachSize(benchmark::State &state, const QString &text)
{
    const QFont font = captionFont();
    const int fitting = OlvGlobal::adaptDocumentToPointSize(text, box, font);
    while (state.KeepRunning()) {
        for (int pointSize = captionPointSize; pointSize >= fitting; --pointSize) {
            QFont tried = font;
            if (pointSize != captionPointSize) {
                tried.setPointSize(pointSize);
            }
            const QFontMetrics metrics(tried);
            int width = 0;
            for (const QChar character : text) {
                width += metrics.horizontalAdvance(character);
            }
            benchmark::DoNotOptimize(width);
        }
    }
}

} // namespace

void addTextFitting()
{
    for (const int length : textLengths) {
        const QString text = textOf(length);
        const std::string size = std::to_string(length);
        addBenchmark("text-fitting/library/" + size,
                     [text](benchmark::State &state) { fitByLibrary(state, text); });
        addBenchmark("text-fitting/measuring/" + size,
                     [text](benchmark::State &state) { measureAtEachSize(state, text); });
    }
}
