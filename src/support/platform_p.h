// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>

/**
 * Whether the windows are on Wayland, where a program cannot place its windows, nor keep them above
 * or below others. The platforms of different graphics are called "wayland-egl" and the like.
 */
inline bool isOnWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}
