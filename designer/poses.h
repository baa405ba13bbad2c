// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/** Set a widget up so that its icon shows what it is. */
namespace Pose {

void lightUp(QWidget *button);
void typeText(QWidget *edit);
void nameKey(QWidget *edit);
void switchOn(QWidget *widget);
/** Three of the buttons, large and dark enough for an icon. */
void showWindowButtons(QWidget *bar);
void slideHalfWay(QWidget *slider);
void fillWithTiles(QWidget *widget);
/** An outline, for the placeholder, which draws nothing itself. */
void outline(QWidget *widget);

} // namespace Pose
