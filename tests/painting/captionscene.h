// SPDX-License-Identifier: MIT
#pragma once

#include "painting/canvas_p.h"
#include "painting/caption_p.h"
#include "painting/shape_p.h"
#include "pixels.h"

#include <functional>

/** A button's look: a caption, and what it is written on. */
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

/** Where and how a widget is drawn. */
struct Target
{
    QImage::Format format = QImage::Format_ARGB32_Premultiplied;
    QPoint offset = QPoint(0, 0);
    QRegion region = {};
    std::function<void(QWidget &)> prepare = nullptr;
    /** Set for a widget that is drawn by another painter: what is done with that before. */
    std::function<void(QPainter &)> open = nullptr;
    int dotsPerInch = 0; ///< of the widget's screen; 0 for the one there is
    double devicePixelRatio = 1.0;
};

/** The picture of @p scene on @p target; @p wasCopied tells whether the caption was copied. */
QImage pictureOf(const Scene &scene, const Target &target, bool *wasCopied = nullptr);
/** The same, drawn by QPainter alone. */
QImage referenceOf(const Scene &scene, const Target &target);

/** How often the caption is copied in @p pictures, which follow each other. */
int copiesIn(const Scene &scene, const Target &target, int pictures);

/** Compares the third picture of @p scene with the reference. */
void compareThirdPicture(const Scene &scene, const Target &target, bool *wasCopied);

Q_DECLARE_METATYPE(Scene)
Q_DECLARE_METATYPE(Target)
