// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessibleclickable_p.h"

/** An OlvSwitch. */
class AccessibleSwitch : public AccessibleClickable
{
public:
    explicit AccessibleSwitch(QWidget *widget);

protected:
    QAccessible::State ownState() const override;
    void click() override;
};
