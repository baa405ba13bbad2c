// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

struct WidgetKind;

/** An icon that shows the widget as a form gets it. */
QIcon widgetIcon(const WidgetKind &kind);
