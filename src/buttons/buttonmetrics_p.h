// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/** What the looks of the buttons and the forms around them share; lengths are in pixels. */
namespace ButtonMetrics {

/** The font of an OlvButton's caption, before it is made smaller to fit. */
inline QString captionFamily()
{
    return QStringLiteral("宋体");
}
constexpr int captionPointSize = 9;

/** The radius of the corners of an OlvButton. */
inline int cornerRadius(const QString &type, int height)
{
    return height / (type == QLatin1String("round") ? 2 : 5);
}

/** The bands of an OlvIconButton: its width holds as many. */
constexpr int tilePartCount = 4;
constexpr int tileCornerRadius = 10;

/** The sides of an OlvSimpleIconButton. */
constexpr int glyphSideLength = 30;

} // namespace ButtonMetrics
