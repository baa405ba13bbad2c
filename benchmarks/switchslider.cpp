// SPDX-License-Identifier: MIT
#include "groups.h"
#include "onewindow.h"
#include "prepared.h"
#include "support.h"

#include <OlvWidgets/value.h>

#include <QSlider>

namespace {

constexpr QRect switchGeometry(10, 10, 50, 24);
constexpr QRect sliderGeometry(10, 10, 200, 30);

void measureShown(benchmark::State &state, QWidget &window, QWidget &widget)
{
    showAndWait(window);
    measurePainting(state, widget);
}

void paintSwitch(benchmark::State &state)
{
    QWidget window;
    auto *library = new OlvSwitch(&window);
    library->setGeometry(switchGeometry);
    measureShown(state, window, *library);
}

void paintSlider(benchmark::State &state)
{
    QWidget window;
    auto *library = new OlvSlider(&window);
    library->setGeometry(sliderGeometry);
    measureShown(state, window, *library);
}

void paintQtSlider(benchmark::State &state, const QString &styleSheet)
{
    QWidget window;
    auto *slider = new QSlider(Qt::Horizontal, &window);
    slider->setStyleSheet(styleSheet);
    slider->setGeometry(sliderGeometry);
    measureShown(state, window, *slider);
}

void paintUndrawnSwitch(benchmark::State &state)
{
    QWidget window;
    const OlvSwitch library;
    auto *undrawn = new UndrawnWidget(library, { "switch", "openColor" }, &window);
    undrawn->setGeometry(switchGeometry);
    auto *knob = new UndrawnWidget(QWidget(), {}, undrawn);
    knob->setGeometry(0, 0, switchGeometry.height(), switchGeometry.height());
    measureShown(state, window, *undrawn);
}

template <typename Library>
void paintPrepared(benchmark::State &state, PreparedPair (*prepare)(QWidget *),
                   const QRect &geometry)
{
    QWidget window;
    auto *same = new Library(&window);
    same->setGeometry(geometry);
    QWidget *floor = prepare(&window).track;
    floor->setGeometry(geometry);
    showAndWait(window);
    if (pictureOf(*floor) != pictureOf(*same)) {
        state.SkipWithError("the floor draws something else than the library");
        return;
    }
    measurePainting(state, *floor);
}

} // namespace

void addSwitchAndSlider()
{
    addBenchmark("switch/library", paintSwitch);
    addBenchmark("switch/floor", [](benchmark::State &state) {
        paintPrepared<OlvSwitch>(state, prepareSwitch, switchGeometry);
    });
    addBenchmark("switch/undrawn", paintUndrawnSwitch);
    addBenchmark("slider/library", paintSlider);
    addBenchmark("slider/floor", [](benchmark::State &state) {
        paintPrepared<OlvSlider>(state, prepareSlider, sliderGeometry);
    });
    addBenchmark("slider/fusion", [](benchmark::State &state) { paintQtSlider(state, {}); });
    addBenchmark("slider/sheet",
                 [](benchmark::State &state) { paintQtSlider(state, sliderStyleSheet()); });
}
