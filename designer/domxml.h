// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct WidgetKind;

/** What a form gets when a widget of @p kind is dropped into it, as Designer wants it told. */
QString domXml(const WidgetKind &kind);

/** The same for a widget that lies in a plain one, which it fills. */
QString viewportDomXml(const WidgetKind &kind);
