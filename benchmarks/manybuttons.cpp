// SPDX-License-Identifier: MIT
#include "groups.h"
#include "heldexpose.h"
#include "support.h"

#include <OlvWidgets/buttons.h>

#include <QPushButton>
#include <QVector>

#include <memory>

namespace {

constexpr int buttonCounts[] = { 1000, 3000, 10000 };
constexpr int heapButtonCount = 1000;
constexpr int sharedCaptionCount = 10;
constexpr QSize buttonSize(120, 36);
constexpr QSize windowSize(1280, 1024);

QString styleSheet()
{
    return QStringLiteral("QPushButton { background-color: #409eff; color: white; border: none;"
                          "              border-radius: 7px; font: 9pt \"宋体\"; }"
                          "QPushButton:hover { background-color: #66b1ff; }"
                          "QPushButton:pressed { background-color: #3a8ee6; }");
}

QString captionOf(int index)
{
    return QStringLiteral("Button %1").arg(index, 4, 10, QLatin1Char('0'));
}

QWidget *makeLibraryButton(int index, QWidget *window)
{
    return new OlvButton(captionOf(index), window);
}

QWidget *makePushButton(int index, QWidget *window)
{
    return new QPushButton(captionOf(index), window);
}

QWidget *makeStyledButton(int index, QWidget *window)
{
    auto *button = new QPushButton(captionOf(index), window);
    button->setStyleSheet(styleSheet());
    return button;
}

struct Contestant
{
    const char *name;
    QWidget *(*makeButton)(int index, QWidget *window);
    bool hasWindowSheet;
};

constexpr Contestant contestants[] = {
    { "/library", makeLibraryButton, false },
    { "/window-sheet", makePushButton, true },
    { "/button-sheets", makeStyledButton, false },
};

/**
 * All buttons lie side by side within the window, one above the other where it has no more room.
 * No more than @p captionCount captions are different.
 */
std::unique_ptr<QWidget> makeWindow(const Contestant &contestant, int count, int captionCount)
{
    auto window = std::make_unique<QWidget>();
    window->resize(windowSize);
    if (contestant.hasWindowSheet) {
        window->setStyleSheet(styleSheet());
    }
    const int columns = windowSize.width() / buttonSize.width();
    const int rows = windowSize.height() / buttonSize.height();
    for (int i = 0; i < count; ++i) {
        const int place = i % (columns * rows);
        QWidget *button = contestant.makeButton(i % captionCount, window.get());
        button->setGeometry(QRect(
            QPoint(place % columns * buttonSize.width(), place / columns * buttonSize.height()),
            buttonSize));
    }
    return window;
}

/** The heap in use while a window of @p count buttons is shown. */
double heapOfShown(const Contestant &contestant, int count)
{
    const auto window = makeWindow(contestant, count, heapButtonCount);
    showAndWait(*window);
    return heapInUse();
}

void addFirstPaint(const std::string &name, const Contestant &contestant, int count,
                   int captionCount)
{
    addBenchmark(
        name + contestant.name + '/' + std::to_string(count), [=](benchmark::State &state) {
            measureFirstPaint(state, [&] { return makeWindow(contestant, count, captionCount); });
        });
}

void measureHeap(benchmark::State &state, const Contestant &contestant)
{
    // what is allocated once, with the first button, is not counted
    heapOfShown(contestant, heapButtonCount);
    settle();
    double bytes = 0;
    while (state.KeepRunning()) {
        const double empty = heapOfShown(contestant, 0);
        settle();
        bytes = (heapOfShown(contestant, heapButtonCount) - empty) / heapButtonCount;
        settle();
    }
    state.counters["bytes"] = bytes;
}

} // namespace

void addManyButtons()
{
    for (const Contestant &contestant : contestants) {
        for (const int count : buttonCounts) {
            addFirstPaint("many-buttons", contestant, count, count);
        }
        addFirstPaint("many-buttons-shared-captions", contestant, 1000, sharedCaptionCount);
        addBenchmark("button-heap" + std::string(contestant.name),
                     [contestant](benchmark::State &state) { measureHeap(state, contestant); })
            ->Iterations(1);
    }
}
