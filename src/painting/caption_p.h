// SPDX-License-Identifier: MIT
#pragma once

#include "painting/shape_p.h"

#include <QColor>
#include <QString>

class Canvas;

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
 * Laying out and blending a short text costs more than everything else that a small widget paints.
 * So the pixels of a caption are cached, like those of shapes, if they lie where the ground has one
 * opaque colour. Everything that they depend on is in the cache's key, so that a copy has exactly
 * the pixels that QPainter draws.
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
};
