// SPDX-License-Identifier: MIT
#include "accessibility/accessibleclickable_p.h"

#include "buttons/buttonsproperties_p.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>

namespace {

/** Sends an event of the mouse at the middle of a button, unless that has gone meanwhile. */
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

/** Has the pointer come into a button, or leave it. */
void sendCrossing(QWidget *button, QEvent::Type type)
{
    if (!button) {
        return;
    }
    const QPoint middle = button->rect().center();
    QEnterEvent enter(middle, button->mapTo(button->window(), middle), button->mapToGlobal(middle));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(button, type == QEvent::Enter ? &enter : &leave);
}

} // namespace

AccessibleClickable::AccessibleClickable(QWidget *widget)
    : AccessibleWidget(widget, QAccessible::Button)
{ }

QAccessible::Role AccessibleClickable::role() const
{
    return state().checkable ? QAccessible::CheckBox : AccessibleWidget::role();
}

QStringList AccessibleClickable::actionNames() const
{
    QStringList names;
    if (isValid() && widget()->isEnabled()) {
        if (state().checkable) {
            names << toggleAction();
        }
        names << pressAction();
    }
    return names + AccessibleWidget::actionNames();
}

void AccessibleClickable::doAction(const QString &name)
{
    if (name != pressAction() && name != toggleAction()) {
        AccessibleWidget::doAction(name);
    } else if (actionNames().contains(name)) {
        click();
    }
}

void AccessibleClickable::clickWithTheMouse()
{
    const QPointer<QWidget> button(widget());
    // a release counts only while the pointer is inside
    const bool isInside = property(ButtonsProperties::hovered).toBool();
    if (!isInside) {
        sendCrossing(button, QEvent::Enter);
    }
    sendMouse(button, QEvent::MouseButtonPress);
    sendMouse(button, QEvent::MouseButtonRelease);
    if (!isInside) {
        sendCrossing(button, QEvent::Leave);
    }
}
