// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

// A member in this C header has the name of a C++ keyword. Compilers warn of a macro with that
// name, except in system headers.
#pragma GCC system_header
#define explicit explicitParts
#include <xcb/xkb.h>
#undef explicit
