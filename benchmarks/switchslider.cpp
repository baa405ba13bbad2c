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
constexpr QColor blue(64, 158, 255);

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

/** A track and its knob, two widgets as the library has them. */
QWidget *preparedPair(const PreparedDrawing &track, const PreparedDrawing &knob,
                      const QRect &knobGeometry, QWidget *parent)
{
    auto *widget = new PreparedWidget(track, parent);
    auto *child = new PreparedWidget(knob, widget);
    child->setGeometry(knobGeometry);
    return widget;
}

QWidget *preparedSwitch(QWidget *parent)
{
    PreparedDrawing track;
    track.brush = QColor(220, 223, 230);
    track.rect = QRectF(0, 0, 50, 24);
    track.radius = 12;
    PreparedDrawing knob;
    knob.brush = QColor(Qt::white);
    knob.rect = QRectF(2, 2, 20, 20);
    knob.radius = PreparedDrawing::ellipse;
    return preparedPair(track, knob, QRect(0, 0, 24, 24), parent);
}

QWidget *preparedSlider(QWidget *parent)
{
    PreparedDrawing track;
    track.brush = blue;
    track.rect = QRectF(15, 10, 170, 10);
    track.radius = 5;
    PreparedDrawing knob;
    knob.pen = QPen(blue, 2.0);
    knob.brush = QColor(Qt::white);
    knob.rect = QRectF(2, 2, 16, 16);
    knob.radius = PreparedDrawing::ellipse;
    return preparedPair(track, knob, QRect(5, 5, 20, 20), parent);
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
void paintPrepared(benchmark::State &state, QWidget *(*prepare)(QWidget *), const QRect &geometry)
{
    QWidget window;
    auto *same = new Library(&window);
    same->setGeometry(geometry);
    QWidget *floor = prepare(&window);
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
        paintPrepared<OlvSwitch>(state, preparedSwitch, switchGeometry);
    });
    addBenchmark("switch/undrawn", paintUndrawnSwitch);
    addBenchmark("slider/library", paintSlider);
    addBenchmark("slider/floor", [](benchmark::State &state) {
        paintPrepared<OlvSlider>(state, preparedSlider, sliderGeometry);
    });
    addBenchmark("slider/fusion", [](benchmark::State &state) { paintQtSlider(state, {}); });
    addBenchmark("slider/sheet",
                 [](benchmark::State &state) { paintQtSlider(state, sliderStyleSheet()); });
}
