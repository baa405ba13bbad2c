// SPDX-License-Identifier: MIT
#pragma once

/** What the slider and its knob share; lengths are in pixels. */
namespace SliderMetrics {

constexpr int height = 30;
constexpr int pressedKnobSize = 30;
constexpr int restingKnobSize = 20;
/** How far the resting knob lies in from its logical position, in both directions. */
constexpr int knobInset = (pressedKnobSize - restingKnobSize) / 2;

/** The value at the far right, in percent. */
constexpr int fullProgress = 100;

} // namespace SliderMetrics
