// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/** What the property "state" of the buttons holds. */
namespace ButtonState {

inline QString resting()
{
    return QStringLiteral("init");
}

inline QString hovered()
{
    return QStringLiteral("hover");
}

inline QString pressed()
{
    return QStringLiteral("click");
}

} // namespace ButtonState
