// SPDX-License-Identifier: MIT
#include "groups.h"
#include "onewindow.h"
#include "support.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/value.h>

#include <QCoreApplication>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

namespace {

constexpr QRect buttonGeometry(10, 10, 120, 36);
constexpr QRect sliderGeometry(10, 10, 200, 30);
constexpr int dragSteps = 10;
// the steps lead beyond the end of the track, so that every drag begins at one of its ends
constexpr int dragStep = 20; // pixels

/**
 * What the events cost until each has returned. A QPushButton paints itself at once, within the
 * handling of a press and of a click, while the library leaves painting to the event loop. Other
 * cases measure the same without any painting, and with all painting that the events cause.
 */
enum class Painting { AsItComes, None, Complete };

void showFor(Painting painting, QWidget &window)
{
    showAndWait(window);
    window.setUpdatesEnabled(painting != Painting::None);
    settle();
}

/** The pointer enters, clicks and leaves. @p clicks counts the signals of the button. */
void measureVisits(benchmark::State &state, Painting painting, QWidget &window, QWidget &button,
                   const int &clicks)
{
    button.setGeometry(buttonGeometry);
    showFor(painting, window);
    const QPointF centre(button.rect().center());
    const QPointF global(button.mapToGlobal(centre.toPoint()));
    QEnterEvent entered(centre, centre, global);
    QMouseEvent pressed(QEvent::MouseButtonPress, centre, global, Qt::LeftButton, Qt::LeftButton,
                        Qt::NoModifier);
    QMouseEvent released(QEvent::MouseButtonRelease, centre, global, Qt::LeftButton, Qt::NoButton,
                         Qt::NoModifier);
    QEvent left(QEvent::Leave);
    const auto send = [&](QEvent &event) {
        QCoreApplication::sendEvent(&button, &event);
        if (painting == Painting::Complete) {
            paintUpdates(window);
        }
    };
    while (state.KeepRunning()) {
        send(entered);
        send(pressed);
        send(released);
        send(left);
    }
    if (clicks != int(state.iterations())) {
        state.SkipWithError("not every visit was a click");
    }
}

void visitLibrary(benchmark::State &state, Painting painting)
{
    int clicks = 0;
    QWidget window;
    auto *button = new OlvButton(QStringLiteral("Save as PDF"), &window);
    QObject::connect(button, &OlvButton::clicked, &window, [counter = &clicks] { ++*counter; });
    measureVisits(state, painting, window, *button, clicks);
}

void visitPushButton(benchmark::State &state, Painting painting, const QString &styleSheet)
{
    int clicks = 0;
    QWidget window;
    auto *button = new QPushButton(QStringLiteral("Save as PDF"), &window);
    button->setStyleSheet(styleSheet);
    QObject::connect(button, &QPushButton::clicked, &window, [counter = &clicks] { ++*counter; });
    measureVisits(state, painting, window, *button, clicks);
}

/** Drags the knob in several steps of @p step pixels, and releases it. */
void dragKnob(QWidget &knob, int step)
{
    QPointF place(knob.rect().center());
    sendMouse(knob, QEvent::MouseButtonPress, place);
    // the position is relative to the knob, which follows the pointer, and so is the same each time
    for (int i = 0; i < dragSteps; ++i) {
        sendMouse(knob, QEvent::MouseMove, place + QPointF(step, 0));
    }
    sendMouse(knob, QEvent::MouseButtonRelease, place);
}

void dragLibrary(benchmark::State &state)
{
    QWidget window;
    auto *slider = new OlvSlider(&window);
    slider->setGeometry(sliderGeometry);
    showFor(Painting::AsItComes, window);
    QWidget *knob = slider->childAt(QPoint(15, 15));
    int step = dragStep;
    while (state.KeepRunning()) {
        dragKnob(*knob, step);
        step = -step;
    }
    dragKnob(*knob, step);
    const int first = slider->getValue().toInt();
    dragKnob(*knob, -step);
    if (qAbs(slider->getValue().toInt() - first) != 100) {
        state.SkipWithError("the drag does not move the slider");
    }
}

QRect handleOf(const QSlider &slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = Qt::Horizontal;
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    option.sliderValue = slider.value();
    option.subControls = QStyle::SC_All;
    option.state |= QStyle::State_Horizontal;
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                          &slider);
}

void dragHandle(QSlider &slider, QPointF from, int step)
{
    sendMouse(slider, QEvent::MouseButtonPress, from);
    for (int i = 1; i <= dragSteps; ++i) {
        sendMouse(slider, QEvent::MouseMove, from + QPointF(i * step, 0));
    }
    sendMouse(slider, QEvent::MouseButtonRelease, from + QPointF(dragSteps * step, 0));
}

void dragQtSlider(benchmark::State &state, const QString &styleSheet)
{
    QWidget window;
    auto *slider = new QSlider(Qt::Horizontal, &window);
    slider->setStyleSheet(styleSheet);
    slider->setRange(0, 100);
    slider->setGeometry(sliderGeometry);
    showFor(Painting::AsItComes, window);
    slider->setValue(slider->maximum());
    const QPointF end(handleOf(*slider).center());
    slider->setValue(slider->minimum());
    const QPointF start(handleOf(*slider).center());
    bool forward = true;
    const auto drag = [&] {
        dragHandle(*slider, forward ? start : end, forward ? dragStep : -dragStep);
        forward = !forward;
    };
    while (state.KeepRunning()) {
        drag();
    }
    drag();
    const int first = slider->value();
    drag();
    if (qAbs(slider->value() - first) != 100) {
        state.SkipWithError("the drag does not move the slider");
    }
}

void addVisits(const std::string &name, Painting painting)
{
    const QString styleSheet =
        QStringLiteral("QPushButton { background-color: #409eff; color: white;"
                       "              border: none; border-radius: 7px; }"
                       "QPushButton:hover { background-color: #66b1ff; }"
                       "QPushButton:pressed { background-color: #3a8ee6; }");
    addBenchmark(name + "/library",
                 [=](benchmark::State &state) { visitLibrary(state, painting); });
    addBenchmark(name + "/fusion",
                 [=](benchmark::State &state) { visitPushButton(state, painting, {}); });
    addBenchmark(name + "/sheet",
                 [=](benchmark::State &state) { visitPushButton(state, painting, styleSheet); });
}

} // namespace

void addButtonEvents()
{
    addVisits("button-events", Painting::AsItComes);
    addVisits("button-events-unpainted", Painting::None);
    addVisits("button-events-painted", Painting::Complete);
    addBenchmark("slider-drag/library", dragLibrary);
    addBenchmark("slider-drag/fusion", [](benchmark::State &state) { dragQtSlider(state, {}); });
    addBenchmark("slider-drag/sheet",
                 [](benchmark::State &state) { dragQtSlider(state, sliderStyleSheet()); });
}
