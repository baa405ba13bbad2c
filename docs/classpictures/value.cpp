// SPDX-License-Identifier: MIT
#include "picture.h"

#include <OlvWidgets/buttons.h>
#include <OlvWidgets/input.h>
#include <OlvWidgets/value.h>

#include <QLabel>

namespace {

constexpr int animationTime = 600; // milliseconds, with some to spare

template <typename Child> Child *childOf(QWidget *parent)
{
    for (QObject *child : parent->children()) {
        if (auto *found = dynamic_cast<Child *>(child)) {
            return found;
        }
    }
    return nullptr;
}

OlvSlider *addSlider(QWidget *stage, QRect place)
{
    auto *slider = new OlvSlider(stage);
    slider->setGeometry(place);
    return slider;
}

OlvSwitch *addSwitch(QWidget *stage, QRect place)
{
    auto *toggle = new OlvSwitch(stage);
    toggle->setGeometry(place);
    return toggle;
}

std::function<void()> fillSlider(QWidget *stage)
{
    OlvSlider *slider = addSlider(stage, { 16, 16, 280, 30 });
    return [=] {
        drag(childOf<SliderRound>(slider), { 10, 10 }, { 150, 0 });
    };
}

std::function<void()> fillSliderRound(QWidget *stage)
{
    OlvSlider *still = addSlider(stage, { 16, 16, 140, 30 });
    OlvSlider *held = addSlider(stage, { 188, 16, 140, 30 });
    return [=] {
        drag(childOf<SliderRound>(still), { 10, 10 }, { 55, 0 });
        drag(childOf<SliderRound>(held), { 10, 10 }, { 55, 0 });
        sendMouse(childOf<SliderRound>(held), QEvent::MouseButtonPress, { 10, 10 });
    };
}

std::function<void()> fillSwitch(QWidget *stage)
{
    addSwitch(stage, { 16, 16, 50, 24 });
    OlvSwitch *on = addSwitch(stage, { 90, 16, 50, 24 });
    OlvSwitch *blue = addSwitch(stage, { 164, 16, 50, 24 });
    blue->setColorClose(QColor(64, 158, 255));
    return [=] {
        on->setValue(true);
        blue->setValue(true);
        settle(animationTime);
    };
}

std::function<void()> fillSwitchRound(QWidget *stage)
{
    addSwitch(stage, { 16, 16, 100, 40 });
    OlvSwitch *moving = addSwitch(stage, { 140, 16, 100, 40 });
    OlvSwitch *on = addSwitch(stage, { 264, 16, 100, 40 });
    return [=] {
        on->setValue(true);
        settle(animationTime);
        moving->setValue(true);
        while (moving->property("moveCount").toInt() < 3) {
            settle(1);
        }
    };
}

std::function<void()> fillWidget(QWidget *stage)
{
    auto *name = new OlvLineEdit(stage);
    name->setText(QStringLiteral("Li Wei"));
    auto *notify = new OlvSwitch(stage);
    auto *volume = new OlvSlider(stage);
    const QVector<QPair<QString, OlvWidget *>> rows{
        { QStringLiteral("OlvLineEdit: a string"), name },
        { QStringLiteral("OlvSwitch: a bool"), notify },
        { QStringLiteral("OlvSlider: an int"), volume },
    };
    const QVector<QSize> sizes{ { 180, 28 }, { 50, 24 }, { 180, 30 } };
    for (int row = 0; row < rows.size(); ++row) {
        auto *label = new QLabel(rows.at(row).first, stage);
        label->setGeometry(16, 16 + row * 44, 160, 28);
        rows.at(row).second->setGeometry(QRect(QPoint(190, 16 + row * 44), sizes.at(row)));
    }
    return [=] {
        notify->setValue(true);
        drag(childOf<SliderRound>(volume), { 10, 10 }, { 90, 0 });
        settle(animationTime);
    };
}

} // namespace

QVector<Picture> valuePictures()
{
    return {
        { QStringLiteral("OlvSlider"), { 312, 62 }, fillSlider },
        { QStringLiteral("SliderRound"), { 344, 62 }, fillSliderRound },
        { QStringLiteral("OlvSwitch"), { 230, 56 }, fillSwitch },
        { QStringLiteral("SwitchRound"), { 380, 72 }, fillSwitchRound },
        { QStringLiteral("OlvWidget"), { 386, 150 }, fillWidget },
    };
}
