// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>

class QKeyEvent;
class QWidget;

/** The keyboard in a flow grid of a form: its tiles may be many more than are visible. */
namespace FormGrid {

/**
 * Moves the focus from @p tile, a widget of a grid, by an arrow key, Home or End; returns whether
 * it has. Afterwards the tile may have been deleted.
 */
bool moveFocus(QWidget *tile, const QKeyEvent &key);

/** Scrolls to @p widget when @p event says that the keyboard brought the focus there. */
void follow(QWidget *widget, const QEvent *event);

} // namespace FormGrid
