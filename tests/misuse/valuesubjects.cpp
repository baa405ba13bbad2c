// SPDX-License-Identifier: MIT
#include "subjects.h"

#include "mouse.h"
#include "sizedswitch.h"
#include "sliderknob.h"

#include <OlvSlider>
#include <OlvSwitch>

#include <QAccessible>

namespace {

using namespace DeletionTable;

OlvSwitch *asSwitch(QWidget *widget)
{
    return static_cast<OlvSwitch *>(widget);
}

/** Starts the slide, and sends so many of its five timer events. */
std::function<void(QWidget *)> slide(int steps)
{
    return [=](QWidget *widget) {
        asSwitch(widget)->setValue(true);
        for (int i = 0; i < steps; ++i) {
            tick(*widget);
        }
    };
}

Deed step(const char *name, int before)
{
    return { QString::fromLatin1(name), [](QWidget *widget) { tick(*widget); }, slide(before),
             true };
}

Subject toggledSwitch()
{
    const auto setChecked = [](QWidget *widget) {
        asSwitch(widget)->setChecked(true);
    };
    const auto clearChecked = [](QWidget *widget) {
        asSwitch(widget)->setChecked(false);
    };
    const auto releaseOnKnob = [](QWidget *widget) {
        releaseMouse(*knobOf(*asSwitch(widget)));
    };
    const auto tellSizeOfKnob = [](QWidget *widget) {
        QResizeEvent event(QSize(9, 9), QSize(9, 9));
        QCoreApplication::sendEvent(knobOf(*asSwitch(widget)), &event);
    };
    return { QStringLiteral("OlvSwitch"),
             [](QWidget *parent) -> QWidget * { return new OlvSwitch(parent); },
             {
                 call<OlvSwitch>("setValue", [](OlvSwitch *toggle) { toggle->setValue(true); }),
                 call<OlvSwitch>("setChecked(true)",
                                 [](OlvSwitch *toggle) { toggle->setChecked(true); }),
                 { QStringLiteral("setChecked(false)"), clearChecked, setChecked },
                 { QStringLiteral("setChecked(true) in a slide"), setChecked, slide(2) },
                 { QStringLiteral("setChecked(false) in a slide"), clearChecked, slide(2) },
                 call<OlvSwitch>("setColorOpen",
                                 [](OlvSwitch *toggle) { toggle->setColorOpen(Qt::red); }),
                 call<OlvSwitch>("setColorClose",
                                 [](OlvSwitch *toggle) { toggle->setColorClose(Qt::red); }),
                 call<OlvSwitch>("setColorRound",
                                 [](OlvSwitch *toggle) { toggle->setColorRound(Qt::red); }),
                 call<OlvSwitch>("openInputMethod",
                                 [](OlvSwitch *toggle) { toggle->openInputMethod(); }),
                 { QStringLiteral("release on the knob"), releaseOnKnob, nullptr, true },
                 { QStringLiteral("new size of the knob"), tellSizeOfKnob, setChecked, true },
                 step("first step", 0),
                 step("third step", 2),
                 step("last step", 4),
             } };
}

SliderRound *knobIn(QWidget *slider)
{
    return knobOf(*static_cast<OlvSlider *>(slider));
}

void pressKnob(QWidget *slider)
{
    Mouse::press(knobIn(slider), { 10, 10 });
}

void dragKnob(QWidget *slider)
{
    Mouse::move(knobIn(slider), { 40, 10 });
}

void releaseKnob(QWidget *slider)
{
    Mouse::release(knobIn(slider), { 10, 10 });
}

Subject slider()
{
    const auto turn = [](QWidget *widget) {
        QAccessible::queryAccessibleInterface(widget)->valueInterface()->setCurrentValue(40);
    };
    const auto pressAndDisable = [](QWidget *widget) {
        pressKnob(widget);
        widget->setEnabled(false);
    };
    return { QStringLiteral("OlvSlider"),
             [](QWidget *parent) -> QWidget * { return new OlvSlider(parent); },
             {
                 call<OlvSlider>("setValue", [](OlvSlider *slider) { slider->setValue(5); }),
                 call<OlvSlider>("setSliderPosition",
                                 [](OlvSlider *slider) { slider->setSliderPosition(50); }),
                 call<OlvSlider>("dragTo", [](OlvSlider *slider) { knobOf(*slider)->dragTo(30); }),
                 call<OlvSlider>("setMaxX", [](OlvSlider *slider) { knobOf(*slider)->setMaxX(9); }),
                 { QStringLiteral("setMaxX of a knob that follows"),
                   [](QWidget *widget) { knobIn(widget)->setMaxX(9); },
                   [](QWidget *widget) {
                       static_cast<OlvSlider *>(widget)->setSliderPosition(50);
                   } },
                 call<OlvSlider>("openInputMethod",
                                 [](OlvSlider *slider) { slider->openInputMethod(); }),
                 { QStringLiteral("press the knob"), pressKnob, nullptr, true },
                 { QStringLiteral("drag the knob"), dragKnob, pressKnob, true },
                 { QStringLiteral("release the knob"), releaseKnob, pressKnob, true },
                 { QStringLiteral("release the knob of a disabled slider"), releaseKnob,
                   pressAndDisable, true },
                 { QStringLiteral("value from an assistive program"), turn },
             } };
}

} // namespace

QVector<Subject> DeletionTable::valueSubjects()
{
    return { toggledSwitch(), slider() };
}
