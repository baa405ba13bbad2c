// SPDX-License-Identifier: MIT
#pragma once

#include <OlvSlider>

inline SliderRound *knobOf(const OlvSlider &slider)
{
    return reinterpret_cast<SliderRound *>(slider.property("SliderRound").toULongLong());
}
