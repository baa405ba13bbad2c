// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

/**
 * How OlvButton and OlvIconButton follow the mouse, which they keep in the properties "state" and
 * "hovered". Setting either tells the button's event filters, which may delete the button.
 */
namespace ButtonState {

inline QString resting()
{
    return QStringLiteral("init");
}

inline QString hovered()
{
    return QStringLiteral("hover");
}

inline QString pressed()
{
    return QStringLiteral("click");
}

/** The state of a new button. */
void reset(QWidget *button);

void enter(QWidget *button);
void leave(QWidget *button);
void press(QWidget *button);
/** Returns whether the release makes a click: the pointer is inside and the button still exists. */
bool release(QWidget *button);

} // namespace ButtonState
