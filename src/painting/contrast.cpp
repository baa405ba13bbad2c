// SPDX-License-Identifier: MIT
#include "painting/contrast_p.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(int channel)
{
    const double share = channel / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green())
        + 0.0722 * linear(color.blue());
}

/** A colour between two others, @p share of 255 on the way to the second one. */
QColor between(const QColor &from, const QColor &to, int share)
{
    const auto channel = [=](int a, int b) {
        return a + qRound((b - a) * share / 255.0);
    };
    return QColor(channel(from.red(), to.red()), channel(from.green(), to.green()),
                  channel(from.blue(), to.blue()));
}

} // namespace

double Contrast::ratio(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({ luminance(one), luminance(other) });
    return (lighter + 0.05) / (darker + 0.05);
}

QColor Contrast::seen(const QColor &color, const QColor &ground)
{
    return between(ground, color.rgb(), color.alpha());
}

QColor Contrast::atLeast(double least, const QColor &color, const QColor &ground)
{
    const QColor shown = seen(color, ground);
    const bool toBlack = ratio(Qt::black, ground) >= ratio(Qt::white, ground);
    const QColor end(toBlack ? Qt::black : Qt::white);
    int tooLittle = -1;
    int enough = 255;
    while (enough - tooLittle > 1) {
        const int middle = (tooLittle + enough) / 2;
        (ratio(between(shown, end, middle), ground) >= least ? enough : tooLittle) = middle;
    }
    return between(shown, end, enough);
}
