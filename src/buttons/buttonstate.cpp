// SPDX-License-Identifier: MIT
#include "buttons/buttonstate_p.h"

#include "buttons/buttonsproperties_p.h"

#include <QPointer>
#include <QVariant>
#include <QWidget>

namespace {

/** Schedules the repaint first: setting the property may delete the button. */
void setState(QWidget *button, const QString &state)
{
    button->update();
    button->setProperty(ButtonsProperties::state, state);
}

} // namespace

void ButtonState::reset(QWidget *button)
{
    button->setProperty(ButtonsProperties::state, resting());
    button->setProperty(ButtonsProperties::hovered, false);
}

void ButtonState::enter(QWidget *button)
{
    const QPointer<QWidget> alive(button);
    button->setProperty(ButtonsProperties::hovered, true);
    if (alive) {
        setState(button, hovered());
    }
}

void ButtonState::leave(QWidget *button)
{
    const QPointer<QWidget> alive(button);
    button->setProperty(ButtonsProperties::hovered, false);
    if (!alive) {
        return;
    }
    if (button->property(ButtonsProperties::state).toString() == pressed()) {
        button->update();
    } else {
        setState(button, resting());
    }
}

void ButtonState::press(QWidget *button)
{
    setState(button, pressed());
}

bool ButtonState::release(QWidget *button)
{
    const QPointer<QWidget> alive(button);
    const bool isInside = button->property(ButtonsProperties::hovered).toBool();
    setState(button, isInside ? hovered() : resting());
    return isInside && alive;
}
