// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRect>

class Canvas;
class QImage;
class QPainter;

/**
 * A rounded rectangle or an ellipse at whole pixels, drawn antialiased and in one solid colour at a
 * time.
 *
 * Working out which share of each pixel such a shape covers costs more than everything else that a
 * small widget paints. So the pixels of shapes that are drawn again are cached for the whole
 * process and copied. A copy has exactly the pixels that QPainter draws; where that is not certain,
 * the shape is drawn directly. Shapes are drawn in the thread of the user interface only.
 */
class Shape
{
public:
    /** A rectangle with corners of @p radius pixels; as QPainter::drawRoundedRect() draws it. */
    static Shape roundedRect(const QRect &rect, int radius);
    /** As QPainter::drawEllipse() draws it. */
    static Shape ellipse(const QRect &rect);

    /**
     * Fills the shape, without an outline. The pen and the brush of the canvas's painter are
     * arbitrary afterwards.
     */
    void fill(const Canvas &canvas, const QColor &color) const;
    /**
     * Draws the shape's outline, @p width pixels wide. To have both, fill first, as QPainter does.
     * The pen and the brush of the canvas's painter are arbitrary afterwards.
     */
    void stroke(const Canvas &canvas, const QColor &color, int width) const;

    QRect rect() const;
    /**
     * Whether the shape, filled and with an outline of @p lineWidth pixels if that is not 0, has
     * the colour of its fill in all pixels of @p part; false also for shapes that cannot be cached.
     * It draws the shape to find out.
     */
    bool isPlain(const QRect &part, int lineWidth) const;

    friend bool operator==(const Shape &a, const Shape &b)
    {
        return a.m_rect == b.m_rect && a.m_radius == b.m_radius && a.m_kind == b.m_kind;
    }

private:
    enum Kind {
        RoundedRect,
        Ellipse,
    };

    struct Key;
    class Pixels;

    Shape(Kind kind, const QRect &rect, int radius);

    /** Its pixels on a transparent background, with a margin for the outline. */
    static QImage rasterised(const Key &key);
    /** Returns whether it was drawn: false where the shape has to be drawn directly. */
    bool drawCached(const Canvas &canvas, const Key &key) const;
    void draw(QPainter &painter) const;

    Kind m_kind;
    QRect m_rect;
    int m_radius;
};
