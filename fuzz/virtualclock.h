// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/**
 * The clock of this program, which stands still unless the storm moves it on. Qt's timers
 * go by it: they fire when the storm says so, which makes a run depend on its seed alone, and a
 * timer of two seconds no slower than one of a millisecond.
 */
namespace VirtualClock {

/** Moves the clock on. */
void advance(std::chrono::milliseconds time);

/** Moves the clock on to the next full hour, for Qt's timers look at what part of a second it is.
 */
void advanceToHour();

/** The time that has really gone by since the program began. */
std::chrono::milliseconds real();

} // namespace VirtualClock
