// SPDX-License-Identifier: MIT
#include "pixels.h"
#include "shapedrawing.h"
#include "testprogram.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

namespace {

Drawing ellipse(const QRect &rect, const QColor &color, int lineWidth)
{
    return { Shape::ellipse(rect), color, lineWidth, true, [=](QPainter &painter) {
                painter.drawEllipse(rect);
            } };
}

QList<Drawing> drawings(const QRect &rect)
{
    const QList<QColor> colors{ QColor(64, 158, 255), QColor(Qt::white), QColor(1, 200, 33, 77),
                                QColor::fromHsvF(0.31F, 0.7F, 0.9F, 0.61F), QColor() };
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
    void isPlainWhereItsFillIs();
    void standsEveryRectangle_data();
    void standsEveryRectangle();
};

void TestShape::drawsTheVeryPixels_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QRect>("rect");
    const QList<QImage::Format> formats{ QImage::Format_ARGB32_Premultiplied,
                                         QImage::Format_RGB32 };
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
        const QList<Drawing> all = drawings(rect);
        for (const Drawing &drawing : all) {
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
    const QList<Drawing> all = drawings(QRect(0, 0, 120, 36));
    for (const Drawing &drawing : all) {
        QImage actual;
        bool wasCopied = false;
        for (int round = 0; round < 3; ++round) {
            actual = picture([&](QPainter &painter) {
                antialias(painter);
                painter.setBrush(untouched());
                draw(drawing, painter);
                wasCopied = painter.brush() == untouched();
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

void TestShape::isPlainWhereItsFillIs()
{
    QRandomGenerator random(11);
    int plain = 0;
    for (int i = 0; i < 10000; ++i) {
        const QRect rect(2, 2, random.bounded(1, 60), random.bounded(1, 40));
        const int radius = random.bounded(30);
        const int lineWidth = random.bounded(4);
        const Shape shape =
            random.bounded(4) > 0 ? Shape::roundedRect(rect, radius) : Shape::ellipse(rect);
        const QRect part(rect.topLeft() + QPoint(random.bounded(-2, 20), random.bounded(-2, 20)),
                         QSize(random.bounded(1, 40), random.bounded(1, 20)));
        if (!shape.isPlain(part, lineWidth)) {
            continue;
        }
        ++plain;
        QImage image(70, 50, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        antialias(painter);
        shape.fill(Canvas(painter), Qt::red);
        if (lineWidth > 0) {
            shape.stroke(Canvas(painter), Qt::green, lineWidth);
        }
        QImage expected(part.size(), QImage::Format_RGB32);
        expected.fill(Qt::red);
        COMPARE_PICTURES(image.copy(part), expected);
    }
    QVERIFY2(plain > 200, QByteArray::number(plain).constData());
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

ADD_TEST(TestShape, QApplication)
#include "tst_shape.moc"
