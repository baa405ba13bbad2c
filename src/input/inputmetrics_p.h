// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QString>
#include <QWidget>

/** What the looks of the fields and the forms around them share; lengths are in pixels. */
namespace InputMetrics {

constexpr int cornerRadius = 3;
constexpr int iconMargin = 5;

/** An application may have written any number. */
inline int bounded(int width)
{
    return qBound(-QWIDGETSIZE_MAX, width, QWIDGETSIZE_MAX);
}

/** The width of the column that a line edit of @p height keeps free for @p icon. */
inline int columnWidth(const QString &icon, const QFont &font, int height)
{
    const int width = QFontMetrics(font).boundingRect(icon).width();
    return qMax(bounded(width) + iconMargin, height);
}

} // namespace InputMetrics
