// SPDX-License-Identifier: MIT
#include "buttons/palette_p.h"

#include <OlvWidgets/foundation.h>

#include "painting/colors_p.h"

#include <QColor>

#include <utility>

namespace {

constexpr ButtonPalette primary{ { qRgb(236, 245, 255), qRgb(179, 216, 255), qRgb(102, 177, 255),
                                   Colors::primary, qRgb(58, 142, 230) } };
constexpr ButtonPalette success{ { qRgb(240, 249, 235), qRgb(194, 231, 176), qRgb(133, 206, 97),
                                   qRgb(103, 194, 58), qRgb(93, 175, 52) } };
constexpr ButtonPalette warning{ { qRgb(253, 246, 236), qRgb(245, 218, 177), qRgb(235, 181, 99),
                                   qRgb(230, 162, 60), qRgb(207, 146, 54) } };
constexpr ButtonPalette danger{ { qRgb(254, 240, 240), qRgb(251, 196, 196), qRgb(247, 137, 137),
                                  qRgb(245, 108, 108), qRgb(221, 97, 97) } };

QStringList inWords(const ButtonPalette &palette)
{
    QStringList words;
    for (QRgb shade : palette.shades) {
        words << OlvColorToString(QColor(shade));
    }
    return words;
}

/**
 * The shades that the application set, the primary ones at first. No scheme draws with them, but
 * OlvButton::setColor() promises that the process keeps them, as a copy that shares the caller's
 * list. Never destroyed: a program may set them while it destroys its statics.
 */
QStringList &customShades()
{
    static auto *const shades = new QStringList(inWords(primary));
    return *shades;
}

} // namespace

const ButtonPalette &buttonPalette(const QString &color)
{
    if (color == QLatin1String("primary")) {
        return primary;
    }
    if (color == QLatin1String("success")) {
        return success;
    }
    if (color == QLatin1String("warning")) {
        return warning;
    }
    return danger;
}

void setCustomButtonShades(QStringList shades)
{
    if (shades.size() >= int(primary.shades.size())) {
        customShades() = std::move(shades);
    }
}
