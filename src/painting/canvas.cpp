// SPDX-License-Identifier: MIT
#include "painting/canvas_p.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>

namespace {

/** Up to this distance from the device's origin, in pixels, QPainter's arithmetic is exact. */
constexpr qreal maxDistance = 16384.0;

bool isWholePixel(qreal position)
{
    return qAbs(position) <= maxDistance && position == qRound(position);
}

/** Whether windows, pixmaps and cached pixels have this format. */
bool isWindowFormat(QImage::Format format)
{
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
}

/** Whether pixels are drawn over those of the device as they are: nothing moves or mixes them. */
bool isCopyExact(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    return painter.testRenderHint(QPainter::Antialiasing)
        && transform.type() <= QTransform::TxTranslate && isWholePixel(transform.dx())
        && isWholePixel(transform.dy()) && painter.opacity() >= 1.0
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver
        && !painter.hasClipping();
}

const QImage *imageOf(const QPaintEngine *engine)
{
    if (!engine || engine->type() != QPaintEngine::Raster) {
        return nullptr;
    }
    const QPaintDevice *device = engine->paintDevice();
    if (!device || device->devType() != QInternal::Image) {
        return nullptr;
    }
    const auto *image = static_cast<const QImage *>(device);
    return isWindowFormat(image->format()) ? image : nullptr;
}

} // namespace

Canvas::Canvas(QPainter &painter)
    : m_painter(painter)
    , m_copyTarget(isCopyExact(painter) ? imageOf(painter.paintEngine()) : nullptr)
{ }

QPainter &Canvas::painter() const
{
    return m_painter;
}

const QImage *Canvas::copyTarget() const
{
    return m_copyTarget;
}
