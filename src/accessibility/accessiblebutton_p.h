// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessibleclickable_p.h"

/** An OlvButton. */
class AccessibleButton : public AccessibleClickable
{
public:
    explicit AccessibleButton(QWidget *button);

protected:
    QString ownName() const override;
    QAccessible::State ownState() const override;
    void click() override;
};
