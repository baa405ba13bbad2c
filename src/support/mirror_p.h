// SPDX-License-Identifier: MIT
#pragma once

#include "support/pixels_p.h"

/** The horizontal positions of a widget's parts, mirrored or not. */
struct Mirror
{
    bool isOn = false;
    /** How wide the widget is, in pixels, as its parts have heard of it last. */
    int width = 0;

    /** Where a part @p partWidth pixels wide stands on the other side of a widget. */
    static int reflected(qint64 x, int partWidth, int width)
    {
        return toPixels(qint64(width) - partWidth - x);
    }
    /**
     * Where a part @p partWidth pixels wide stands, from where it would stand in a widget that is
     * not mirrored; and the other way round.
     */
    int placed(int x, int partWidth) const
    {
        return isOn ? reflected(x, partWidth, width) : x;
    }
    /** A distance from the left edge of such a part, counted from its other edge if mirrored. */
    int within(int x, int partWidth) const
    {
        return isOn ? partWidth - x : x;
    }
};
