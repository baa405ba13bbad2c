// SPDX-License-Identifier: MIT
#include "pixels.h"

#include <QPainter>
#include <QSet>

#include <algorithm>
#include <utility>

DrawnWidget::DrawnWidget(QSize size, Draw draw)
    : m_draw(std::move(draw))
{
    resize(size);
}

void DrawnWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    m_draw(painter);
}

QImage pictureOf(QWidget &widget, qreal devicePixelRatio)
{
    QImage image(widget.size() * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QImage pictureOfWindow(QWidget &window, qreal devicePixelRatio)
{
    QImage image((QSizeF(window.size()) * devicePixelRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    window.render(&image);
    return image;
}

QImage faded(const QImage &picture, const QColor &ground, qreal opacity)
{
    QImage result(picture.size(), QImage::Format_RGB32);
    result.setDevicePixelRatio(picture.devicePixelRatio());
    result.fill(ground);
    QPainter painter(&result);
    painter.setOpacity(opacity);
    painter.drawImage(0, 0, picture);
    return result;
}

QByteArray difference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size() || actual.isNull()) {
        return QStringLiteral("the pictures are %1 x %2 and %3 x %4 pixels large")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height())
            .toUtf8();
    }
    int count = 0;
    QString first;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            if (actual.pixel(x, y) != expected.pixel(x, y) && count++ == 0) {
                first = QStringLiteral("at (%1, %2) #%3 instead of #%4")
                            .arg(x)
                            .arg(y)
                            .arg(actual.pixel(x, y), 8, 16, QLatin1Char('0'))
                            .arg(expected.pixel(x, y), 8, 16, QLatin1Char('0'));
            }
        }
    }
    return count == 0
        ? QByteArray()
        : QStringLiteral("%1 pixels differ, the first %2").arg(count).arg(first).toUtf8();
}

int largestDifference(const QImage &one, const QImage &other)
{
    int largest = one.size() == other.size() ? 0 : 255;
    for (int y = 0; largest < 255 && y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            largest = std::max({ largest, qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b)),
                                 qAbs(qBlue(a) - qBlue(b)) });
        }
    }
    return largest;
}

int colorCount(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return int(colors.size());
}
