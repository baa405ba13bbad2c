// SPDX-License-Identifier: MIT
#include <OlvWidgets/value.h>

#include "painting/canvas_p.h"
#include "painting/colors_p.h"
#include "painting/shape_p.h"
#include "support/childaddress_p.h"
#include "value/slidermetrics_p.h"
#include "value/valueproperties_p.h"

#include <QPainter>

namespace {

constexpr int initialWidth = 200;
constexpr int trackInset = 15;
constexpr int trackTop = 10;
constexpr int trackHeight = 10;
constexpr int trackRadius = 5;

} // namespace

OlvSlider::OlvSlider(QWidget *parent)
    : OlvWidget(parent)
{
    OlvSlider::setValue(0);
    setFixedHeight(SliderMetrics::height);
    resize(initialWidth, SliderMetrics::height);

    auto *knob = new SliderRound(this);
    knob->setGeometry(SliderMetrics::knobInset, SliderMetrics::knobInset,
                      SliderMetrics::restingKnobSize, SliderMetrics::restingKnobSize);
    setProperty(ValueProperties::sliderKnob, reinterpret_cast<qulonglong>(knob));
}

QVariant OlvSlider::getValue()
{
    return property(ValueProperties::sliderProgress).toInt();
}

void OlvSlider::setValue(const QVariant &value)
{
    setProperty(ValueProperties::sliderProgress, value);
}

void OlvSlider::setSliderPosition(int percent)
{
    percent = SliderMetrics::inRange(percent);
    if (auto *knob = childAtAddress<SliderRound>(this, property(ValueProperties::sliderKnob))) {
        knob->follow(percent);
    } else {
        setValue(percent);
    }
}

void OlvSlider::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect track(trackInset, trackTop, width() - 2 * trackInset, trackHeight);
    Shape::roundedRect(track, trackRadius).fill(Canvas(painter), QColor(Colors::primary));
}

void OlvSlider::resizeEvent(QResizeEvent * /*event*/)
{
    if (auto *knob = childAtAddress<SliderRound>(this, property(ValueProperties::sliderKnob))) {
        knob->setMaxX(width() - SliderMetrics::pressedKnobSize);
    }
}
