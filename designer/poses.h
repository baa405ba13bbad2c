// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/** What makes a good picture of a widget for its icon. */
namespace Pose {

void lightUp(QWidget *button);
void typeText(QWidget *edit);
void nameKey(QWidget *edit);
void switchOn(QWidget *widget);
/** Three of the buttons, large and dark enough for an icon. */
void showWindowButtons(QWidget *bar);
void slideHalfWay(QWidget *slider);
void fillWithTiles(QWidget *widget);
/** The placeholder draws nothing, so that it is shown by an outline. */
void outline(QWidget *widget);

} // namespace Pose
