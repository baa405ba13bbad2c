// SPDX-License-Identifier: MIT
#pragma once

/** The names of the dynamic properties of this family that other folders read, too. */
namespace ValueProperties {

constexpr char switchIsOn[] = "switch";
constexpr char switchTimerId[] = "timerId";
constexpr char switchKnob[] = "round";
constexpr char sliderProgress[] = "progress";
constexpr char sliderKnob[] = "SliderRound";

} // namespace ValueProperties
