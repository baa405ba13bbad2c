// SPDX-License-Identifier: MIT
#pragma once

class OlvGridLayout;

/**
 * Has the rows of flow grids begin at the right, which a form may ask for. To mirror, or to stop
 * it, moves the widgets and the scroll bar to the other side, and changes nothing else.
 */
class GridMirror
{
public:
    static void set(OlvGridLayout *grid, bool isOn);
    static bool isOn(const OlvGridLayout *grid);
};
