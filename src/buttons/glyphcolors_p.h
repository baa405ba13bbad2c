// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

/** The colour of the glyph of a tile, and of a small button that is no toggle, at rest. */
constexpr QRgb restingGlyph = qRgb(198, 198, 198);
/** The colour of a toggle's glyph at rest. */
constexpr QRgb restingToggle = qRgb(184, 186, 188);
