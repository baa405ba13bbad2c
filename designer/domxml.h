// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct WidgetKind;

/** The XML by which Designer makes a widget of @p kind when one is dropped into a form. */
QString domXml(const WidgetKind &kind);

/** The same for a widget inside a plain QWidget, which it fills. */
QString viewportDomXml(const WidgetKind &kind);
