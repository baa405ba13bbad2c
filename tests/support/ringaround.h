// SPDX-License-Identifier: MIT
#pragma once

#include <QFocusFrame>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

/** How far the ring lies outside its widget, and how thick it is. */
constexpr int ringMargin = 3;
constexpr int ringThickness = 2;

/** A picture with a ring of corners of @p radius drawn around @p rect. */
inline QImage withRing(QImage picture, const QRectF &rect, qreal radius, const QColor &color)
{
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outer = rect.adjusted(-ringMargin, -ringMargin, ringMargin, ringMargin);
    const QRectF inner =
        outer.adjusted(ringThickness, ringThickness, -ringThickness, -ringThickness);
    const qreal outerRadius = radius + ringMargin;
    QPainterPath path;
    path.addRoundedRect(outer, outerRadius, outerRadius);
    path.addRoundedRect(inner, outerRadius - ringThickness, outerRadius - ringThickness);
    painter.fillPath(path, color);
    return picture;
}

/** The ring that a form support shows in @p window; null before the first time. */
inline QFocusFrame *ringIn(const QWidget &window)
{
    return window.findChild<QFocusFrame *>();
}

inline bool hasRing(const QWidget &window)
{
    const QFocusFrame *ring = ringIn(window);
    return ring && ring->isVisible();
}

/** Brings the focus again, as Tab does it: the only widget that takes it has it from the start. */
inline void tabTo(QWidget *widget)
{
    widget->clearFocus();
    widget->setFocus(Qt::TabFocusReason);
}
