// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessiblewidget_p.h"

/** An OlvSlider: a value from 0 to 100. */
class AccessibleSlider : public AccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSlider(QWidget *slider);

    void *interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    /** Rounds to a whole percentage within the range, and moves the knob there as a drag would. */
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    QVariant value() const override;
};
