// SPDX-License-Identifier: MIT
#include "accessibility/accessibleslider_p.h"

#include <OlvWidgets/value.h>

#include "support/childaddress_p.h"
#include "value/slidermetrics_p.h"
#include "value/valueproperties_p.h"

#include <QtMath>

using SliderMetrics::fullProgress;
using SliderMetrics::noProgress;

AccessibleSlider::AccessibleSlider(QWidget *slider)
    : AccessibleWidget(slider, QAccessible::Slider)
{ }

void *AccessibleSlider::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface) {
        return static_cast<QAccessibleValueInterface *>(this);
    }
    return AccessibleWidget::interface_cast(type);
}

QVariant AccessibleSlider::currentValue() const
{
    auto *slider = qobject_cast<OlvSlider *>(object());
    // an application may have written any number
    return slider ? SliderMetrics::inRange(slider->getValue().toInt()) : noProgress;
}

void AccessibleSlider::setCurrentValue(const QVariant &value)
{
    bool isNumber = false;
    const double wanted = value.toDouble(&isNumber);
    auto *slider = qobject_cast<OlvSlider *>(object());
    if (!slider || !slider->isEnabled() || !isNumber || qIsNaN(wanted)) {
        return;
    }
    const int progress = qRound(SliderMetrics::inRange(wanted));
    if (auto *knob = childAtAddress<SliderRound>(slider, property(ValueProperties::sliderKnob))) {
        knob->dragTo(progress);
    } else {
        slider->setValue(progress);
    }
}

QVariant AccessibleSlider::maximumValue() const
{
    return fullProgress;
}

QVariant AccessibleSlider::minimumValue() const
{
    return noProgress;
}

QVariant AccessibleSlider::minimumStepSize() const
{
    return 1;
}

QVariant AccessibleSlider::value() const
{
    return currentValue();
}
