// SPDX-License-Identifier: MIT
#include "painting/shape_p.h"

#include "painting/canvas_p.h"
#include "painting/keptpixels_p.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int bytesOfAll = 1024 * 1024;
constexpr int opaque = 255;
constexpr int smallestDiameter = 4;

/** The outline's outer half, and a pixel that it may touch. */
int marginOf(int lineWidth)
{
    return lineWidth > 0 ? (lineWidth + 1) / 2 + 1 : 0;
}

/**
 * Whether the shape's pixels are the same wherever it is and whatever it covers.
 *
 * Qt draws outlines up to a pixel wide line by line, and blends where two lines meet twice. Arcs of
 * a radius of one pixel are flattened this way or that, depending on their position; one pixel more
 * is kept as a distance from there.
 */
bool isProven(QSize size, int radius, int lineWidth)
{
    const int diameter = qMin(2 * radius, qMin(size.width(), size.height()));
    return lineWidth != 1 && diameter >= lineWidth + smallestDiameter;
}

} // namespace

/** What tells one layer from another: a shape's size in one colour, filled or outlined. */
struct Shape::Layer
{
    Kind kind;
    QSize size;
    int radius;
    int lineWidth; ///< 0 for the filled shape
    quint64 color; ///< as a QRgba64

    friend bool operator==(const Layer &a, const Layer &b)
    {
        return a.color == b.color && a.size == b.size && a.kind == b.kind && a.radius == b.radius
            && a.lineWidth == b.lineWidth;
    }

    friend uint qHash(const Layer &layer, uint seed)
    {
        const std::array<int, 5> numbers{ layer.kind, layer.size.width(), layer.size.height(),
                                          layer.radius, layer.lineWidth };
        return qHashRange(numbers.cbegin(), numbers.cend(), ::qHash(layer.color, seed));
    }
};

/** The pixels of a layer. */
class Shape::Pixels
{
public:
    explicit Pixels(const QImage &image);
    Q_DISABLE_COPY(Pixels)

    int bytes() const
    {
        return int(m_all.sizeInBytes());
    }

    void draw(QPainter &painter, QPoint topLeft) const
    {
        painter.drawImage(topLeft, m_top);
        if (!m_opaque.isNull()) {
            painter.drawImage(topLeft + QPoint(0, m_top.height()), m_opaque);
            painter.drawImage(topLeft + QPoint(0, m_top.height() + m_opaque.height()), m_bottom);
        }
    }

private:
    QImage rows(int first, int end, QImage::Format format) const;

    QImage m_all;
    // What follows are rows of the image above, without memory of their own. A rectangle's middle
    // covers what is below: told so, Qt copies it and blends nothing.
    QImage m_top;
    QImage m_opaque;
    QImage m_bottom;
};

Shape::Pixels::Pixels(const QImage &image)
    : m_all(image)
{
    const auto isOpaque = [&](int row) {
        const auto *pixels = reinterpret_cast<const QRgb *>(m_all.constScanLine(row));
        return std::all_of(pixels, pixels + m_all.width(),
                           [](QRgb pixel) { return qAlpha(pixel) == opaque; });
    };
    int first = 0;
    while (first < m_all.height() && !isOpaque(first)) {
        ++first;
    }
    int end = first;
    while (end < m_all.height() && isOpaque(end)) {
        ++end;
    }
    m_top = rows(0, first, m_all.format());
    if (first < end) {
        m_opaque = rows(first, end, QImage::Format_RGB32);
        m_bottom = rows(end, m_all.height(), m_all.format());
    }
}

QImage Shape::Pixels::rows(int first, int end, QImage::Format format) const
{
    return first < end ? QImage(m_all.constScanLine(first), m_all.width(), end - first,
                                m_all.bytesPerLine(), format)
                       : QImage();
}

QImage Shape::rasterised(const Layer &layer)
{
    const int margin = marginOf(layer.lineWidth);
    QImage image(layer.size + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = QColor::fromRgba64(QRgba64::fromRgba64(layer.color));
    if (layer.lineWidth > 0) {
        painter.setPen(QPen(color, layer.lineWidth));
        painter.setBrush(Qt::NoBrush);
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
    }
    Shape(layer.kind, QRect(QPoint(margin, margin), layer.size), layer.radius).draw(painter);
    return image;
}

Shape::Shape(Kind kind, const QRect &rect, int radius)
    : m_kind(kind)
    , m_rect(rect)
    , m_radius(radius)
{ }

Shape Shape::roundedRect(const QRect &rect, int radius)
{
    return Shape(RoundedRect, rect, radius);
}

Shape Shape::ellipse(const QRect &rect)
{
    return Shape(Ellipse, rect, qMax(rect.width(), rect.height()));
}

QRect Shape::rect() const
{
    return m_rect;
}

void Shape::fill(const Canvas &canvas, const QColor &color) const
{
    if (!drawFromLayer(canvas, { m_kind, m_rect.size(), m_radius, 0, color.rgba64() })) {
        QPainter &painter = canvas.painter();
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        draw(painter);
    }
}

void Shape::stroke(const Canvas &canvas, const QColor &color, int width) const
{
    if (!drawFromLayer(canvas, { m_kind, m_rect.size(), m_radius, width, color.rgba64() })) {
        QPainter &painter = canvas.painter();
        painter.setPen(QPen(color, width));
        painter.setBrush(Qt::NoBrush);
        draw(painter);
    }
}

bool Shape::drawFromLayer(const Canvas &canvas, const Layer &layer) const
{
    static KeptPixels<Layer, Pixels> layers(bytesOfAll);
    const int margin = marginOf(layer.lineWidth);
    if (!layers.isSmall(m_rect.size() + QSize(2 * margin, 2 * margin))
        || !isProven(m_rect.size(), m_radius, layer.lineWidth) || !canvas.copyTarget()) {
        return false;
    }
    const Pixels *pixels =
        layers.find(layer, [&](Layer & /*kept*/) { return new Pixels(rasterised(layer)); });
    if (pixels) {
        pixels->draw(canvas.painter(), m_rect.topLeft() - QPoint(margin, margin));
    }
    return pixels;
}

bool Shape::isPlain(const QRect &part, int lineWidth) const
{
    // a straight side lies between pixels, and the fill reaches up to it in full
    const int margin = marginOf(lineWidth);
    const QRect inner = m_rect.adjusted(margin, margin, -margin, -margin);
    // a rectangle turned inside out contains what lies in between, too
    if (!inner.isValid() || !inner.contains(part)) {
        return false;
    }
    // how far the part reaches into a corner, from where its arc begins
    const double across = qMin<double>(m_radius, m_rect.width() / 2.0);
    const double down = qMin<double>(m_radius, m_rect.height() / 2.0);
    const double x = across - qMin(part.left() - m_rect.left(), m_rect.right() - part.right());
    const double y = down - qMin(part.top() - m_rect.top(), m_rect.bottom() - part.bottom());
    if (x <= 0 || y <= 0) {
        return true;
    }
    const double innerAcross = across - margin - 1;
    const double innerDown = down - margin - 1;
    return innerAcross > 0 && innerDown > 0 && std::hypot(x / innerAcross, y / innerDown) <= 1.0;
}

void Shape::draw(QPainter &painter) const
{
    if (m_kind == RoundedRect) {
        painter.drawRoundedRect(QRectF(m_rect), m_radius, m_radius);
    } else {
        painter.drawEllipse(m_rect);
    }
}
