// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QVector>

#include <algorithm>
#include <cmath>

/** Contrasts as the Web Content Accessibility Guidelines have them, of what has been drawn. */
namespace Measured {

inline double luminance(QRgb color)
{
    const auto linear = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color) / 255.0) + 0.7152 * linear(qGreen(color) / 255.0)
        + 0.0722 * linear(qBlue(color) / 255.0);
}

inline double contrast(QRgb one, QRgb other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

/** The colours of a picture, the one of the most pixels first. */
inline QVector<QRgb> colors(const QImage &image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    QVector<QRgb> all;
    for (auto one = counts.cbegin(); one != counts.cend(); ++one) {
        all.append(one.key());
    }
    std::sort(all.begin(), all.end(), [&](QRgb a, QRgb b) {
        return counts.value(a) != counts.value(b) ? counts.value(a) > counts.value(b) : a < b;
    });
    return all;
}

/** The contrast of the two colours that most of a picture has: a text in blocks and its ground. */
inline double contrastIn(const QImage &image)
{
    const QVector<QRgb> all = colors(image);
    return all.size() < 2 ? 1.0 : contrast(all.at(0), all.at(1));
}

} // namespace Measured
