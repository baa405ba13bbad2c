// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QWidget>

/** Where @p rect lies in a widget that runs the other way. */
inline QRect mirrored(const QRect &rect, const QWidget *in)
{
    return QRect(QPoint(in->width() - rect.width() - rect.x(), rect.y()), rect.size());
}
