// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QDesignerWidgetBoxInterface;
struct WidgetKind;

/**
 * Makes the entry of @p kind in the @p group of Designer's widget box drop the widget inside a
 * plain one, which a plugin's own description of a widget cannot ask for.
 */
void dropInViewport(QDesignerWidgetBoxInterface *box, const QString &group, const WidgetKind &kind);
