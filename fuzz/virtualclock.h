// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/**
 * The clock of this program, which advances only when the storm says so. Qt's timers use it, so
 * that a run depends on its seed alone, and a timer of two seconds takes no longer than any other.
 */
namespace VirtualClock {

/** Advances the clock. */
void advance(std::chrono::milliseconds time);

/** Advances the clock to the next full hour, since Qt aligns its timers within a second. */
void advanceToHour();

/** What the program has really taken of a processor, however many others ran beside it. */
std::chrono::milliseconds processorTime();

} // namespace VirtualClock
