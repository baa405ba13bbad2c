// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <array>

namespace {

constexpr int opaque = 255;
constexpr int channelCount = 3;
constexpr int digitsOfChannel = 3;
constexpr int longestText = channelCount * digitsOfChannel + channelCount - 1;
constexpr QLatin1Char separator(',');
/** No number of that many decimal digits is too large for an int. */
constexpr int safeDigits = 9;

/** Writes a channel, 0 to 255, in decimal, and returns what follows. */
QChar *writeChannel(QChar *position, int channel)
{
    if (channel >= 100) {
        *position++ = QLatin1Char(char('0' + channel / 100));
    }
    if (channel >= 10) {
        *position++ = QLatin1Char(char('0' + channel / 10 % 10));
    }
    *position++ = QLatin1Char(char('0' + channel % 10));
    return position;
}

/** Reads the number up to the next separator, and moves @p position behind that. */
int readChannel(const QChar *&position, const QChar *end)
{
    const QChar *const begin = position;
    uint number = 0;
    bool isPlain = true;
    for (; position != end && *position != separator; ++position) {
        const uint digit = uint(position->unicode()) - '0';
        isPlain = isPlain && digit <= 9;
        number = number * 10 + digit;
    }
    const int length = int(position - begin);
    if (position != end) {
        ++position;
    }
    // white space, signs, and what is no number, are rare
    return isPlain && length <= safeDigits ? int(number)
                                           : QString::fromRawData(begin, length).toInt();
}

} // namespace

QString OlvColorToString(QColor color)
{
    const QRgb rgb = color.rgb();
    std::array<QChar, longestText> text;
    QChar *end = writeChannel(text.data(), qRed(rgb));
    *end++ = separator;
    end = writeChannel(end, qGreen(rgb));
    *end++ = separator;
    end = writeChannel(end, qBlue(rgb));
    return QString(text.data(), int(end - text.data()));
}

QRgb OlvColorToRgb(QColor color)
{
    return qRgba(color.red(), color.green(), color.blue(), color.alpha());
}

QColor OlvColorFromString(QString text)
{
    const QChar *position = text.constData();
    const QChar *const end = position + text.size();
    const int red = readChannel(position, end);
    const int green = readChannel(position, end);
    const int blue = readChannel(position, end);
    QColor color;
    color.setRgb(red, green, blue, opaque);
    return color;
}
