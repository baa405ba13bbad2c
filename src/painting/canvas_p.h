// SPDX-License-Identifier: MIT
#pragma once

class QImage;
class QPainter;

/**
 * What a paint event draws shapes and captions on: its painter, and whether cached pixels may be
 * copied there in place of drawing.
 *
 * It is made once the painter has been set up. As long as it is used, the painter keeps its
 * transform, clip, opacity, composition mode and render hints.
 */
class Canvas
{
public:
    explicit Canvas(QPainter &painter);

    QPainter &painter() const;
    /**
     * The image that the painter draws on, if copying pixels there gives exactly what drawing
     * gives. Null for any other device, for an image in another format than windows have, and when
     * the painter is not antialiased, transforms by more than whole pixels, clips, is translucent
     * or blends in another way than by drawing over.
     */
    const QImage *copyTarget() const;

private:
    QPainter &m_painter;
    const QImage *m_copyTarget;
};
