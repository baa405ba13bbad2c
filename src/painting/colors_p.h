// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

/** The colours that several families of widgets draw with. */
namespace Colors {

constexpr QRgb primary = qRgb(64, 158, 255);
constexpr QRgb inactive = qRgb(220, 223, 230); ///< of frames without focus, of what is off
/** The glyph of a tile, and of a small button that is no toggle, at rest. */
constexpr QRgb restingGlyph = qRgb(198, 198, 198);
/** The glyph of a toggle, and of a line edit, at rest. */
constexpr QRgb restingToggle = qRgb(184, 186, 188);
/** The glyph of a small button that is hovered or checked; the frame of a focused field. */
constexpr QRgb emphasized = qRgb(32, 32, 32);

} // namespace Colors
