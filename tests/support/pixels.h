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

/** Where two pictures differ, in words; empty when they are the same pixel by pixel. */
QByteArray difference(const QImage &actual, const QImage &expected);

/** How many colours a picture has. */
int colorCount(const QImage &image);

/** Fails the test function unless both pictures are the same pixel by pixel. */
#define COMPARE_PICTURES(actual, expected)                                                         \
    do {                                                                                           \
        const QByteArray olvDifference = difference(actual, expected);                             \
        QVERIFY2(olvDifference.isEmpty(), olvDifference.constData());                              \
    } while (false)
