// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

// A member in this C header is named like a keyword of C++. Compilers warn of what that takes, but
// not in a system's header.
#pragma GCC system_header
#define explicit explicitParts
#include <xcb/xkb.h>
#undef explicit
