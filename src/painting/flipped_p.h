// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>

/**
 * Draws what @p draw draws with its painter in an area of @p size, as a mirror shows it: left and
 * right are exchanged, pixel by pixel. It is not for text.
 *
 * A painter that is flipped draws other pixels: lines and curves are rounded to the left and to the
 * top whatever its transform is.
 */
template <typename Draw> void drawFlipped(QPainter &painter, QSize size, Draw draw)
{
    const QTransform toDevice = painter.deviceTransform();
    const qreal scale = toDevice.type() <= QTransform::TxScale ? qAbs(toDevice.m11()) : 1.0;
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return;
    }
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter flipped(&image);
    draw(flipped);
    flipped.end();
    painter.drawImage(0, 0, image.mirrored(true, false));
}
