// SPDX-License-Identifier: MIT
#include "buttons/mouseclick_p.h"

#include "buttons/buttonsproperties_p.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QVariant>

namespace {

// Each of the events may delete the button: an event filter or a slot may.

void sendMouse(QWidget *button, QEvent::Type type)
{
    if (!button) {
        return;
    }
    const QPoint middle = button->rect().center();
    const bool isRelease = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, middle, button->mapToGlobal(middle), Qt::LeftButton,
                      isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &event);
}

void sendEnter(QWidget *button)
{
    if (!button) {
        return;
    }
    const QPoint middle = button->rect().center();
    QEnterEvent event(middle, button->mapTo(button->window(), middle), button->mapToGlobal(middle));
    QCoreApplication::sendEvent(button, &event);
}

void sendLeave(QWidget *button)
{
    if (!button) {
        return;
    }
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(button, &event);
}

} // namespace

bool MouseClick::press(const QPointer<QWidget> &button)
{
    // a release counts only while the pointer is inside
    const bool comesIn = button && !button->property(ButtonsProperties::hovered).toBool();
    if (comesIn) {
        sendEnter(button);
    }
    sendMouse(button, QEvent::MouseButtonPress);
    return comesIn;
}

void MouseClick::release(const QPointer<QWidget> &button, bool hasComeIn)
{
    sendMouse(button, QEvent::MouseButtonRelease);
    if (hasComeIn) {
        sendLeave(button);
    }
}

void MouseClick::cancel(const QPointer<QWidget> &button, bool hasComeIn)
{
    sendLeave(button);
    sendMouse(button, QEvent::MouseButtonRelease);
    if (!hasComeIn) {
        sendEnter(button);
    }
}
