// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/** What the slider and its knob share; lengths are in pixels. */
namespace SliderMetrics {

constexpr int height = 30;
constexpr int pressedKnobSize = 30;
constexpr int restingKnobSize = 20;
/** How far the resting knob lies in from its logical position, in both directions. */
constexpr int knobInset = (pressedKnobSize - restingKnobSize) / 2;

/** The values at the far left and at the far right, in percent. */
constexpr int noProgress = 0;
constexpr int fullProgress = 100;

/** A value brought into that range. */
inline int inRange(int progress)
{
    return qBound(noProgress, progress, fullProgress);
}
inline double inRange(double progress)
{
    return qBound(double(noProgress), progress, double(fullProgress));
}

} // namespace SliderMetrics
