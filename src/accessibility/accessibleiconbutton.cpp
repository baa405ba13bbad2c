// SPDX-License-Identifier: MIT
#include "accessibility/accessibleiconbutton_p.h"

#include <OlvWidgets/buttons.h>

#include "buttons/buttonstate_p.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>

namespace {

QString doubleClickAction()
{
    return QStringLiteral("doubleClick");
}

/** Sends an event of the mouse at the middle of a tile, unless that has gone meanwhile. */
void sendMouse(QWidget *tile, QEvent::Type type)
{
    if (!tile) {
        return;
    }
    const QPoint middle = tile->rect().center();
    const bool isRelease = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, middle, tile->mapToGlobal(middle), Qt::LeftButton,
                      isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tile, &event);
}

/** Has the pointer come into a tile, or leave it. */
void sendCrossing(QWidget *tile, QEvent::Type type)
{
    if (!tile) {
        return;
    }
    const QPoint middle = tile->rect().center();
    QEnterEvent enter(middle, tile->mapTo(tile->window(), middle), tile->mapToGlobal(middle));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(tile, type == QEvent::Enter ? &enter : &leave);
}

} // namespace

AccessibleIconButton::AccessibleIconButton(QWidget *tile)
    : AccessibleClickable(tile)
{ }

QStringList AccessibleIconButton::actionNames() const
{
    QStringList names = AccessibleClickable::actionNames();
    if (names.contains(pressAction())) {
        names << doubleClickAction();
    }
    return names;
}

void AccessibleIconButton::doAction(const QString &name)
{
    if (name != doubleClickAction()) {
        AccessibleClickable::doAction(name);
        return;
    }
    const QPointer<QWidget> tile(widget());
    for (int i = 0; i < 2; ++i) {
        if (tile && tile->isEnabled()) {
            click();
        }
    }
}

QString AccessibleIconButton::ownName() const
{
    return property("text").toString();
}

QAccessible::State AccessibleIconButton::ownState() const
{
    auto *tile = qobject_cast<OlvIconButton *>(object());
    QAccessible::State state;
    state.checkable = property("isCheckable").toBool();
    state.checked = isChecked(tile);
    state.pressed = property("state").toString() == ButtonState::pressed();
    return state;
}

void AccessibleIconButton::click()
{
    const QPointer<QWidget> tile(widget());
    // a release counts only while the pointer is inside
    const bool isInside = property("hovered").toBool();
    if (!isInside) {
        sendCrossing(tile, QEvent::Enter);
    }
    sendMouse(tile, QEvent::MouseButtonPress);
    sendMouse(tile, QEvent::MouseButtonRelease);
    if (!isInside) {
        sendCrossing(tile, QEvent::Leave);
    }
}
