// SPDX-License-Identifier: MIT
#include "groups.h"
#include "heldexpose.h"
#include "onewindow.h"
#include "support.h"

#include <OlvWidgets/buttons.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QGridLayout>
#include <QPushButton>
#include <QTimer>

#include <memory>

namespace {

constexpr int buttonCount = 1000;
constexpr int columnCount = 20;
constexpr int watchedTime = 1000; // milliseconds
constexpr int minute = 60000;     // milliseconds

/** From nothing to the first paint, but for the wait for the window system. */
void measureStart(benchmark::State &state, void (*makeWidgets)(QWidget *))
{
    measureFirstPaint(state, [makeWidgets] {
        auto window = std::make_unique<QWidget>();
        makeWidgets(window.get());
        return window;
    });
}

/** How often the event loop wakes up in the watched time, at its end included. */
int countWakeUps()
{
    int count = 0;
    QEventLoop loop;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &loop,
                     [&count] { ++count; });
    QTimer::singleShot(watchedTime, &loop, &QEventLoop::quit);
    loop.exec();
    return count;
}

/** What a window that nobody touches wakes the program for, beyond what wakes it without the
 * window. */
void measureIdling(benchmark::State &state, void (*makeWidgets)(QWidget *))
{
    settle();
    int count = 0;
    while (state.KeepRunning()) {
        const int without = countWakeUps();
        QWidget window;
        makeWidgets(&window);
        showAndWait(window);
        settle();
        count = countWakeUps() - without;
    }
    state.counters["wakeups"] = double(count) * minute / watchedTime;
}

/** A window of many buttons whose edge the user drags: each step is laid out and painted. */
template <typename Button> void measureWidening(benchmark::State &state, const QString &sheet)
{
    QWidget window;
    window.setStyleSheet(sheet);
    auto *layout = new QGridLayout(&window);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    QWidget *last = nullptr;
    for (int i = 0; i < buttonCount; ++i) {
        auto *button = new Button(QString::number(i), &window);
        button->setMinimumSize(40, 18);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        layout->addWidget(button, i / columnCount, i % columnCount);
        last = button;
    }
    window.resize(1200, 1400);
    showAndWait(window);
    const int before = last->width();
    int width = window.width();
    while (state.KeepRunning()) {
        width = width == 1200 ? 1240 : 1200;
        window.resize(width, window.height());
        QCoreApplication::sendPostedEvents();
    }
    window.resize(1240, window.height());
    settle();
    if (last->width() == before) {
        state.SkipWithError("the buttons did not follow the window");
    }
}

} // namespace

void addWindows()
{
    addBenchmark("window-start/library",
                 [](benchmark::State &state) { measureStart(state, makeLibraryWidgets); });
    addBenchmark("window-start/sheet",
                 [](benchmark::State &state) { measureStart(state, makeStyledWidgets); });
    addBenchmark("window-idle/library", [](benchmark::State &state) {
        measureIdling(state, makeLibraryWidgets);
    })->Iterations(1);
    addBenchmark("window-widen/library",
                 [](benchmark::State &state) { measureWidening<OlvButton>(state, QString()); });
    addBenchmark("window-widen/fusion",
                 [](benchmark::State &state) { measureWidening<QPushButton>(state, QString()); });
    addBenchmark("window-widen/sheet", [](benchmark::State &state) {
        measureWidening<QPushButton>(state, styleSheet());
    });
}
