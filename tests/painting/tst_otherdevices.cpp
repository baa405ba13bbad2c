// SPDX-License-Identifier: MIT
#include "painting/canvas_p.h"
#include "painting/caption_p.h"
#include "painting/shape_p.h"
#include "pixels.h"
#include "testprogram.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPicture>
#include <QRegularExpression>
#include <QTest>

namespace {

/** What a device has got when @p widget has been rendered on it. */
using Render = std::function<QByteArray(QWidget &widget)>;

void renderOn(QPaintDevice &device, QWidget &widget)
{
    QPainter painter(&device);
    widget.render(&painter);
}

QByteArray pictureCommands(QWidget &widget)
{
    QPicture picture;
    renderOn(picture, widget);
    return QByteArray(picture.data(), int(picture.size()));
}

QByteArray pdf(QWidget &widget)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(300);
    renderOn(writer, widget);
    // all but the time at which it was written
    QString text = QString::fromLatin1(buffer.data().constData(), buffer.data().size());
    return text.remove(QRegularExpression(QStringLiteral("/CreationDate[^\n]*\n"))).toLatin1();
}

/** A button's look as the library draws it. */
void draw(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const Canvas canvas(painter);
    const Shape shape = Shape::roundedRect(QRect(0, 0, 120, 36), 7);
    shape.fill(canvas, Qt::blue);
    shape.stroke(canvas, Qt::green, 2);
    const Caption caption{ QStringLiteral("Save as PDF"), Qt::white, QStringLiteral("宋体"), 9 };
    caption.draw(canvas, { shape, Qt::blue, 2 });
}

void drawReference(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::blue);
    painter.drawRoundedRect(QRectF(0, 0, 120, 36), 7, 7);
    painter.setPen(QPen(Qt::green, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(0, 0, 120, 36), 7, 7);
    painter.setPen(Qt::white);
    painter.setFont(QFont(QStringLiteral("宋体"), 9));
    painter.drawText(QRect(0, 0, 120, 36), Qt::AlignCenter, QStringLiteral("Save as PDF"));
}

} // namespace

Q_DECLARE_METATYPE(Render)

/** Devices that are no images get the commands that draw, and no copied pixels. */
class TestOtherDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void getTheCommands_data();
    void getTheCommands();
};

void TestOtherDevices::getTheCommands_data()
{
    QTest::addColumn<Render>("render");
    QTest::newRow("picture") << Render(pictureCommands);
    QTest::newRow("PDF") << Render(pdf);
}

void TestOtherDevices::getTheCommands()
{
    QFETCH(Render, render);
    DrawnWidget widget(QSize(120, 36), draw);
    for (int i = 0; i < 3; ++i) {
        pictureOf(widget); // until all of it is cached
    }
    DrawnWidget reference(QSize(120, 36), drawReference);
    QCOMPARE(render(widget), render(reference));
    DrawnWidget empty(QSize(120, 36), [](QPainter & /*painter*/) {});
    QVERIFY(render(widget).size() > render(empty).size());
}

ADD_TEST(TestOtherDevices, QApplication)
#include "tst_otherdevices.moc"
