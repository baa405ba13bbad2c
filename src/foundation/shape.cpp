// SPDX-License-Identifier: MIT
#include "foundation/shape_p.h"

#include <QCache>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <array>

namespace {

constexpr int bytesOfAll = 1024 * 1024;
/** Larger ones gain little, and a few of them would drive out all others. */
constexpr int bytesOfOne = bytesOfAll / 8;
constexpr int bytesOfPixel = 4;
constexpr int opaque = 255;
/** How far from the origin of the device positions are certain to be exact. */
constexpr qreal farthest = 16384.0;
constexpr int smallestDiameter = 4;
constexpr size_t rememberedRequests = 256;

/** The outline's outer half, and a pixel that it may touch. */
int marginOf(int lineWidth)
{
    return lineWidth > 0 ? (lineWidth + 1) / 2 + 1 : 0;
}

bool isSmall(QSize size)
{
    return qint64(size.width()) * size.height() <= bytesOfOne / bytesOfPixel;
}

bool isWhole(qreal position)
{
    return qAbs(position) <= farthest && position == qRound(position);
}

bool isProven(QImage::Format format)
{
    switch (format) {
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32_Premultiplied:
    case QImage::Format_RGB888:
    case QImage::Format_RGBA8888_Premultiplied:
        return true;
    default:
        return false;
    }
}

bool isProven(const QPaintEngine *engine)
{
    if (!engine || engine->type() != QPaintEngine::Raster) {
        return false;
    }
    const QPaintDevice *device = engine->paintDevice();
    return device && device->devType() == QInternal::Image
        && isProven(static_cast<const QImage *>(device)->format());
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

/** Whether copying pixels gives what drawing the shape itself gives. */
bool isProven(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    return isProven(painter.paintEngine()) && transform.type() <= QTransform::TxTranslate
        && isWhole(transform.dx()) && isWhole(transform.dy())
        && painter.testRenderHint(QPainter::Antialiasing) && painter.opacity() >= 1.0
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver
        && !painter.hasClipping();
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

/** The layers that are kept. */
class Shape::Layers
{
public:
    static Layers &instance()
    {
        static Layers layers;
        return layers;
    }

    /**
     * The pixels of @p layer; null at the first request: a size that comes only once, as many do
     * while a window is resized, is drawn directly and drives out nothing.
     */
    const Pixels *find(const Layer &layer)
    {
        if (const Pixels *kept = m_kept.object(layer)) {
            return kept;
        }
        const uint hash = qHash(layer, 0);
        uint &requested = m_requested[hash % rememberedRequests];
        if (requested != hash) {
            requested = hash;
            return nullptr;
        }
        requested = 0; // what has been driven out since is to come twice again
        auto *pixels = new Pixels(rasterised(layer));
        m_kept.insert(layer, pixels, pixels->bytes());
        return pixels;
    }

private:
    static QImage rasterised(const Layer &layer);

    QCache<Layer, Pixels> m_kept{ bytesOfAll };
    /** The hashes of requests that came once. */
    std::array<uint, rememberedRequests> m_requested{};
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

QImage Shape::Layers::rasterised(const Layer &layer)
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

void Shape::fill(QPainter &painter, const QColor &color) const
{
    if (!drawFromLayer(painter, { m_kind, m_rect.size(), m_radius, 0, color.rgba64() })) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        draw(painter);
    }
}

void Shape::stroke(QPainter &painter, const QColor &color, int width) const
{
    if (!drawFromLayer(painter, { m_kind, m_rect.size(), m_radius, width, color.rgba64() })) {
        painter.setPen(QPen(color, width));
        painter.setBrush(Qt::NoBrush);
        draw(painter);
    }
}

bool Shape::drawFromLayer(QPainter &painter, const Layer &layer) const
{
    const int margin = marginOf(layer.lineWidth);
    if (!isSmall(m_rect.size() + QSize(2 * margin, 2 * margin))
        || !isProven(m_rect.size(), m_radius, layer.lineWidth) || !isProven(painter)) {
        return false;
    }
    const Pixels *pixels = Layers::instance().find(layer);
    if (pixels) {
        pixels->draw(painter, m_rect.topLeft() - QPoint(margin, margin));
    }
    return pixels;
}

void Shape::draw(QPainter &painter) const
{
    if (m_kind == RoundedRect) {
        painter.drawRoundedRect(QRectF(m_rect), m_radius, m_radius);
    } else {
        painter.drawEllipse(m_rect);
    }
}
