// SPDX-License-Identifier: MIT
#include "groups.h"
#include "support.h"

#include <OlvWidgets/buttons.h>

#include <QCoreApplication>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QPushButton>

namespace {

constexpr QRect buttonGeometry(10, 10, 120, 36);

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
}
