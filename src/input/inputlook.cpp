// SPDX-License-Identifier: MIT
#include "input/inputlook_p.h"

#include "painting/contrast_p.h"

namespace {

/** What is seen at two fifths of this, as disabled fields are, has still a contrast of 1.9. */
constexpr double strongContrast = 7.0;

} // namespace

QColor InputLook::textColor(const QColor &color) const
{
    switch (contrast) {
    case Unchanged:
        break;
    case Readable:
        return ::Contrast::atLeast(::Contrast::readable, color, Qt::white);
    case Strong:
        return ::Contrast::atLeast(strongContrast, color, Qt::white);
    }
    return color;
}
