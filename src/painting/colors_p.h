// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

/** The colours that several families of widgets draw with. */
namespace Colors {

constexpr QRgb primary = qRgb(64, 158, 255);
constexpr QRgb inactive = qRgb(220, 223, 230); ///< of frames without focus, of what is off

} // namespace Colors
