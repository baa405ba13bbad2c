// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QScrollBar>

class QWheelEvent;

/** The scroll bar of a flow grid, whose unit is a number of pixels. */
namespace GridScrollBar {

constexpr int width = 10;
constexpr int pixelsPerUnit = 25;

/** Gives @p bar its look, and hides it. */
void setUp(QScrollBar *bar);

/** Scrolls back to the start and hides the bar; a slot of its signals may delete it meanwhile. */
void reset(const QPointer<QScrollBar> &bar);

/** The value after a turn of the wheel. */
int valueAfter(const QWheelEvent *event, const QScrollBar *bar);

/**
 * The units that show @p hiddenHeight pixels more than the view has: as many as go into them, or,
 * rounded up, as many as reach the last pixel.
 */
int maximum(int hiddenHeight, bool isRoundedUp);

/**
 * The value at which the pixels from @p top to @p bottom of the content are in a view of @p height:
 * the nearest one to @p value, and the one that shows the top where the view is too low for both.
 */
int valueShowing(qint64 top, qint64 bottom, int height, int value);

} // namespace GridScrollBar
