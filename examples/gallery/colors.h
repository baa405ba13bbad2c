// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

/** Dark text on white: the gallery's colours, and those of what lies on a widget that is light. */
QPalette lightColors();

/** Light text on dark grey. */
QPalette darkColors();
