// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <QEvent>
#include <QImage>
#include <QPointF>
#include <QVector>
#include <QWidget>

#include <functional>
#include <string>

/**
 * @file support.h
 * Shared by the groups of cases. A case is registered once for each contestant, under the name
 * "case/contestant" or, where the cost is measured against a size, "case/contestant/size".
 */

using Benchmark = std::function<void(benchmark::State &)>;

/** Registers one contestant of a case. */
benchmark::internal::Benchmark *addBenchmark(const std::string &name, Benchmark function);

/** Shows @p window, the only window then, and returns once it is exposed and painted. */
void showAndWait(QWidget &window);
/** Handles all posted events and due timers, so that none of them is handled in a timed loop. */
void settle();
/** Paints the updated parts of @p window, as the event loop would do next. */
void paintUpdates(QWidget &window);

/** What @p widget and its children draw, on a transparent background. */
QImage pictureOf(QWidget &widget);
/**
 * The timed loop of all painting: draws @p widget repeatedly into one image, with @p change called
 * before each time if it is given.
 */
void measurePainting(benchmark::State &state, QWidget &widget,
                     const std::function<void()> &change = nullptr);

/**
 * Has copies of the properties of another widget. Its paint event opens a painter, reads some of
 * them, and draws nothing.
 */
class UndrawnWidget : public QWidget
{
public:
    UndrawnWidget(const QWidget &other, QVector<const char *> read, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QVector<const char *> m_read;
};

/** Sends @p widget an enter event and a mouse move at @p place. */
void enter(QWidget &widget, QPointF place);
/** Sends @p widget a mouse event of the left button at @p place. */
void sendMouse(QWidget &widget, QEvent::Type type, QPointF place);

/** The number of heap allocations of this process so far. */
quint64 heapAllocations();
/** The bytes of the heap that are in use. */
double heapInUse();
