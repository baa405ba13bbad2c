// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/**
 * A stand-in for the library of shortcuts, linked in its place: it registers every combination but
 * those that it is told to refuse, and there is no desktop that could have its say.
 */
namespace FakeShortcut {

/** How many are alive. */
int living();
/** Has the combinations of this key refused from now on. */
void refuse(int key);
/** What toString() gives. */
QString textOf(int key, bool ctrl, bool shift, bool alt, bool meta);

} // namespace FakeShortcut
