// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QFont>
#include <QPen>
#include <QRect>
#include <QString>
#include <QVector>
#include <QWidget>

/** One shape with a caption, as arguments of the QPainter calls that draw it. */
struct PreparedDrawing
{
    /** The radius with which an ellipse is drawn. */
    static constexpr qreal ellipse = -1;

    QPen pen = Qt::NoPen;
    QBrush brush;
    QRectF rect;
    qreal radius = 0; ///< of the corners
    QString caption;
    QPen captionPen;
    QRect captionRect;
    QFont font;
};

/**
 * The lower bound of all painting: a widget that makes the same QPainter calls as the library's,
 * with every colour, pen, font and rectangle prepared.
 */
class PreparedWidget : public QWidget
{
public:
    PreparedWidget(PreparedDrawing drawing, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    PreparedDrawing m_drawing;
};

/** A track with its knob, which is a child of it and stands at the start. */
struct PreparedPair
{
    QWidget *track = nullptr;
    QWidget *knob = nullptr;
};

/** They draw what an OlvSwitch that is off, 50 by 24 pixels, and an OlvSlider, 200 by 30, draw. */
PreparedPair prepareSwitch(QWidget *parent);
PreparedPair prepareSlider(QWidget *parent);
