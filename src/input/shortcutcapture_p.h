// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

/**
 * The keys that a shortcut editor has noted. Its property "Temp" holds the address of this record,
 * so that the fields stay in this order.
 */
struct ShortcutCapture
{
    bool ctrl = false;
    bool shift = false;
    bool alt = false;
    bool meta = false;
    int key = 0;
    bool recording = false;

    /** The key that was noted; Qt::Key_unknown, which no shortcut can have, for what is no key. */
    Qt::Key qtKey() const
    {
        return key >= 0 && key < Qt::Key_unknown ? Qt::Key(key) : Qt::Key_unknown;
    }

    /** The flag of a modifier; null for every other key. */
    bool *modifier(int pressed)
    {
        switch (pressed) {
        case Qt::Key_Control:
            return &ctrl;
        case Qt::Key_Shift:
            return &shift;
        case Qt::Key_Alt:
            return &alt;
        case Qt::Key_Meta:
            return &meta;
        default:
            return nullptr;
        }
    }
};
