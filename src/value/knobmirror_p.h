// SPDX-License-Identifier: MIT
#pragma once

class OlvSlider;
class OlvSwitch;

/**
 * Has sliders and switches run from the right to the left, which a form may ask for.
 *
 * A mirrored knob keeps to its value when its widget is resized. To mirror, or to stop it, moves
 * the knob to the other side, and changes nothing else.
 */
class KnobMirror
{
public:
    static void set(OlvSlider *slider, bool isOn);
    static void set(OlvSwitch *toggle, bool isOn);
    static bool isOn(const OlvSlider *slider);
};
