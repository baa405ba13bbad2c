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
    SliderRound::Private *state = knob ? SliderRound::Private::of(knob) : nullptr;
    if (state && state->mirror.isOn != isOn) {
        // during a drag, which goes on
        state->pressX = SliderMetrics::restingKnobSize - state->pressX;
        mirror(knob, state->mirror, isOn);
    }
}

void KnobMirror::set(OlvSwitch *toggle, bool isOn)
{
    auto *knob = childAtAddress<SwitchRound>(toggle, toggle->property(ValueProperties::switchKnob));
    SwitchRound::Private *state = knob ? SwitchRound::Private::of(knob) : nullptr;
    if (state && state->mirror.isOn != isOn) {
        mirror(knob, state->mirror, isOn);
    }
}

bool KnobMirror::isOn(const OlvSlider *slider)
{
    const SliderRound *knob = knobOf(slider);
    return knob && SliderRound::Private::of(knob)->mirror.isOn;
}
