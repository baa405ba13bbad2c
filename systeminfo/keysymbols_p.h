// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

#include <xkbcommon/xkbcommon.h>

/** The symbol of a named key; none for text keys and for keys that cannot be a shortcut. */
xkb_keysym_t symbolOf(Qt::Key key);

/** Whether the key's number is that of its character, in upper case if it has one. */
bool isTextKey(Qt::Key key);
