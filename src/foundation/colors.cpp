// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>

#include <QVector>

namespace {
constexpr int opaque = 255;
constexpr QLatin1Char separator(',');
} // namespace

QString OlvColorToString(QColor color)
{
    return QString::number(color.red()) + separator + QString::number(color.green()) + separator
        + QString::number(color.blue());
}

QRgb OlvColorToRgb(QColor color)
{
    return qRgba(color.red(), color.green(), color.blue(), color.alpha());
}

QColor OlvColorFromString(QString text)
{
    // a missing part is a null reference, which is no number either
    const QVector<QStringRef> parts = text.splitRef(separator);
    QColor color;
    color.setRgb(parts.value(0).toInt(), parts.value(1).toInt(), parts.value(2).toInt(), opaque);
    return color;
}
