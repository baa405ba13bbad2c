// SPDX-License-Identifier: MIT
#include "fuzztarget.h"

#include <OlvWidgets/foundation.h>

#include <vector>

namespace {

/** White space that QString::toInt() accepts around a number: with Qt 6 that of ASCII alone. */
bool isSkipped(char16_t character)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return character <= u' ' && QChar(character).isSpace();
#else
    return QChar(character).isSpace();
#endif
}

/** A part of a colour string, read as the documentation says: an integer, or 0. */
long long partOf(const std::u16string &part)
{
    size_t begin = 0;
    size_t end = part.size();
    while (begin < end && isSkipped(part[begin])) {
        ++begin;
    }
    while (end > begin && isSkipped(part[end - 1])) {
        --end;
    }
    bool isNegative = false;
    if (begin < end && (part[begin] == u'-' || part[begin] == u'+')) {
        isNegative = part[begin] == u'-';
        ++begin;
    }
    long long value = 0;
    if (begin == end) {
        return 0;
    }
    for (; begin < end; ++begin) {
        if (part[begin] < u'0' || part[begin] > u'9') {
            return 0;
        }
        value = value * 10 + (part[begin] - u'0');
        if (value > 3'000'000'000LL) {
            return 0; // no int
        }
    }
    value = isNegative ? -value : value;
    return value > 2'147'483'647LL || value < -2'147'483'648LL ? 0 : value;
}

void readString(const QString &text)
{
    std::vector<std::u16string> parts(1);
    for (const QChar character : text) {
        if (character == QLatin1Char(',')) {
            parts.emplace_back();
        } else {
            parts.back().push_back(char16_t(character.unicode()));
        }
    }
    parts.resize(qMax<size_t>(parts.size(), 3));
    const long long red = partOf(parts[0]);
    const long long green = partOf(parts[1]);
    const long long blue = partOf(parts[2]);
    const auto isChannel = [](long long value) {
        return value >= 0 && value <= 255;
    };

    const QColor read = OlvColorFromString(text);
    const bool isValid = isChannel(red) && isChannel(green) && isChannel(blue);
    require(read.isValid() == isValid, "three numbers from 0 to 255 make a colour, others none");
    if (isValid) {
        require(read.red() == red && read.green() == green && read.blue() == blue
                    && read.alpha() == 255,
                "the colour that the numbers name");
    }
}

void writeString(FuzzInput &input)
{
    const int red = input.byte();
    const int green = input.byte();
    const int blue = input.byte();
    const int alpha = input.byte();
    const QColor color(red, green, blue, alpha);
    char expected[32];
    std::snprintf(expected, sizeof expected, "%d,%d,%d", red, green, blue);
    const QString text = OlvColorToString(color);
    require(text == QLatin1String(expected), "the channels in decimal");
    require(OlvColorToRgb(color)
                == (uint(alpha) << 24 | uint(red) << 16 | uint(green) << 8 | uint(blue)),
            "the channels in one number");
    require(OlvColorFromString(text) == QColor(red, green, blue), "a colour comes back");
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    // Qt warns about each number that is out of range
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    switch (input.byte() % 3) {
    case 0:
        writeString(input);
        break;
    case 1:
        readString(input.text(200));
        break;
    default:
        readString(QString::fromLatin1(reinterpret_cast<const char *>(data + 1),
                                       size > 0 ? int(size) - 1 : 0));
    }
    return 0;
}
