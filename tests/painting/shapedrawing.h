// SPDX-License-Identifier: MIT
#pragma once

#include "painting/canvas_p.h"
#include "painting/shape_p.h"

#include <QBrush>
#include <QImage>

#include <functional>

class QPainter;

/** A shape, how it is drawn, and the same in Qt's own words. */
struct Drawing
{
    Shape shape;
    QColor color;
    int lineWidth; ///< 0 to fill
    bool isCurved;
    std::function<void(QPainter &)> reference;
};

using Prepare = std::function<void(QPainter &)>;

/** A brush that no shape is drawn with: while the painter has it, nothing has been drawn directly.
 */
QBrush untouched();

void draw(const Drawing &drawing, QPainter &painter);
void drawReference(const Drawing &drawing, QPainter &painter);

Drawing roundedRect(const QRect &rect, int radius, const QColor &color, int lineWidth);

/** Something in every colour and opacity, so that each way of blending shows. */
QImage noise(QSize size, QImage::Format format);

void antialias(QPainter &painter);

/** A picture with a background and what is painted by a painter so prepared. */
QImage drawn(const QImage &background, const Prepare &prepare,
             const std::function<void(QPainter &)> &paint);

/** What the drawing looks like once its pixels may have been kept: it has been drawn before. */
QImage drawnAgain(const Drawing &drawing, const QImage &background, const Prepare &prepare,
                  bool *wasCopied);
