// SPDX-License-Identifier: MIT
#include "support/accessibility_p.h"

#include <QAccessible>
#include <QWidget>

namespace {
// constant initialised, since the installer is set by a constructor of the library's loading
void (*installer)() = nullptr;

/** Has Qt ask again for the interface of a widget, which may have made another one already. */
void renew(QWidget *widget)
{
    QAccessible::deleteAccessibleInterface(
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(widget)));
}

} // namespace

void Accessibility::prepare(QWidget *widget)
{
    if (installer) {
        installer();
    }
    // The constructor of a base class may have told of a change, as QWidget's does in a disabled
    // parent, and Qt then has made the interface of that class and would keep it.
    if (!widget->isEnabled() || QAccessible::isActive()) {
        renew(widget);
    }
}

void Accessibility::setInstaller(void (*install)())
{
    installer = install;
}
