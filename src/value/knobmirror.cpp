// SPDX-License-Identifier: MIT
#include "value/knobmirror_p.h"

#include "support/childaddress_p.h"
#include "value/slidermetrics_p.h"
#include "value/sliderround_p.h"
#include "value/switchround_p.h"
#include "value/valueproperties_p.h"

namespace {

void mirror(QWidget *knob, Mirror &mirror, bool isOn)
{
    mirror.isOn = isOn;
    const Mirror otherSide{ true, mirror.width };
    knob->move(otherSide.placed(knob->x(), knob->width()), knob->y());
}

SliderRound *knobOf(const OlvSlider *slider)
{
    return childAtAddress<SliderRound>(slider, slider->property(ValueProperties::sliderKnob));
}

} // namespace

void KnobMirror::set(OlvSlider *slider, bool isOn)
{
    SliderRound *knob = knobOf(slider);
    if (knob && knob->d->mirror.isOn != isOn) {
        // during a drag, which goes on
        knob->d->pressX = SliderMetrics::restingKnobSize - knob->d->pressX;
        mirror(knob, knob->d->mirror, isOn);
    }
}

void KnobMirror::set(OlvSwitch *toggle, bool isOn)
{
    auto *knob = childAtAddress<SwitchRound>(toggle, toggle->property(ValueProperties::switchKnob));
    if (knob && knob->d->mirror.isOn != isOn) {
        mirror(knob, knob->d->mirror, isOn);
    }
}

bool KnobMirror::isOn(const OlvSlider *slider)
{
    const SliderRound *knob = knobOf(slider);
    return knob && knob->d->mirror.isOn;
}
