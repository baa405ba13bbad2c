// SPDX-License-Identifier: MIT
// Keeps the place of the library until its first class comes.
#include <QtGlobal>
