// SPDX-License-Identifier: MIT
#include <OlvWidgets/buttons.h>

#include "buttons/buttonmetrics_p.h"
#include "buttons/buttonsproperties_p.h"
#include "buttons/buttonstate_p.h"
#include "buttons/palette_p.h"
#include "painting/canvas_p.h"
#include "painting/caption_p.h"
#include "painting/shape_p.h"

#include <QPainter>
#include <QPointer>

#include <utility>

namespace {

constexpr int borderWidth = 2;

/** What the properties say about the look. */
struct Look
{
    QString state;
    QString type;
    bool checked;

    bool isResting() const
    {
        return state == ButtonState::resting() && !checked;
    }
    bool isPlain() const
    {
        return type == QLatin1String("plain");
    }
    bool hasBorder() const
    {
        return isResting() && isPlain();
    }
};

QColor fillColor(const Look &look, const ButtonPalette &palette)
{
    if (look.isResting()) {
        return palette[look.isPlain() ? ButtonPalette::RestingPlainFill : ButtonPalette::Fill];
    }
    if (look.state == ButtonState::hovered()) {
        return palette[look.isPlain() ? ButtonPalette::Fill : ButtonPalette::HoverFill];
    }
    return palette[ButtonPalette::PressedFill];
}

QColor captionColor(const Look &look, const ButtonPalette &palette)
{
    return look.hasBorder() ? QColor(palette[ButtonPalette::Fill]) : QColor(Qt::white);
}

} // namespace

OlvButton::OlvButton(QWidget *parent)
    : OlvWidget(parent)
{
    setProperty(ButtonsProperties::checked, false);
    setProperty(ButtonsProperties::checkable, false);
    setProperty(ButtonsProperties::value, false);
    setProperty(ButtonsProperties::type, QString());
    setProperty(ButtonsProperties::color, QStringLiteral("primary"));
    ButtonState::reset(this);
}

OlvButton::OlvButton(QString text, QWidget *parent)
    : OlvButton(parent)
{
    setText(text);
}

// An event filter may delete the button when a property changes, so each setter schedules the
// repaint before it sets its last property.

OlvButton *OlvButton::setOlvStyle(QString color, QString type)
{
    const QPointer<OlvButton> self(this);
    setProperty(ButtonsProperties::type, type);
    if (self) {
        update();
        setProperty(ButtonsProperties::color, color);
    }
    return this;
}

void OlvButton::setColor(QStringList shades)
{
    setCustomButtonShades(std::move(shades));
}

void OlvButton::setText(QString text)
{
    update();
    setProperty(ButtonsProperties::content, text);
}

void OlvButton::setChecked(bool checked)
{
    update();
    setProperty(ButtonsProperties::checked, checked);
}

bool OlvButton::isChecked()
{
    return property(ButtonsProperties::checked).toBool();
}

void OlvButton::setCheckable(bool checkable)
{
    setProperty(ButtonsProperties::checkable, checkable);
}

bool OlvButton::isCheckable()
{
    return property(ButtonsProperties::checkable).toBool();
}

void OlvButton::setValue(const QVariant &value)
{
    setProperty(ButtonsProperties::value, value);
}

QVariant OlvButton::getValue()
{
    return property(ButtonsProperties::value).toBool();
}

void OlvButton::click(bool checked)
{
    const QPointer<OlvButton> self(this);
    Q_EMIT clicked();
    // read after the emission: a slot may have changed either, or deleted the button
    if (self && isCheckable() && isChecked() != checked) {
        setCheckedByClick(checked);
    }
}

void OlvButton::mousePressEvent(QMouseEvent * /*event*/)
{
    ButtonState::press(this);
}

void OlvButton::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (!ButtonState::release(this)) {
        return;
    }
    const QPointer<OlvButton> self(this);
    Q_EMIT clicked();
    if (self && isCheckable()) {
        setCheckedByClick(!isChecked());
    }
}

void OlvButton::enterEvent(OlvEnterEvent * /*event*/)
{
    ButtonState::enter(this);
}

void OlvButton::leaveEvent(QEvent * /*event*/)
{
    ButtonState::leave(this);
}

void OlvButton::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Canvas canvas(painter);
    const ButtonPalette &palette = buttonPalette(property(ButtonsProperties::color).toString());
    const Look look{ property(ButtonsProperties::state).toString(),
                     property(ButtonsProperties::type).toString(),
                     property(ButtonsProperties::checked).toBool() };

    const Shape body = Shape::roundedRect(rect(), ButtonMetrics::cornerRadius(look.type, height()));
    const QColor fill = fillColor(look, palette);
    body.fill(canvas, fill);
    if (look.hasBorder()) {
        // not drawn further in for the border: half of it is clipped, which makes it look thin
        body.stroke(canvas, palette[ButtonPalette::RestingPlainBorder], borderWidth);
    }

    const QString content = property(ButtonsProperties::content).toString();
    if (!content.isEmpty()) {
        const Caption caption{ content, captionColor(look, palette), ButtonMetrics::captionFamily(),
                               ButtonMetrics::captionPointSize };
        caption.draw(canvas, { body, fill, look.hasBorder() ? borderWidth : 0 });
    }
}

void OlvButton::setCheckedByClick(bool checked)
{
    const QPointer<OlvButton> self(this);
    setChecked(checked);
    if (self) {
        Q_EMIT toggled(checked);
    }
}
