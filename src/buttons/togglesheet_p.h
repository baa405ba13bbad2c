// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/foundation.h>

#include "painting/colors_p.h"

#include <QColor>
#include <QString>

/** The style sheet of an OlvSimpleIconButton that is a toggle, whose glyph is @p resting at rest.
 */
inline QString toggleSheet(const QColor &resting)
{
    return QStringLiteral("QPushButton{border:none;color:rgb(%1);}"
                          "QPushButton:hover{color:rgb(%2)}"
                          "QPushButton:checked{color:rgb(%2)}")
        .arg(OlvColorToString(resting), OlvColorToString(QColor(Colors::emphasized)));
}
