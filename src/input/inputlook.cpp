// SPDX-License-Identifier: MIT
#include "input/inputlook_p.h"

#include "painting/contrast_p.h"

namespace {

/** At an opacity of 40 percent, as in disabled fields, it still has a contrast of 1.9. */
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
