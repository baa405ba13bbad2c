// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessibleclickable_p.h"

/**
 * An OlvIconButton. Its clicks are those of a mouse, and counted like them; "doubleClick" is for
 * those who cannot press twice within the time of a burst.
 */
class AccessibleIconButton : public AccessibleClickable
{
public:
    explicit AccessibleIconButton(QWidget *tile);

    QStringList actionNames() const override;
    void doAction(const QString &name) override;

protected:
    QString ownName() const override;
    QAccessible::State ownState() const override;
    void click() override;
};
