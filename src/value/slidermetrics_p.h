// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>

/** What the slider and its knob share, in pixels. */
namespace SliderMetrics {

constexpr int height = 30;
constexpr int pressedKnobSize = 30;
constexpr int restingKnobSize = 20;
/** How far the resting knob lies in from its logical position, in both directions. */
constexpr int knobInset = (pressedKnobSize - restingKnobSize) / 2;

constexpr QRgb blue = qRgb(64, 158, 255);

} // namespace SliderMetrics
