// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>
#include <OlvWidgets/value.h>

#include "painting/canvas_p.h"
#include "painting/shape_p.h"
#include "support/childaddress_p.h"
#include "value/switchround_p.h"
#include "value/valueproperties_p.h"

#include <QAbstractEventDispatcher>
#include <QPainter>
#include <QPointer>
#include <QtMath>

#include <algorithm>

namespace {

constexpr char moveCountProperty[] = "moveCount";
constexpr char moveWidthProperty[] = "moveWidth";
constexpr char intervalProperty[] = "interval";
constexpr char openColorProperty[] = "openColor";
constexpr char closeColorProperty[] = "closeColor";
constexpr char roundProperty[] = "round";

constexpr int unusedInterval = 2;
constexpr int stepInterval = 50; // milliseconds
constexpr double stepCount = 5.0;
constexpr int lastMovingStep = 3; // counted from 0; the step after it is the end

/** Towards zero, as a cast does it; what lies beyond every widget ends at the largest widget's
 * edge. */
int truncated(double x)
{
    return int(qBound<double>(-QWIDGETSIZE_MAX, qIsNaN(x) ? 0.0 : x, QWIDGETSIZE_MAX));
}

QList<QAbstractEventDispatcher::TimerInfo> timersOf(const OlvSwitch *widget)
{
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    return dispatcher ? dispatcher->registeredTimers(const_cast<OlvSwitch *>(widget))
                      : QList<QAbstractEventDispatcher::TimerInfo>();
}

/** From the start of the animation's timer, which comes before the first step. */
bool isSliding(const OlvSwitch *widget)
{
    if (widget->property(moveCountProperty).toInt() != 0) {
        return true;
    }
    const int animation = widget->property(ValueProperties::switchTimerId).toInt();
    const auto timers = timersOf(widget);
    return std::any_of(timers.cbegin(), timers.cend(),
                       [=](const auto &timer) { return timer.timerId == animation; });
}

} // namespace

OlvSwitch::OlvSwitch(QWidget *parent)
    : OlvWidget(parent)
{
    setColorOpen(QColor(220, 223, 230));
    setColorClose(QColor(19, 206, 102));
    setProperty(ValueProperties::switchIsOn, false);
    setProperty(moveCountProperty, 0);
    setProperty(moveWidthProperty, (width() - height()) / stepCount);
    setProperty(intervalProperty, unusedInterval);

    auto *knob = new SwitchRound(this);
    setProperty(roundProperty, reinterpret_cast<qulonglong>(knob));
    knob->setGeometry(0, 0, height(), height());

    auto *filter = new OlvPluginEventFilter(this);
    filter->addObject(knob);
    const auto listen = [&](QEvent::Type type, void (OlvSwitch::*reaction)()) {
        // the filter goes after the switch: an event may come while only the QWidget is left of it
        filter->addEventListener(type, [self = QPointer<QObject>(this), reaction](QEvent *) {
            if (auto *alive = qobject_cast<OlvSwitch *>(self.data())) {
                (alive->*reaction)();
            }
        });
    };
    listen(QEvent::Resize, &OlvSwitch::fitKnob);
    listen(QEvent::MouseButtonRelease, &OlvSwitch::toggle);
    listen(QEvent::Timer, &OlvSwitch::step);
}

QVariant OlvSwitch::getValue()
{
    return property(ValueProperties::switchIsOn);
}

void OlvSwitch::setValue(const QVariant &value)
{
    if (property(ValueProperties::switchIsOn).toBool() == value.toBool()) {
        return;
    }
    setProperty(ValueProperties::switchTimerId, startTimer(stepInterval));
}

bool OlvSwitch::isChecked() const
{
    const bool on = property(ValueProperties::switchIsOn).toBool();
    return isSliding(this) ? !on : on;
}

void OlvSwitch::setChecked(bool checked)
{
    // all of them, since each timer event is a step: a second start leaves the first timer running
    const auto timers = timersOf(this);
    for (const auto &timer : timers) {
        killTimer(timer.timerId);
    }
    if (SwitchRound *round = knob()) {
        round->d->staysAtEnd = true;
    }
    if (property(ValueProperties::switchIsOn).toBool() != checked) {
        settle(checked);
        return;
    }
    const QPointer<OlvSwitch> self(this);
    moveKnobToEnd(checked);
    if (self) {
        setProperty(moveCountProperty, 0);
    }
}

void OlvSwitch::setColorOpen(QColor color)
{
    setProperty(openColorProperty, OlvColorToString(color));
}

void OlvSwitch::setColorClose(QColor color)
{
    setProperty(closeColorProperty, OlvColorToString(color));
}

void OlvSwitch::setColorRound(QColor color)
{
    if (SwitchRound *round = knob()) {
        round->setColor(color);
        round->update();
    }
}

void OlvSwitch::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool on = property(ValueProperties::switchIsOn).toBool();
    const QColor color =
        OlvColorFromString(property(on ? closeColorProperty : openColorProperty).toString());
    Shape::roundedRect(rect(), height() / 2).fill(Canvas(painter), color);
}

SwitchRound *OlvSwitch::knob() const
{
    return childAtAddress<SwitchRound>(this, property(roundProperty));
}

void OlvSwitch::fitKnob()
{
    if (SwitchRound *round = knob()) {
        round->resize(height(), height());
        round->setInset(SwitchRound::Private::insetAt(height()));
        if (round->d->staysAtEnd && !isSliding(this)) {
            moveKnobToEnd(property(ValueProperties::switchIsOn).toBool());
        }
    }
    setProperty(moveWidthProperty, (width() - height()) / stepCount);
}

void OlvSwitch::toggle()
{
    if (property(moveCountProperty).toInt() != 0) {
        return;
    }
    setValue(!property(ValueProperties::switchIsOn).toBool());
}

void OlvSwitch::step()
{
    const int count = property(moveCountProperty).toInt();
    const bool on = property(ValueProperties::switchIsOn).toBool();
    if (count > lastMovingStep) {
        finish(!on);
        return;
    }
    if (SwitchRound *round = knob()) {
        const double step = property(moveWidthProperty).toDouble();
        round->move(truncated(on ? round->x() - step : round->x() + step), 0);
    }
    const QPointer<OlvSwitch> self(this);
    setProperty(moveCountProperty, count + 1);
    if (self) {
        update();
    }
}

void OlvSwitch::finish(bool on)
{
    killTimer(property(ValueProperties::switchTimerId).toInt());
    settle(on);
}

void OlvSwitch::moveKnobToEnd(bool on)
{
    if (SwitchRound *round = knob()) {
        round->move(on ? width() - height() : 0, 0);
    }
}

void OlvSwitch::settle(bool on)
{
    // whoever hears of a property may delete the switch, an assistive program's helper for example
    const QPointer<OlvSwitch> self(this);
    moveKnobToEnd(on);
    if (self) {
        setProperty(moveCountProperty, 0);
    }
    if (self) {
        setProperty(ValueProperties::switchIsOn, on);
    }
    if (!self) {
        return;
    }
    update();

    Q_EMIT valueChanged(on);
    if (self) {
        Q_EMIT changed(on);
    }
    if (self) {
        update();
    }
}
