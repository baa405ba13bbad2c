// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

/** What the containers and the forms around them share; lengths are in pixels. */
namespace ContainerMetrics {

/** How large an OlvFlexWidget is that is not told its size. */
constexpr QSize panelSize(240, 180);

} // namespace ContainerMetrics
