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
 * What the groups of cases share. A case stands once for each contestant, under the name
 * "case/contestant" or, where the cost is measured against a size, "case/contestant/size".
 */

using Benchmark = std::function<void(benchmark::State &)>;

/** Registers one contestant of a case. */
benchmark::internal::Benchmark *addBenchmark(const std::string &name, Benchmark function);

/** Shows @p window, the only window then, and returns once it is exposed and painted. */
void showAndWait(QWidget &window);
/** Handles everything that is posted or due, so that nothing of it falls into a timed loop. */
void settle();
/** Has @p window painted as far as it was updated, as the event loop would do it next. */
void paintUpdates(QWidget &window);

/** What @p widget and its children draw, on nothing. */
QImage pictureOf(QWidget &widget);
/**
 * The timed loop of all painting: @p widget drawn over and over into one image, with a @p change
 * before each time if there is one.
 */
void measurePainting(benchmark::State &state, QWidget &widget,
                     const std::function<void()> &change = nullptr);

/**
 * Opens its painter, reads properties, and draws nothing. It has copies of the properties of
 * another widget, and reads some of them.
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

/** Tells @p widget that the pointer came in, and moved, at @p place. */
void enter(QWidget &widget, QPointF place);
/** Sends @p widget a mouse event of the left button at @p place. */
void sendMouse(QWidget &widget, QEvent::Type type, QPointF place);

/** The look of the library's slider in the words of a style sheet for a QSlider. */
QString sliderStyleSheet();

/** How often this process has asked for memory on the heap. */
quint64 heapAllocations();
/** The bytes of the heap that are in use. */
double heapInUse();
