// SPDX-License-Identifier: MIT
#include <OlvWidgets/value.h>

#include "painting/canvas_p.h"
#include "painting/shape_p.h"

#include <QPainter>

namespace {
constexpr int insetDivisor = 10;
}

SwitchRound::SwitchRound(QWidget *parent)
    : QWidget(parent)
    , m_color(Qt::white)
    , m_inset(height() / insetDivisor)
{ }

QColor SwitchRound::color() const
{
    return m_color;
}

void SwitchRound::setColor(const QColor &color)
{
    m_color = color;
}

int SwitchRound::inset() const
{
    return m_inset;
}

void SwitchRound::setInset(int inset)
{
    m_inset = inset;
}

void SwitchRound::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // an application may have set any number
    const int inset = qBound(-QWIDGETSIZE_MAX, m_inset, QWIDGETSIZE_MAX);
    const int last = height() - 1 - inset;
    Shape::ellipse(QRect(QPoint(inset, inset), QPoint(last, last))).fill(Canvas(painter), m_color);
}
