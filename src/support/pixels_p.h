// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/** A coordinate or a length, bounded to those that a widget can have. */
inline int toPixels(qint64 value)
{
    return int(qBound(qint64(-QWIDGETSIZE_MAX), value, qint64(QWIDGETSIZE_MAX)));
}
