// SPDX-License-Identifier: MIT
#include "prepared.h"

#include <QPainter>

#include <utility>

namespace {

constexpr QColor blue(64, 158, 255);

PreparedPair preparePair(const PreparedDrawing &track, const PreparedDrawing &knob,
                         const QRect &knobGeometry, QWidget *parent)
{
    PreparedPair pair;
    pair.track = new PreparedWidget(track, parent);
    pair.knob = new PreparedWidget(knob, pair.track);
    pair.knob->setGeometry(knobGeometry);
    return pair;
}

} // namespace

PreparedWidget::PreparedWidget(PreparedDrawing drawing, QWidget *parent)
    : QWidget(parent)
    , m_drawing(std::move(drawing))
{ }

void PreparedWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(m_drawing.pen);
    painter.setBrush(m_drawing.brush);
    if (m_drawing.radius == PreparedDrawing::ellipse) {
        painter.drawEllipse(m_drawing.rect.toRect());
    } else {
        painter.drawRoundedRect(m_drawing.rect, m_drawing.radius, m_drawing.radius);
    }
    if (!m_drawing.caption.isEmpty()) {
        painter.setPen(m_drawing.captionPen);
        painter.setFont(m_drawing.font);
        painter.drawText(m_drawing.captionRect, Qt::AlignCenter, m_drawing.caption);
    }
}

PreparedPair prepareSwitch(QWidget *parent)
{
    PreparedDrawing track;
    track.brush = QColor(220, 223, 230);
    track.rect = QRectF(0, 0, 50, 24);
    track.radius = 12;
    PreparedDrawing knob;
    knob.brush = QColor(Qt::white);
    knob.rect = QRectF(2, 2, 20, 20);
    knob.radius = PreparedDrawing::ellipse;
    return preparePair(track, knob, QRect(0, 0, 24, 24), parent);
}

PreparedPair prepareSlider(QWidget *parent)
{
    PreparedDrawing track;
    track.brush = blue;
    track.rect = QRectF(15, 10, 170, 10);
    track.radius = 5;
    PreparedDrawing knob;
    knob.pen = QPen(blue, 2.0);
    knob.brush = QColor(Qt::white);
    knob.rect = QRectF(2, 2, 16, 16);
    knob.radius = PreparedDrawing::ellipse;
    return preparePair(track, knob, QRect(5, 5, 20, 20), parent);
}
