// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/foundation.h>
#include <OlvWidgets/value.h>

#include <QAbstractEventDispatcher>
#include <QTimerEvent>

#include <algorithm>

namespace {

/** A slider that checks the values that its knob sets. */
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
        const QPointer<HeardSlider> self(this);
        m_isCalled = true;
        setValue(value);
        if (self) {
            m_isCalled = false;
        }
    }

private:
    bool m_isCalled = false;
};

/** A switch that compares the values of its two signals. */
class HeardSwitch : public OlvSwitch
{
public:
    HeardSwitch(World &world, QWidget *parent)
        : OlvSwitch(parent)
    {
        connect(this, &OlvWidget::valueChanged, this, [this, &world](const QVariant &value) {
            Storm::check(!world.isUndisturbed() || value == getValue(),
                         "a switch stands as it says");
            m_told.append(value.toBool());
        });
        connect(this, &OlvSwitch::changed, this, [this](bool on) {
            // a slot of the first signal may have flipped it once more
            Storm::check(!m_told.isEmpty() && m_told.takeLast() == on,
                         "a switch says the same twice");
            ++m_flips;
        });
    }

    int flips() const
    {
        return m_flips;
    }

private:
    QVector<bool> m_told;
    int m_flips = 0;
};

template <typename Knob> Knob *knobOf(const QWidget *widget, const char *property)
{
    const qulonglong address = widget->property(property).toULongLong();
    for (QObject *child : widget->children()) {
        auto *knob = dynamic_cast<Knob *>(child);
        if (knob && reinterpret_cast<qulonglong>(knob) == address) {
            return knob;
        }
    }
    return nullptr;
}

class ValueFamily : public Family
{
public:
    QWidget *make(World &world, QWidget *parent) override
    {
        Dice &dice = world.dice();
        switch (dice.below(9)) {
        case 0:
            return makeSliderKnob(parent);
        case 1:
            return makeSwitchKnob(parent);
        case 2:
        case 3:
        case 4:
        case 5:
            return new HeardSlider(parent);
        default:
            return new HeardSwitch(world, parent);
        }
    }

    void call(World &world, QWidget *widget) override
    {
        Dice &dice = world.dice();
        if (auto *slider = dynamic_cast<HeardSlider *>(widget)) {
            callSlider(world, slider);
        } else if (auto *sliderKnob = dynamic_cast<SliderRound *>(widget)) {
            const QRect place = sliderKnob->geometry();
            const int maxX = dice.number();
            sliderKnob->setMaxX(maxX);
            Storm::check(sliderKnob->maxX() == maxX, "a knob goes as far as it was told");
            Storm::check(sliderKnob->geometry() == place, "a knob stays until it is dragged");
        } else if (auto *switchKnob = dynamic_cast<SwitchRound *>(widget)) {
            callSwitchKnob(dice, switchKnob);
        } else if (auto *oneSwitch = dynamic_cast<HeardSwitch *>(widget)) {
            callSwitch(world, oneSwitch);
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
        }
    }

private:
    static QWidget *makeSliderKnob(QWidget *parent)
    {
        auto *knob = new SliderRound(parent);
        Storm::check(knob->maxX() == parent->width() - 30, "a knob goes as far as its slider");
        return knob;
    }

    static QWidget *makeSwitchKnob(QWidget *parent)
    {
        auto *knob = new SwitchRound(parent);
        Storm::check(knob->color() == QColor(Qt::white) && knob->inset() == knob->height() / 10,
                     "a knob is white at first, and inset by a tenth");
        return knob;
    }

    static void callSlider(World &world, HeardSlider *slider)
    {
        const QVariant value = world.dice().variant();
        const auto *knob = knobOf<SliderRound>(slider, "SliderRound");
        const QRect place = knob ? knob->geometry() : QRect();
        slider->callSetValue(value);
        if (!world.isUndisturbed()) {
            return;
        }
        Storm::check(slider->getValue() == QVariant(value.toInt()),
                     "a slider has the value it was given, as an int");
        Storm::check(!knob || knob->geometry() == place, "a value does not move the knob");
    }

