// SPDX-License-Identifier: MIT
#include "prepared.h"

#include <QPainter>

#include <utility>

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
