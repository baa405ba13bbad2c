// SPDX-License-Identifier: MIT
#pragma once

#include "mouse.h"

#include <OlvSlider>

inline SliderRound *knobOf(const OlvSlider &slider)
{
    return reinterpret_cast<SliderRound *>(slider.property("SliderRound").toULongLong());
}

inline void dragKnobToTheEnd(OlvSlider &slider)
{
    SliderRound *knob = knobOf(slider);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 1000, 10 });
    Mouse::release(knob);
}
