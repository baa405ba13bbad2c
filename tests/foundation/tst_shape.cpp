// SPDX-License-Identifier: MIT
#include "foundation/shape_p.h"
#include "pixels.h"

#include <QPainter>
#include <QPainterPath>
#include <QPicture>
#include <QRandomGenerator>
#include <QTest>

#include <functional>

namespace {

/** A brush that no shape is drawn with: while the painter has it, nothing has been drawn directly.
 */
const QBrush untouched(QColor(1, 2, 3), Qt::Dense3Pattern);

struct Drawing
{
    Shape shape;
    QColor color;
    int lineWidth; ///< 0 to fill
    bool isCurved;
    std::function<void(QPainter &)> reference;
};

void draw(const Drawing &drawing, QPainter &painter)
{
    if (drawing.lineWidth > 0) {
        drawing.shape.stroke(painter, drawing.color, drawing.lineWidth);
    } else {
        drawing.shape.fill(painter, drawing.color);
    }
}

void drawReference(const Drawing &drawing, QPainter &painter)
{
    if (drawing.lineWidth > 0) {
        painter.setPen(QPen(drawing.color, drawing.lineWidth));
        painter.setBrush(Qt::NoBrush);
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(drawing.color);
    }
    drawing.reference(painter);
}

Drawing roundedRect(const QRect &rect, int radius, const QColor &color, int lineWidth)
{
    return { Shape::roundedRect(rect, radius), color, lineWidth, radius >= 5,
             [=](QPainter &painter) {
                 painter.drawRoundedRect(rect, radius, radius);
             } };
}

Drawing ellipse(const QRect &rect, const QColor &color, int lineWidth)
{
    return { Shape::ellipse(rect), color, lineWidth, true, [=](QPainter &painter) {
                painter.drawEllipse(rect);
            } };
}

QList<Drawing> drawings(const QRect &rect)
{
    const QList<QColor> colors{ QColor(64, 158, 255), QColor(Qt::white), QColor(1, 200, 33, 77),
                                QColor::fromHsvF(0.31, 0.7, 0.9, 0.61), QColor() };
    QList<Drawing> result;
    for (const QColor &color : colors) {
        for (const int lineWidth : { 0, 1, 2, 3 }) {
            for (const int radius : { 0, 1, 2, 3, 5, 7, 10, rect.height() / 2, 400 }) {
                result << roundedRect(rect, radius, color, lineWidth);
            }
            result << ellipse(rect, color, lineWidth);
        }
    }
    return result;
}

/** Whether a drawing is one that painting gains from; the others only have to be right. */
bool isWorthCopying(const Drawing &drawing, QSize size)
{
    return drawing.lineWidth != 1 && drawing.isCurved && size.width() >= 10 && size.height() >= 10;
}

/** Something in every colour and opacity, so that each way of blending shows. */
QImage noise(QSize size, QImage::Format format)
{
    QRandomGenerator random(quint32(size.width() * 4099 + size.height()));
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, random.generate());
        }
    }
    return image.convertToFormat(format);
}

using Prepare = std::function<void(QPainter &)>;

} // namespace

Q_DECLARE_METATYPE(Prepare)

namespace {

const Prepare antialias = [](QPainter &painter) {
    painter.setRenderHint(QPainter::Antialiasing);
};

QImage drawn(const QImage &background, const Prepare &prepare,
             const std::function<void(QPainter &)> &paint)
{
    QImage image = background;
    QPainter painter(&image);
    prepare(painter);
    painter.setBrush(untouched);
    paint(painter);
    return image;
}

/** What the drawing looks like once its pixels may have been kept: it has been drawn before. */
QImage drawnAgain(const Drawing &drawing, const QImage &background, const Prepare &prepare,
                  bool *wasCopied)
{
    QImage last;
    for (int round = 0; round < 3; ++round) {
        last = drawn(background, prepare, [&](QPainter &painter) {
            draw(drawing, painter);
            *wasCopied = painter.brush() == untouched;
        });
    }
    return last;
}

/** Draws a small shape often enough that its pixels are kept. */
Drawing keptDrawing()
{
    const Drawing drawing = roundedRect(QRect(3, 4, 30, 20), 5, QColor(10, 20, 30, 200), 2);
    bool isKept = false;
    drawnAgain(drawing, noise(QSize(50, 40), QImage::Format_RGB32), antialias, &isKept);
    return drawing;
}

} // namespace

class TestShape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsTheVeryPixels_data();
    void drawsTheVeryPixels();
    void drawsTheVeryPixelsOfEveryRadius_data();
    void drawsTheVeryPixelsOfEveryRadius();
    void drawsTheVeryPixelsWithinAWidget_data();
    void drawsTheVeryPixelsWithinAWidget();
    void drawsDirectlyWhereCopyingIsNotProven_data();
    void drawsDirectlyWhereCopyingIsNotProven();
    void drawsDirectlyInOtherFormats_data();
    void drawsDirectlyInOtherFormats();
    void drawsIntoWhatIsNoImage();
    void drawsAShapeThatComesOnceDirectly();
    void drawsALargeShapeDirectly();
    void forgetsWhatIsOldest();
    void standsEveryRectangle_data();
    void standsEveryRectangle();
};

