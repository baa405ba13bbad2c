// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QTest>
#include <QWidget>

#include <functional>

class QPainter;

/**
 * A widget that draws whatever it is told: what a widget under test is compared with. Text that a
 * widget draws is rasterised otherwise than text drawn straight into an image, so that a reference
 * has to be a widget too.
 */
class DrawnWidget : public QWidget
{
public:
    using Draw = std::function<void(QPainter &)>;
    DrawnWidget(QSize size, Draw draw);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Draw m_draw;
};

/** What @p widget itself draws, without its children and on nothing, at a device pixel ratio. */
QImage pictureOf(QWidget &widget, qreal devicePixelRatio = 1.0);

/** What @p window shows, with all that is in it, at a device pixel ratio. */
QImage pictureOfWindow(QWidget &window, qreal devicePixelRatio);

/** A picture as it is when it is drawn on @p ground with an opacity. */
QImage faded(const QImage &picture, const QColor &ground, qreal opacity);

/** Where two pictures differ, in words; empty when they are the same pixel by pixel. */
QByteArray difference(const QImage &actual, const QImage &expected);

/**
 * How far a pixel is from that of the other picture at most, in one of red, green and blue; 255 for
 * pictures of different sizes.
 */
int largestDifference(const QImage &one, const QImage &other);

/** How many colours a picture has. */
int colorCount(const QImage &image);

/** Fails the test function unless both pictures are the same pixel by pixel. */
#define COMPARE_PICTURES(actual, expected)                                                         \
    do {                                                                                           \
        const QByteArray olvDifference = difference(actual, expected);                             \
        QVERIFY2(olvDifference.isEmpty(), olvDifference.constData());                              \
    } while (false)
