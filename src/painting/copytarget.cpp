// SPDX-License-Identifier: MIT
#include "painting/copytarget_p.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>

namespace {

/** How far from the origin of the device positions are certain to be exact. */
constexpr qreal farthest = 16384.0;

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

const QImage *provenImage(const QPaintEngine *engine)
{
    if (!engine || engine->type() != QPaintEngine::Raster) {
        return nullptr;
    }
    const QPaintDevice *device = engine->paintDevice();
    if (!device || device->devType() != QInternal::Image) {
        return nullptr;
    }
    const auto *image = static_cast<const QImage *>(device);
    return isProven(image->format()) ? image : nullptr;
}

} // namespace

const QImage *copyTarget(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    const bool isProven = transform.type() <= QTransform::TxTranslate && isWhole(transform.dx())
        && isWhole(transform.dy()) && painter.opacity() >= 1.0
        && painter.compositionMode() == QPainter::CompositionMode_SourceOver
        && !painter.hasClipping();
    return isProven ? provenImage(painter.paintEngine()) : nullptr;
}
