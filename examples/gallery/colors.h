// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

class QPushButton;

/** Dark text on white: the gallery's default, and the colours of text on a light widget. */
QPalette lightColors();

/** Light text on dark grey. */
QPalette darkColors();

/** On a dark background: a style sheet that makes a button's glyph light instead of dark. */
void lightenGlyph(QPushButton *button);
