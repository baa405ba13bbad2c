// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/**
 * Replaces the library of shortcuts at link time: every combination can be registered, except those
 * of a key that is refused, whatever the desktop holds.
 */
namespace ShortcutStandIn {

/** How many are alive. */
int living();
/** Refuses the combinations of this key from now on. */
void refuse(int key);
/** What toString() gives. */
QString textOf(int key, bool ctrl, bool shift, bool alt, bool meta);

} // namespace ShortcutStandIn
