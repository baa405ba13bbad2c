// SPDX-License-Identifier: MIT
// An empty library that links the same libraries as the library of widgets.
