// SPDX-License-Identifier: MIT
#include "groups.h"

#include <benchmark/benchmark.h>

#include <QApplication>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_SCALE_FACTOR", "1");
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);

    benchmark::AddCustomContext("Qt", qVersion());
    benchmark::AddCustomContext("compiler", "GCC " __VERSION__);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    addButtons();
    addSliderDrag();
    addSwitchAndSlider();
    addButtonEvents();
    addSwitchTicks();
    addEventFilter();
    addTextFitting();
    addColors();
    addManyButtons();
    addFlowGrid();
    addForms();
    addGridFilter();
    addWindows();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
