// SPDX-License-Identifier: MIT
#include <OlvShortcut>

/** Registers a shortcut and lets go of it; returns whether it was registered. */
extern "C" Q_DECL_EXPORT bool registerShortcut()
{
    OlvShortcut shortcut(Qt::Key_F5, true, false, false, false);
    return shortcut.active();
}
