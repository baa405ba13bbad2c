// SPDX-License-Identifier: MIT
#include "pixels.h"
#include "shapedrawing.h"
#include "testprogram.h"

#include <QPainter>
#include <QPainterPath>
#include <QTest>

Q_DECLARE_METATYPE(Prepare)

namespace {

/** Draws a small shape often enough that its pixels are kept. */
Drawing keptDrawing()
{
    Drawing drawing = roundedRect(QRect(3, 4, 30, 20), 5, QColor(10, 20, 30, 200), 2);
    bool isKept = false;
    drawnAgain(drawing, noise(QSize(50, 40), QImage::Format_RGB32), antialias, &isKept);
    return drawing;
}

} // namespace

/** Which shapes are copied from pixels that were kept, and which are drawn anew. */
class TestShapeCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsDirectlyWhereCopyingIsNotExact_data();
    void drawsDirectlyWhereCopyingIsNotExact();
    void drawsDirectlyInOtherFormats_data();
    void drawsDirectlyInOtherFormats();
    void drawsAShapeThatComesOnceDirectly();
    void drawsTheSmallestShapesDirectly_data();
    void drawsTheSmallestShapesDirectly();
    void drawsALargeShapeDirectly();
    void forgetsWhatIsOldest();
};

void TestShapeCopies::drawsDirectlyWhereCopyingIsNotExact_data()
{
    QTest::addColumn<Prepare>("change");
    QTest::newRow("aliased") << Prepare(
        [](QPainter &painter) { painter.setRenderHint(QPainter::Antialiasing, false); });
    QTest::newRow("scaled") << Prepare([](QPainter &painter) { painter.scale(2, 2); });
    QTest::newRow("rotated") << Prepare([](QPainter &painter) { painter.rotate(7); });
    QTest::newRow("by a part of a pixel, across")
        << Prepare([](QPainter &painter) { painter.translate(0.5, 0); });
    QTest::newRow("by a part of a pixel, down")
        << Prepare([](QPainter &painter) { painter.translate(0, 0.25); });
    QTest::newRow("far away") << Prepare([](QPainter &painter) { painter.translate(-20000, 0); });
    QTest::newRow("translucent") << Prepare([](QPainter &painter) { painter.setOpacity(0.5); });
    QTest::newRow("another composition") << Prepare(
        [](QPainter &painter) { painter.setCompositionMode(QPainter::CompositionMode_Multiply); });
    QTest::newRow("clipped") << Prepare([](QPainter &painter) {
        QPainterPath path;
        path.addEllipse(2, 2, 25, 25);
        painter.setClipPath(path);
    });
}

void TestShapeCopies::drawsDirectlyWhereCopyingIsNotExact()
{
    QFETCH(Prepare, change);
    const Drawing drawing = keptDrawing();
    const QImage background = noise(QSize(50, 40), QImage::Format_RGB32);
    const Prepare prepare = [&](QPainter &painter) {
        antialias(painter);
        change(painter);
    };
    bool wasCopied = true;
    const QImage actual = drawnAgain(drawing, background, prepare, &wasCopied);
    QVERIFY(!wasCopied);
    COMPARE_PICTURES(actual, drawn(background, prepare, [&](QPainter &painter) {
                         drawReference(drawing, painter);
                     }));
}

void TestShapeCopies::drawsDirectlyInOtherFormats_data()
{
    QTest::addColumn<QImage::Format>("format");
    for (const QImage::Format format :
         { QImage::Format_Mono, QImage::Format_ARGB32, QImage::Format_RGB16,
           QImage::Format_ARGB8565_Premultiplied, QImage::Format_RGB555,
           QImage::Format_ARGB4444_Premultiplied, QImage::Format_RGBX8888, QImage::Format_RGBA8888,
           QImage::Format_BGR30, QImage::Format_A2RGB30_Premultiplied, QImage::Format_Grayscale8,
           QImage::Format_Alpha8, QImage::Format_RGBA64_Premultiplied, QImage::Format_RGB888,
           QImage::Format_RGBA8888_Premultiplied }) {
        QTest::addRow("format %d", int(format)) << format;
    }
}

void TestShapeCopies::drawsDirectlyInOtherFormats()
{
    QFETCH(QImage::Format, format);
    const Drawing drawing = keptDrawing();
    const QImage background = noise(QSize(50, 40), format);
    bool wasCopied = true;
    const QImage actual = drawnAgain(drawing, background, antialias, &wasCopied);
    QVERIFY(!wasCopied);
    COMPARE_PICTURES(actual, drawn(background, antialias, [&](QPainter &painter) {
                         drawReference(drawing, painter);
                     }));
}

void TestShapeCopies::drawsAShapeThatComesOnceDirectly()
{
    QImage image = noise(QSize(60, 50), QImage::Format_RGB32);
    QPainter painter(&image);
    antialias(painter);
    const Shape shape = Shape::roundedRect(QRect(0, 0, 41, 43), 3);
    for (const bool isCopied : { false, true, true }) {
        painter.setBrush(untouched());
        shape.fill(Canvas(painter), Qt::darkYellow);
        QCOMPARE(painter.brush() == untouched(), isCopied);
    }
    painter.setBrush(untouched());
    shape.fill(Canvas(painter), Qt::darkCyan);
    QVERIFY(painter.brush() != untouched());
}

void TestShapeCopies::drawsTheSmallestShapesDirectly_data()
{
    QTest::addColumn<int>("lineWidth");
    QTest::addColumn<int>("smallestCopied");
    QTest::newRow("filled") << 0 << 4;
    QTest::newRow("line of two") << 2 << 6;
    QTest::newRow("line of three") << 3 << 7;
}

void TestShapeCopies::drawsTheSmallestShapesDirectly()
{
    QFETCH(int, lineWidth);
    QFETCH(int, smallestCopied);
    for (const int diameter : { smallestCopied - 1, smallestCopied }) {
        const QRect rect(5, 6, diameter, diameter + 20);
        bool wasCopied = false;
        drawnAgain(roundedRect(rect, 30, QColor(90, 80, 70), lineWidth),
                   noise(QSize(50, 40), QImage::Format_RGB32), antialias, &wasCopied);
        QCOMPARE(wasCopied, diameter == smallestCopied);
    }
}

void TestShapeCopies::drawsALargeShapeDirectly()
{
    QImage image(QSize(1000, 1000), QImage::Format_RGB32);
    QPainter painter(&image);
    antialias(painter);
    for (int round = 0; round < 3; ++round) {
        painter.setBrush(untouched());
        Shape::ellipse(QRect(0, 0, 1000, 900)).fill(Canvas(painter), Qt::red);
        QVERIFY(painter.brush() != untouched());
    }
}

void TestShapeCopies::forgetsWhatIsOldest()
{
    QImage image(QSize(300, 300), QImage::Format_RGB32);
    QPainter painter(&image);
    antialias(painter);
    const auto isCopied = [&](int width) {
        painter.setBrush(untouched());
        Shape::ellipse(QRect(0, 0, width, 100)).fill(Canvas(painter), Qt::green);
        return painter.brush() == untouched();
    };
    isCopied(100);
    isCopied(100);
    QVERIFY(isCopied(100));
    // 100 of some 50 kB each: five times of what is kept
    for (int width = 101; width <= 200; ++width) {
        isCopied(width);
        isCopied(width);
    }
    QVERIFY(isCopied(200));
    QVERIFY(!isCopied(101));
    QVERIFY(!isCopied(100));
}

ADD_TEST(TestShapeCopies, QApplication)
#include "tst_shapecopies.moc"
