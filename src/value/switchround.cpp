// SPDX-License-Identifier: MIT
#include "value/switchround_p.h"

#include "painting/canvas_p.h"
#include "painting/shape_p.h"

#include <QPainter>

SwitchRound::SwitchRound(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->inset = Private::insetAt(height());
}

SwitchRound::~SwitchRound() = default;

QColor SwitchRound::color() const
{
    return d->color;
}

void SwitchRound::setColor(const QColor &color)
{
    d->color = color;
}

int SwitchRound::inset() const
{
    return d->inset;
}

void SwitchRound::setInset(int inset)
{
    d->inset = inset;
}

void SwitchRound::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // an application may have set any number
    const int inset = qBound(-QWIDGETSIZE_MAX, d->inset, QWIDGETSIZE_MAX);
    const int last = height() - 1 - inset;
    Shape::ellipse(QRect(QPoint(inset, inset), QPoint(last, last))).fill(Canvas(painter), d->color);
}
