// SPDX-License-Identifier: MIT
#include "painting/shape_p.h"

#include "painting/canvas_p.h"
#include "painting/pixelcache_p.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace {

constexpr int maxShapeBytes = 1024 * 1024;
constexpr int smallestDiameter = 4;

/** How many pixels an outline reaches beyond the shape: its outer half. */
int marginOf(int lineWidth)
{
    return (lineWidth + 1) / 2;
}

/**
 * Whether the shape's pixels are the same at each position and on every background.
 *
 * Qt draws outlines up to a pixel wide line by line, and blends twice where two lines meet. How it
 * flattens arcs of a radius of one pixel depends on their position; with one pixel more there is a
 * margin.
 */
bool isPositionIndependent(QSize size, int radius, int lineWidth)
{
    const int diameter = qMin(2 * radius, qMin(size.width(), size.height()));
    return lineWidth != 1 && diameter >= lineWidth + smallestDiameter;
}

} // namespace

/** What the pixels of a filled shape or of an outline depend on. */
struct Shape::Key
{
    Kind kind;
    QSize size;
    int radius;
    int lineWidth; ///< 0 for the filled shape
    quint64 color; ///< as a QRgba64

    friend bool operator==(const Key &a, const Key &b)
    {
        return a.color == b.color && a.size == b.size && a.kind == b.kind && a.radius == b.radius
            && a.lineWidth == b.lineWidth;
    }

    friend QtVersion::Hash qHash(const Key &key, QtVersion::Hash seed)
    {
        const std::array<int, 5> numbers{ key.kind, key.size.width(), key.size.height(), key.radius,
                                          key.lineWidth };
        return qHashRange(numbers.cbegin(), numbers.cend(), ::qHash(key.color, seed));
    }
};

/** The pixels of a key. */
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
    // These are rows of m_all and share its memory. Qt copies the opaque ones without blending.
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
                           [](QRgb pixel) { return qAlpha(pixel) == 255; });
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

QImage Shape::rasterised(const Key &key)
{
    const int margin = marginOf(key.lineWidth);
    QImage image(key.size + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = QColor::fromRgba64(QRgba64::fromRgba64(key.color));
    if (key.lineWidth > 0) {
        painter.setPen(QPen(color, key.lineWidth));
        painter.setBrush(Qt::NoBrush);
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
    }
    Shape(key.kind, QRect(QPoint(margin, margin), key.size), key.radius).draw(painter);
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
    if (!drawCached(canvas, { m_kind, m_rect.size(), m_radius, 0, color.rgba64() })) {
        QPainter &painter = canvas.painter();
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        draw(painter);
    }
}

void Shape::stroke(const Canvas &canvas, const QColor &color, int width) const
{
    if (!drawCached(canvas, { m_kind, m_rect.size(), m_radius, width, color.rgba64() })) {
        QPainter &painter = canvas.painter();
        painter.setPen(QPen(color, width));
        painter.setBrush(Qt::NoBrush);
        draw(painter);
    }
}

bool Shape::drawCached(const Canvas &canvas, const Key &key) const
{
    // never destroyed: a widget may be painted while the program destroys its statics
    static auto &cache = *new PixelCache<Key, Pixels>(maxShapeBytes);
    const int margin = marginOf(key.lineWidth);
    if (!canvas.copyTarget() || !cache.accepts(m_rect.size() + QSize(2 * margin, 2 * margin))
        || !isPositionIndependent(m_rect.size(), m_radius, key.lineWidth)) {
        return false;
    }
    const QPoint topLeft = m_rect.topLeft() - QPoint(margin, margin);
    if (const Pixels *cached = cache.find(key)) {
        cached->draw(canvas.painter(), topLeft);
        return true;
    }
    if (!cache.admits(key)) {
        return false;
    }
    auto pixels = std::make_unique<Pixels>(rasterised(key));
    pixels->draw(canvas.painter(), topLeft);
    cache.insert(key, std::move(pixels));
    return true;
}

bool Shape::isPlain(const QRect &part, int lineWidth) const
{
    if (!isPositionIndependent(m_rect.size(), m_radius, lineWidth) || !m_rect.contains(part)) {
        return false;
    }
    QImage image(m_rect.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-m_rect.topLeft());
    painter.setPen(lineWidth > 0 ? QPen(Qt::black, lineWidth) : QPen(Qt::NoPen));
    painter.setBrush(Qt::white);
    draw(painter);
    QImage plain(part.size(), image.format());
    plain.fill(Qt::white);
    return image.copy(part.translated(-m_rect.topLeft())) == plain;
}

void Shape::draw(QPainter &painter) const
{
    if (m_kind == RoundedRect) {
        painter.drawRoundedRect(QRectF(m_rect), m_radius, m_radius);
    } else {
        painter.drawEllipse(m_rect);
    }
}
