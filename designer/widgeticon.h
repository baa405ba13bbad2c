// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

struct WidgetKind;

/** An icon of the widget itself, as it comes into a form. */
QIcon widgetIcon(const WidgetKind &kind);
