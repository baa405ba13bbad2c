// SPDX-License-Identifier: MIT
#include "accessibility/accessibleiconbutton_p.h"

#include <OlvWidgets/buttons.h>

#include "buttons/buttonsproperties_p.h"
#include "buttons/buttonstate_p.h"

#include <QPointer>

namespace {

QString doubleClickAction()
{
    return QStringLiteral("doubleClick");
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
    return property(ButtonsProperties::text).toString();
}

QAccessible::State AccessibleIconButton::ownState() const
{
    auto *tile = qobject_cast<OlvIconButton *>(object());
    QAccessible::State state;
    state.checkable = property(ButtonsProperties::checkable).toBool();
    state.checked = isChecked(tile);
    state.pressed = property(ButtonsProperties::state).toString() == ButtonState::pressed();
    return state;
}

void AccessibleIconButton::click()
{
    clickWithTheMouse();
}
