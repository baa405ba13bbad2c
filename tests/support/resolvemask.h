// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

/** Which roles a palette sets itself: in Qt 6 in each of its groups, in Qt 5 in all of them. */
inline quint64 resolveMask(const QPalette &palette)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return palette.resolveMask();
#else
    return palette.resolve();
#endif
}
