// SPDX-License-Identifier: MIT
#include "foundation/shape_p.h"

#include <QCache>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>

#include <array>

namespace {

constexpr int bytesOfAll = 1024 * 1024;
/** Larger ones gain little, and a few of them would drive out all others. */
constexpr int bytesOfOne = bytesOfAll / 8;
constexpr int bytesOfPixel = 4;
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
    const QImage *find(const Layer &layer)
    {
        if (const QImage *kept = m_images.object(layer)) {
            return kept;
        }
        const uint hash = qHash(layer, 0);
        uint &requested = m_requested[hash % rememberedRequests];
        if (requested != hash) {
            requested = hash;
            return nullptr;
        }
        requested = 0; // what has been driven out since is to come twice again
        auto *image = new QImage(rasterised(layer));
        m_images.insert(layer, image, int(image->sizeInBytes()));
        return image;
    }

private:
    static QImage rasterised(const Layer &layer);

    QCache<Layer, QImage> m_images{ bytesOfAll };
    /** The hashes of requests that came once. */
    std::array<uint, rememberedRequests> m_requested{};
};

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
    const QImage *image = Layers::instance().find(layer);
    if (!image) {
        return false;
    }
    painter.drawImage(m_rect.topLeft() - QPoint(margin, margin), *image);
    return true;
}

void Shape::draw(QPainter &painter) const
{
    if (m_kind == RoundedRect) {
        painter.drawRoundedRect(QRectF(m_rect), m_radius, m_radius);
    } else {
        painter.drawEllipse(m_rect);
    }
}
