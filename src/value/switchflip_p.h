// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/value.h>

#include "value/valueproperties_p.h"

/**
 * Flips a switch as a click does. One that slides is left alone: a second start within the
 * animation, before its first step too, would start a second timer, which has the switch flip back
 * and forth.
 */
inline void flipUnlessSliding(OlvSwitch &toggle)
{
    const bool on = toggle.property(ValueProperties::switchIsOn).toBool();
    if (toggle.isChecked() == on) {
        toggle.setValue(!on);
    }
}
