// SPDX-License-Identifier: MIT
// The memory of the caches of pixels when they are full: a program of its own, where they begin
// empty.
#include <OlvWidgets/buttons.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include <malloc.h>

namespace {

/** Many more than fit into the caches. */
constexpr int lookCount = 6000;
/** From its second drawing on a look is kept. */
constexpr int drawings = 3;

double heapInUse()
{
    const auto info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/** Draws a button again and again, each look of another size and caption than all before it. */
void drawLooks(OlvButton &button, QImage &image, int first)
{
    for (int i = first; i < first + lookCount; ++i) {
        button.setText(QStringLiteral("Page %1").arg(i, 6, 10, QLatin1Char('0')));
        button.resize(60 + i % 80, 24 + i / 80 % 40);
        for (int j = 0; j < drawings; ++j) {
            button.render(&image);
        }
    }
}

struct Costs
{
    double full;
    double again;
};

Costs fillCaches()
{
    QImage image(200, 100, QImage::Format_ARGB32_Premultiplied);
    OlvButton button(QStringLiteral("Page 0123456789"));
    button.resize(120, 36);
    button.render(&image); // loads the font
    const double empty = heapInUse();
    drawLooks(button, image, 0);
    const double full = heapInUse();
    drawLooks(button, image, lookCount);
    return { full - empty, heapInUse() - full };
}

void measureCaches(benchmark::State &state)
{
    static const Costs costs = fillCaches(); // they are never empty again
    while (state.KeepRunning()) { }
    state.counters["bytes"] = costs.full;
    state.counters["again"] = costs.again;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_SCALE_FACTOR", "1");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RegisterBenchmark("pixel-caches/library", measureCaches)->Iterations(1);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