void TestShape::drawsTheVeryPixels_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QRect>("rect");
    const QList<QImage::Format> formats{ QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32,
                                         QImage::Format_RGB888,
                                         QImage::Format_RGBA8888_Premultiplied };
    const QList<QRect> rects{ { 0, 0, 120, 36 },   { 0, 0, 1, 1 },     { 2, 2, 26, 26 },
                              { 15, 10, 170, 10 }, { 3, 3, 13, 14 },   { 0, 0, 57, 200 },
                              { -20, -5, 60, 31 }, { 130, 40, 60, 31 } };
    for (const QImage::Format format : formats) {
        for (const QRect &rect : rects) {
            QTest::addRow("format %d, %d x %d at %d, %d", int(format), rect.width(), rect.height(),
                          rect.x(), rect.y())
                << format << rect;
        }
    }
}

void TestShape::drawsTheVeryPixels()
{
    QFETCH(QImage::Format, format);
    QFETCH(QRect, rect);
    const QImage background = noise(QSize(160, 60), format);
    for (const QPoint &offset : { QPoint(0, 0), QPoint(7, -3), QPoint(-11, 13) }) {
        const Prepare prepare = [&](QPainter &painter) {
            antialias(painter);
            painter.translate(offset);
        };
        for (const Drawing &drawing : drawings(rect)) {
            bool wasCopied = false;
            const QImage actual = drawnAgain(drawing, background, prepare, &wasCopied);
            QVERIFY(wasCopied || !isWorthCopying(drawing, rect.size()));
            const QImage expected = drawn(
                background, prepare, [&](QPainter &painter) { drawReference(drawing, painter); });
            COMPARE_PICTURES(actual, expected);
        }
    }
}

void TestShape::drawsTheVeryPixelsOfEveryRadius_data()
{
    QTest::addColumn<int>("radius");
    for (int radius = 0; radius <= 60; ++radius) {
        QTest::addRow("%d", radius) << radius;
    }
}

void TestShape::drawsTheVeryPixelsOfEveryRadius()
{
    QFETCH(int, radius);
    const QImage background = noise(QSize(300, 200), QImage::Format_ARGB32_Premultiplied);
    for (const int lineWidth : { 0, 1, 2, 3 }) {
        for (int i = 0; i < 8; ++i) {
            const int shortSide = 2 * radius + i % 4;
            const QRect rect(3 + 17 * i, 5 + 7 * i, shortSide + 13 * (i % 3), shortSide);
            const QColor color(200, 40 + i, 80, i % 2 ? 255 : 131);
            for (const Drawing &drawing :
                 { roundedRect(rect, radius, color, lineWidth), ellipse(rect, color, lineWidth) }) {
                bool wasCopied = false;
                const QImage actual = drawnAgain(drawing, background, antialias, &wasCopied);
                QVERIFY(wasCopied || !isWorthCopying(drawing, rect.size()));
                const QImage expected = drawn(background, antialias, [&](QPainter &painter) {
                    drawReference(drawing, painter);
                });
                COMPARE_PICTURES(actual, expected);
            }
        }
    }
}

void TestShape::drawsTheVeryPixelsWithinAWidget_data()
{
    QTest::addColumn<QRegion>("region");
    QTest::newRow("all of it") << QRegion(0, 0, 120, 36);
    QTest::newRow("one part") << QRegion(5, 3, 31, 30);
    QTest::newRow("a row of pixels") << QRegion(0, 1, 120, 1);
    QTest::newRow("two parts") << (QRegion(0, 0, 7, 36) | QRegion(90, 2, 30, 9));
    QTest::newRow("a ring") << (QRegion(0, 0, 120, 36) - QRegion(4, 4, 112, 28));
    QTest::newRow("an ellipse") << QRegion(1, 0, 110, 36, QRegion::Ellipse);
}

void TestShape::drawsTheVeryPixelsWithinAWidget()
{
    QFETCH(QRegion, region);
    const QImage background = noise(QSize(140, 50), QImage::Format_ARGB32_Premultiplied);
    const auto picture = [&](const std::function<void(QPainter &)> &paint) {
        DrawnWidget widget(QSize(120, 36), paint);
        QImage image = background;
        widget.render(&image, QPoint(5, 6) + region.boundingRect().topLeft(), region,
                      QWidget::RenderFlags());
        return image;
    };
    for (const Drawing &drawing : drawings(QRect(0, 0, 120, 36))) {
        QImage actual;
        bool wasCopied = false;
        for (int round = 0; round < 3; ++round) {
            actual = picture([&](QPainter &painter) {
                antialias(painter);
                painter.setBrush(untouched);
                draw(drawing, painter);
                wasCopied = painter.brush() == untouched;
            });
        }
        QVERIFY(wasCopied || !isWorthCopying(drawing, QSize(120, 36)));
        const QImage expected = picture([&](QPainter &painter) {
            antialias(painter);
            drawReference(drawing, painter);
        });
        COMPARE_PICTURES(actual, expected);
    }
}