    static void callSwitchKnob(Dice &dice, SwitchRound *knob)
    {
        if (dice.coin()) {
            const QColor color = dice.color();
            knob->setColor(color);
            Storm::check(knob->color() == color, "a knob has the colour it was given");
        } else {
            const int inset = dice.number();
            knob->setInset(inset);
            Storm::check(knob->inset() == inset, "a knob has the inset it was given");
        }
    }

    static void callSwitch(World &world, HeardSwitch *oneSwitch)
    {
        Dice &dice = world.dice();
        const QColor color = dice.color();
        switch (dice.below(7)) {
        case 0:
            oneSwitch->setColorOpen(color);
            checkColor(world, oneSwitch, "openColor", color);
            break;
        case 1:
            oneSwitch->setColorClose(color);
            checkColor(world, oneSwitch, "closeColor", color);
            break;
        case 2: {
            oneSwitch->setColorRound(color);
            const auto *knob = knobOf<SwitchRound>(oneSwitch, "round");
            Storm::check(!knob || knob->color() == color, "a knob has the colour of its switch");
            break;
        }
        case 3:
            oneSwitch->openInputMethod();
            break;
        case 4:
            flip(world, oneSwitch);
            break;
        default:
            setValue(world, oneSwitch);
        }
    }

    static void checkColor(World &world, const OlvSwitch *oneSwitch, const char *property,
                           const QColor &color)
    {
        if (world.isUndisturbed()) {
            const QColor kept = OlvColorFromString(oneSwitch->property(property).toString());
            Storm::check(kept.rgb() == (color.rgb() | 0xff000000U),
                         "a switch keeps a colour without its alpha");
        }
    }

    static int timersOf(OlvSwitch *oneSwitch)
    {
        return int(QAbstractEventDispatcher::instance()->registeredTimers(oneSwitch).size());
    }

    static void setValue(World &world, OlvSwitch *oneSwitch)
    {
        const QVariant value = world.dice().variant();
        const bool before = oneSwitch->getValue().toBool();
        const int timers = timersOf(oneSwitch);
        oneSwitch->setValue(value);
        if (world.isUndisturbed()) {
            Storm::check(oneSwitch->getValue().toBool() == before,
                         "a switch has the old value at first");
            Storm::check(timersOf(oneSwitch) == timers + int(value.toBool() != before),
                         "only another value sets a switch going");
        }
    }

    /** Runs a whole animation of a switch that is at rest. */
    static void flip(World &world, HeardSwitch *oneSwitch)
    {
        const bool before = oneSwitch->getValue().toBool();
        const int flips = oneSwitch->flips();
        // the storm may have deleted the event filter that moves the knob
        const QObjectList &children = oneSwitch->children();
        const bool isWhole =
            std::any_of(children.begin(), children.end(), [](const QObject *child) {
                return dynamic_cast<const OlvPluginEventFilter *>(child) != nullptr;
            });
        if (!isWhole || timersOf(oneSwitch) > 0 || oneSwitch->property("moveCount").toInt() != 0) {
            return;
        }
        oneSwitch->setValue(!before);
        for (int step = 1; step <= 5 && world.isUndisturbed(); ++step) {
            Storm::check(oneSwitch->getValue().toBool() == before && oneSwitch->flips() == flips,
                         "a switch keeps its value until the end of its animation");
            QTimerEvent event(oneSwitch->property("timerId").toInt());
            QCoreApplication::sendEvent(oneSwitch, &event);
        }
        if (world.isUndisturbed()) {
            Storm::check(oneSwitch->getValue() == QVariant(!before),
                         "a switch has its new value after five steps");
            Storm::check(oneSwitch->flips() == flips + 1, "a switch says once that it has flipped");
            Storm::check(timersOf(oneSwitch) == 0, "a switch comes to rest");
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<ValueFamily>(argc, argv, "value");
}
