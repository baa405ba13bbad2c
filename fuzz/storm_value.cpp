// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/value.h>

namespace {

/** Hears what its knob hands over. */
class HeardSlider : public OlvSlider
{
public:
    using OlvSlider::OlvSlider;

    void setValue(const QVariant &value) override
    {
        if (!m_isCalled) {
            Storm::check(value.userType() == QMetaType::Int && value.toInt() >= 0
                             && value.toInt() <= 100,
                         "a drag gives a percentage");
        }
        OlvSlider::setValue(value);
    }

    void callSetValue(const QVariant &value)
    {
        m_isCalled = true;
        setValue(value);
        m_isCalled = false;
    }

private:
    bool m_isCalled = false;
};

class ValueFamily : public Family
{
public:
    QWidget *make(World &world, QWidget *parent) override
    {
        Dice &dice = world.dice();
        switch (dice.below(9)) {
        case 0:
            return new SliderRound(parent);
        case 1:
            return new SwitchRound(parent);
        case 2:
        case 3:
        case 4:
        case 5:
            return new HeardSlider(parent);
        default:
            return new OlvSwitch(parent);
        }
    }

    void call(World &world, QWidget *widget) override
    {
        Dice &dice = world.dice();
        if (auto *slider = dynamic_cast<HeardSlider *>(widget)) {
            slider->callSetValue(dice.variant());
        } else if (auto *sliderKnob = dynamic_cast<SliderRound *>(widget)) {
            sliderKnob->setMaxX(dice.number());
        } else if (auto *switchKnob = dynamic_cast<SwitchRound *>(widget)) {
            if (dice.coin()) {
                switchKnob->setColor(dice.color());
            } else {
                switchKnob->setInset(dice.number());
            }
        } else if (auto *oneSwitch = qobject_cast<OlvSwitch *>(widget)) {
            callSwitch(dice, oneSwitch);
        }
    }

    QVector<QByteArray> properties() const override
    {
        return { "switch",    "moveCount",  "moveWidth", "timerId",  "interval",
                 "openColor", "closeColor", "round",     "progress", "SliderRound" };
    }

    void check(World & /*world*/, QWidget *widget) override
    {
        if (auto *slider = qobject_cast<OlvSlider *>(widget)) {
            Storm::check(slider->getValue().userType() == QMetaType::Int,
                         "the value of a slider is an int");
        } else if (auto *sliderKnob = dynamic_cast<SliderRound *>(widget)) {
            sliderKnob->maxX();
        } else if (auto *switchKnob = dynamic_cast<SwitchRound *>(widget)) {
            switchKnob->inset();
            switchKnob->color();
        }
    }

private:
    static void callSwitch(Dice &dice, OlvSwitch *oneSwitch)
    {
        switch (dice.below(6)) {
        case 0:
            oneSwitch->setColorOpen(dice.color());
            break;
        case 1:
            oneSwitch->setColorClose(dice.color());
            break;
        case 2:
            oneSwitch->setColorRound(dice.color());
            break;
        case 3:
            oneSwitch->openInputMethod();
            break;
        case 4:
            oneSwitch->getValue();
            break;
        default:
            oneSwitch->setValue(dice.variant());
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<ValueFamily>(argc, argv, "value");
}
