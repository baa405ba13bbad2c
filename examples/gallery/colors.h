// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

class QPushButton;

/** Dark text on white: the gallery's colours, and those of what lies on a widget that is light. */
QPalette lightColors();

/** Light text on dark grey. */
QPalette darkColors();

/** On a dark background: makes a glyph light where its own style sheet makes it dark. */
void lightenGlyph(QPushButton *button);