void TestShape::drawsDirectlyWhereCopyingIsNotProven_data()
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

void TestShape::drawsDirectlyWhereCopyingIsNotProven()
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

void TestShape::drawsDirectlyInOtherFormats_data()
{
    QTest::addColumn<QImage::Format>("format");
    for (const QImage::Format format :
         { QImage::Format_Mono, QImage::Format_ARGB32, QImage::Format_RGB16,
           QImage::Format_ARGB8565_Premultiplied, QImage::Format_RGB555,
           QImage::Format_ARGB4444_Premultiplied, QImage::Format_RGBX8888, QImage::Format_RGBA8888,
           QImage::Format_BGR30, QImage::Format_A2RGB30_Premultiplied, QImage::Format_Grayscale8,
           QImage::Format_Alpha8, QImage::Format_RGBA64_Premultiplied }) {
        QTest::addRow("format %d", int(format)) << format;
    }
}

void TestShape::drawsDirectlyInOtherFormats()
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

void TestShape::drawsIntoWhatIsNoImage()
{
    const Drawing drawing = keptDrawing();
    QPicture actual;
    QPainter painter(&actual);
    antialias(painter);
    draw(drawing, painter);
    painter.end();
    QPicture expected;
    painter.begin(&expected);
    antialias(painter);
    drawReference(drawing, painter);
    painter.end();
    QVERIFY(actual.size() > 0);
    QCOMPARE(QByteArray(actual.data(), int(actual.size())),
             QByteArray(expected.data(), int(expected.size())));
}

void TestShape::drawsAShapeThatComesOnceDirectly()
{
    QImage image = noise(QSize(60, 50), QImage::Format_RGB32);
    QPainter painter(&image);
    antialias(painter);
    const Shape shape = Shape::roundedRect(QRect(0, 0, 41, 43), 3);
    for (const bool isCopied : { false, true, true }) {
        painter.setBrush(untouched);
        shape.fill(painter, Qt::darkYellow);
        QCOMPARE(painter.brush() == untouched, isCopied);
    }
    painter.setBrush(untouched);
    shape.fill(painter, Qt::darkCyan);
    QVERIFY(painter.brush() != untouched);
}

void TestShape::drawsALargeShapeDirectly()
{
    QImage image(QSize(1000, 1000), QImage::Format_RGB32);
    QPainter painter(&image);
    antialias(painter);
    for (int round = 0; round < 3; ++round) {
        painter.setBrush(untouched);
        Shape::ellipse(QRect(0, 0, 1000, 900)).fill(painter, Qt::red);
        QVERIFY(painter.brush() != untouched);
    }
}

void TestShape::forgetsWhatIsOldest()
{
    QImage image(QSize(300, 300), QImage::Format_RGB32);
    QPainter painter(&image);
    antialias(painter);
    const auto isCopied = [&](int width) {
        painter.setBrush(untouched);
        Shape::ellipse(QRect(0, 0, width, 100)).fill(painter, Qt::green);
        return painter.brush() == untouched;
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

void TestShape::standsEveryRectangle_data()
{
    QTest::addColumn<QRect>("rect");
    constexpr int most = QWIDGETSIZE_MAX;
    QTest::newRow("empty") << QRect(4, 4, 0, 0);
    QTest::newRow("no width") << QRect(4, 4, 0, 20);
    QTest::newRow("negative width") << QRect(40, 4, -20, 20);
    QTest::newRow("negative both") << QRect(40, 30, -20, -9);
    QTest::newRow("huge") << QRect(0, 0, most, most);
    QTest::newRow("long") << QRect(0, 0, most, 1);
    QTest::newRow("far") << QRect(most, -most, 10, 10);
}

void TestShape::standsEveryRectangle()
{
    QFETCH(QRect, rect);
    const QImage background = noise(QSize(60, 50), QImage::Format_ARGB32_Premultiplied);
    for (const int lineWidth : { 0, 2 }) {
        const Drawing rounded{ Shape::roundedRect(rect, 5), Qt::blue, lineWidth, true,
                               [=](QPainter &painter) {
                                   painter.drawRoundedRect(QRectF(rect), 5, 5);
                               } };
        bool wasCopied = false;
        const QImage actual = drawnAgain(rounded, background, antialias, &wasCopied);
        COMPARE_PICTURES(actual, drawn(background, antialias, [&](QPainter &painter) {
                             drawReference(rounded, painter);
                         }));
    }
}

QTEST_MAIN(TestShape)
#include "tst_shape.moc"
