// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/value.h>

#include "support/mirror_p.h"

/** What a knob and its switch share. */
class SwitchRound::Private
{
public:
    static Private *of(const SwitchRound *knob)
    {
        return knob->d.get();
    }

    /** The margin between the edge of a knob of @p height and its disc, in pixels. */
    static int insetAt(int height)
    {
        return height / 10;
    }

    QColor color = Qt::white;
    int inset = 0;
    Mirror mirror;
    /** Whether the knob keeps to its end of the track when the switch is resized. */
    bool staysAtEnd = false;
};
