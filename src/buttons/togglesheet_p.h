// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

/** The style sheet of an OlvSimpleIconButton that is a toggle, whose glyph is @p resting at rest.
 */
inline QString toggleSheet(const QColor &resting)
{
    return QStringLiteral("QPushButton{border:none;color:rgb(%1,%2,%3);}"
                          "QPushButton:hover{color:rgb(32,32,32)}"
                          "QPushButton:checked{color:rgb(32,32,32)}")
        .arg(resting.red())
        .arg(resting.green())
        .arg(resting.blue());
}
