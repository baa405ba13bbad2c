// SPDX-License-Identifier: MIT
#include "accessibility/accessibleclickable_p.h"

QStringList AccessibleClickable::actionNames() const
{
    QStringList names;
    if (widget() && widget()->isEnabled()) {
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
