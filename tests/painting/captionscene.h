// SPDX-License-Identifier: MIT
#pragma once

#include "painting/canvas_p.h"
#include "painting/caption_p.h"
#include "painting/shape_p.h"
#include "pixels.h"

#include <functional>

/** A button's look: what is drawn, and how the same is drawn by QPainter alone. */
struct Scene
{
    Caption caption;
    QRect rect;
    int radius;
    QColor fill;
    int lineWidth;

    Shape shape() const;
};

constexpr QSize buttonSize(120, 36);

/** The scene of a button of that size with @p text. */
Scene sceneOf(const QString &text, QSize size = buttonSize);

/** Draws @p scene as a button does; returns whether the caption was copied. */
bool draw(const Scene &scene, QPainter &painter);
/** Draws the same, and always writes the caption. */
void drawReference(const Scene &scene, QPainter &painter);

/** Where and how a widget is drawn. */
struct Target
{
    using Prepare = std::function<void(QWidget &)>;

    QImage::Format format = QImage::Format_ARGB32_Premultiplied;
    QPoint offset = QPoint(0, 0);
    QRegion region = {};
    Prepare prepare = nullptr;
    /** Set for a widget that is drawn by another's painter: what is done with that before. */
    std::function<void(QPainter &)> open = nullptr;
    int dotsPerInch = 0; ///< of the widget's screen; 0 for the one there is
};

QImage pictureOn(const Target &target, QSize size, const DrawnWidget::Draw &paint);

/** How often the caption has been copied in @p pictures, which follow each other. */
int copiesIn(const Scene &scene, const Target &target, int pictures);

/** Draws @p scene until it may have been kept; compares the last picture, and tells whether the
 * caption was copied there. */
void comparePictures(const Scene &scene, const Target &target, bool *wasCopied);
