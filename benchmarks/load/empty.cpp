// SPDX-License-Identifier: MIT
// A library that links what the library of widgets links, and has nothing in it.
