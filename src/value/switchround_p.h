// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/value.h>

/** What a knob and its switch share. */
class SwitchRound::Private
{
public:
    /** The margin between the edge of a knob of @p height and its disc, in pixels. */
    static int insetAt(int height)
    {
        return height / 10;
    }

    QColor color = Qt::white;
    int inset = 0;
    /** Whether the knob keeps to its end of the track when the switch is resized. */
    bool staysAtEnd = false;
};
