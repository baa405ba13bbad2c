// SPDX-License-Identifier: MIT
#include <OlvWidgets/buttons.h>

#include "buttons/buttonmetrics_p.h"
#include "buttons/buttonsproperties_p.h"
#include "buttons/buttonstate_p.h"
#include "painting/canvas_p.h"
#include "painting/colors_p.h"
#include "painting/shape_p.h"
#include "support/childaddress_p.h"

#include <QPainter>
#include <QPointer>
#include <QTimer>

#include <limits>

namespace {

constexpr char clickNumberProperty[] = "clickNumber";
constexpr char clickTimerProperty[] = "clickTimer";
constexpr char iconSizeProperty[] = "iconSize";
constexpr char textSizeProperty[] = "textSize";
constexpr char familyProperty[] = "family";
constexpr char iconProperty[] = "icon";

constexpr int burstInterval = 400; // milliseconds
constexpr int glyphParts = 3;
constexpr double iconSizeOfPart = 1.56;
constexpr double textSizeOfPart = 0.52;
constexpr QRgb initialAccent = qRgb(0, 255, 255);
constexpr int halfRed = 127;
constexpr int tileFrameWidth = 1;

} // namespace

OlvIconButton::OlvIconButton(QWidget *parent)
    : OlvWidget(parent)
{
    setProperty(ButtonsProperties::value, false);
    ButtonState::reset(this);
    auto *timer = new QTimer(this);
    timer->setInterval(burstInterval);
    setProperty(clickNumberProperty, 0);
    // The timer is destroyed with the QWidget: it may fire after the tile's own destructor, in an
    // event loop that the destruction of another child runs.
    connect(
        timer, &QTimer::timeout, this,
        [object = static_cast<QObject *>(this), timer] {
            timer->stop();
            if (auto *tile = qobject_cast<OlvIconButton *>(object)) {
                tile->report();
            }
        },
        Qt::DirectConnection);
    setProperty(clickTimerProperty, reinterpret_cast<qulonglong>(timer));
}

OlvIconButton::OlvIconButton(const QChar &icon, const QString &text, const QString &family,
                             QWidget *parent, int width, int height)
    : OlvIconButton(parent)
{
    resize(width, height);
    const int partSize = width / ButtonMetrics::tilePartCount;
    setProperty(ButtonsProperties::partSize, partSize);
    setProperty(iconSizeProperty, iconSizeOfPart * partSize);
    setProperty(textSizeProperty, partSize * textSizeOfPart);
    setFontFamily(family);
    setIcon(icon);
    setText(text);
    setColor(QColor(initialAccent));
}

void OlvIconButton::setFontFamily(const QString &family)
{
    setProperty(familyProperty, family);
}

void OlvIconButton::setIcon(const QChar &icon)
{
    setProperty(iconProperty, icon);
}

QChar OlvIconButton::icon()
{
    return property(iconProperty).toChar();
}

void OlvIconButton::setText(const QString &text)
{
    setProperty(ButtonsProperties::text, text);
}

void OlvIconButton::setColor(const QColor &color)
{
    setProperty(ButtonsProperties::color, color.rgba());
}

void OlvIconButton::setCheckable(bool checkable)
{
    const QPointer<OlvIconButton> self(this);
    setProperty(ButtonsProperties::checkable, checkable);
    if (self) {
        setProperty(ButtonsProperties::checked, false);
    }
}

void OlvIconButton::setValue(const QVariant &value)
{
    setProperty(ButtonsProperties::value, value);
}

QVariant OlvIconButton::getValue()
{
    return property(ButtonsProperties::value);
}

void OlvIconButton::mousePressEvent(QMouseEvent * /*event*/)
{
    ButtonState::press(this);
}

void OlvIconButton::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (!ButtonState::release(this)) {
        return;
    }
    // an event filter may delete the tile when a property changes
    const QPointer<OlvIconButton> self(this);
    const int count = property(clickNumberProperty).toInt();
    setProperty(clickNumberProperty, qMin(count, std::numeric_limits<int>::max() - 1) + 1);
    if (!self) {
        return;
    }
    if (auto *timer = childAtAddress<QTimer>(this, property(clickTimerProperty))) {
        timer->start();
    }
    setProperty(ButtonsProperties::value, !property(ButtonsProperties::value).toBool());
    if (self) {
        update();
        setProperty(ButtonsProperties::checked, !property(ButtonsProperties::checked).toBool());
    }
}

void OlvIconButton::enterEvent(OlvEnterEvent * /*event*/)
{
    ButtonState::enter(this);
}

void OlvIconButton::leaveEvent(QEvent * /*event*/)
{
    ButtonState::leave(this);
}

void OlvIconButton::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = penColor();
    painter.setPen(color);

    // read as integers: the sizes are kept as reals, and are rounded here; an application may have
    // written any number
    const int partSize =
        qBound(-QWIDGETSIZE_MAX, property(ButtonsProperties::partSize).toInt(), QWIDGETSIZE_MAX);
    const int glyphHeight = glyphParts * partSize;
    const QString family = property(familyProperty).toString();
    painter.setFont(QFont(family, property(iconSizeProperty).toInt()));
    painter.drawText(QRect(0, 0, width(), glyphHeight), Qt::AlignCenter,
                     property(iconProperty).toString());
    painter.setFont(QFont(QStringLiteral("新宋体"), property(textSizeProperty).toInt()));
    painter.drawText(QRect(0, glyphHeight, width(), partSize), Qt::AlignCenter,
                     property(ButtonsProperties::text).toString());
    Shape::roundedRect(rect(), ButtonMetrics::tileCornerRadius)
        .stroke(Canvas(painter), color, tileFrameWidth);
}

void OlvIconButton::report()
{
    const QPointer<OlvIconButton> self(this);
    const int count = property(clickNumberProperty).toInt();
    // zeroed before the signal: a slot that runs an event loop begins a new burst in it
    setProperty(clickNumberProperty, 0);
    if (!self) {
        return;
    }
    if (count == 1) {
        Q_EMIT clicked();
    } else {
        Q_EMIT dClicked();
    }
}

QColor OlvIconButton::penColor()
{
    const QRgb accent = property(ButtonsProperties::color).toUInt();
    const QString state = property(ButtonsProperties::state).toString();
    if (state == ButtonState::pressed() || ::isChecked(this)) {
        return QColor(accent);
    }
    if (state == ButtonState::hovered()) {
        QColor color = QColor::fromRgba(accent);
        color.setRed(color.red() <= halfRed ? halfRed : 0);
        return color;
    }
    return QColor(Colors::restingGlyph);
}

bool isChecked(OlvIconButton *button)
{
    return button && button->property(ButtonsProperties::checkable).toBool()
        && button->property(ButtonsProperties::checked).toBool();
}
