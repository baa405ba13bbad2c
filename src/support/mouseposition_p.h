// SPDX-License-Identifier: MIT
#pragma once

#include "support/qtversion_p.h"

#include <QMouseEvent>
#include <QtMath>

/**
 * Where a mouse event is in its widget, in whole pixels.
 *
 * An event may carry any number, and Qt rounds it without looking. Here one that is no number is 0,
 * and what lies so far off that adding to it might overflow is brought nearer; that is still far
 * beyond every widget.
 */
inline QPoint mousePosition(const QMouseEvent *event)
{
    constexpr qreal farthest = 1 << 28;
    const auto rounded = [=](qreal place) {
        return qIsNaN(place) ? 0 : qRound(qBound(-farthest, place, farthest));
    };
    const QPointF place = QtVersion::localPosition(event);
    return QPoint(rounded(place.x()), rounded(place.y()));
}
