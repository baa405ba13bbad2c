// SPDX-License-Identifier: MIT
#pragma once

#include <OlvButton>

#include <QVariant>

/** What a button says of itself: "init" or "click". */
inline QString stateOf(const OlvButton &button)
{
    return button.property("state").toString();
}
