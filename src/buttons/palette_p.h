// SPDX-License-Identifier: MIT
#pragma once

#include <QRgb>
#include <QString>
#include <QStringList>

#include <array>

/** The five shades of a button's colour scheme, from the lightest to the darkest. */
struct ButtonPalette
{
    enum Shade {
        RestingPlainFill,
        RestingPlainBorder,
        HoverFill,
        Fill,        ///< at rest; a plain button's caption at rest and its fill under the pointer
        PressedFill, ///< and that of a checked button at rest
    };

    std::array<QRgb, 5> shades;

    QRgb operator[](Shade shade) const
    {
        return shades[shade];
    }
};

/** The palette of a scheme's name; the red one for every name that is none. */
const ButtonPalette &buttonPalette(const QString &color);

/** Replaces the custom shades unless there are fewer than five. */
void setCustomButtonShades(QStringList shades);
