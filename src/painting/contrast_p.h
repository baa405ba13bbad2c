// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/**
 * How well a colour is told from the ground it is on.
 *
 * The figures are those of the Web Content Accessibility Guidelines 2.1 (W3C Recommendation, 5 June
 * 2018), "relative luminance" and "contrast ratio": 1 for equal colours, 21 for black on white.
 * Their success criterion 1.4.3 asks for 4.5 where text is to be read.
 */
namespace Contrast {

constexpr double readable = 4.5;

/** The contrast of two opaque colours. */
double ratio(const QColor &one, const QColor &other);
/** What is seen of @p color, which may be translucent, on @p ground, which is opaque. */
QColor seen(const QColor &color, const QColor &ground);
/**
 * @p color, mixed with as little black or white as gives it a contrast of @p least on @p ground;
 * if no mixture reaches @p least: black or white, the one with more contrast.
 */
QColor atLeast(double least, const QColor &color, const QColor &ground);

} // namespace Contrast
