// SPDX-License-Identifier: MIT
#pragma once

#include "painting/shape_p.h"

#include <QColor>
#include <QImage>
#include <QString>

class Canvas;
class QPainter;

/** What a caption is written on. */
struct CaptionGround
{
    Shape shape;
    QColor color;  ///< that the shape is filled with
    int lineWidth; ///< of its outline, in pixels; 0 without one
};

/**
 * A text in the middle of a filled shape, in the largest font that fits, down from a given one.
 *
 * Laying out and blending a short text costs more than all else of a small widget. So, like the
 * shapes, a caption that has been written before is kept as pixels: those that it changed, copied
 * from then on. Only captions are kept that stand where their ground has one opaque colour, and
 * whatever their pixels depend on is compared, so that they are exactly those that QPainter draws.
 */
struct Caption
{
    QString text;
    QColor color;
    QString family;
    int pointSize; ///< the largest

    /**
     * Draws the caption on @p ground, which has been drawn and is all that may be drawn on. The
     * canvas's painter is a widget's, and has its font; its font and its pen are arbitrary
     * afterwards.
     */
    void draw(const Canvas &canvas, const CaptionGround &ground) const;

private:
    struct Key;
    class Pixels;
    class Store;

    bool mayBeKept(const CaptionGround &ground, const QImage &target) const;
    Key keyOf(const QPainter &painter, const CaptionGround &ground, QImage::Format format) const;
    void writeAndInsert(QPainter &painter, const CaptionGround &ground, const QImage &target,
                        Key key) const;
    /** Returns the point size that fits. */
    int write(QPainter &painter, const CaptionGround &ground) const;
};
