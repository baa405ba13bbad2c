// SPDX-License-Identifier: MIT
#include "shapedrawing.h"

#include <QPainter>
#include <QRandomGenerator>

QBrush untouched()
{
    return QBrush(QColor(1, 2, 3), Qt::Dense3Pattern);
}

void draw(const Drawing &drawing, QPainter &painter)
{
    if (drawing.lineWidth > 0) {
        drawing.shape.stroke(Canvas(painter), drawing.color, drawing.lineWidth);
    } else {
        drawing.shape.fill(Canvas(painter), drawing.color);
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

QImage noise(QSize size, QImage::Format format)
{
    QRandomGenerator random(quint32(size.width() * 4099 + size.height()));
    // A large picture is converted by threads of Qt's own, whose locks the thread sanitizer cannot
    // see: this is the format that the large ones have.
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qPremultiply(random.generate()));
        }
    }
    return image.convertToFormat(format);
}

void antialias(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
}

QImage drawn(const QImage &background, const Prepare &prepare,
             const std::function<void(QPainter &)> &paint)
{
    QImage image = background;
    QPainter painter(&image);
    prepare(painter);
    painter.setBrush(untouched());
    paint(painter);
    return image;
}

QImage drawnAgain(const Drawing &drawing, const QImage &background, const Prepare &prepare,
                  bool *wasCopied)
{
    QImage last;
    for (int round = 0; round < 3; ++round) {
        last = drawn(background, prepare, [&](QPainter &painter) {
            draw(drawing, painter);
            *wasCopied = painter.brush() == untouched();
        });
    }
    return last;
}
