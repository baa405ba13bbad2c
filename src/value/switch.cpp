// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>
#include <OlvWidgets/value.h>

#include "painting/canvas_p.h"
#include "painting/colors_p.h"
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

constexpr int unusedInterval = 2;
constexpr int stepInterval = 50; // milliseconds
constexpr double stepCount = 5.0;
constexpr int lastMovingStep = 3; // counted from 0; the step after it is the end

/** Cut off towards zero, and bounded to the coordinates that a widget can have. */
int truncated(double x)
{
    return int(qBound(double(-QWIDGETSIZE_MAX), qIsNaN(x) ? 0.0 : x, double(QWIDGETSIZE_MAX)));
}

QList<QAbstractEventDispatcher::TimerInfo> timersOf(const OlvSwitch *widget)
{
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    return dispatcher ? dispatcher->registeredTimers(const_cast<OlvSwitch *>(widget))
                      : QList<QAbstractEventDispatcher::TimerInfo>();
}

/** Whether the animation is under way: its timer runs already before the first step. */
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

/** Where the knob of a switch that is not mirrored stands after the steps so far. */
int placeOnTheWay(const OlvSwitch *widget)
{
    const double travel = widget->width() - widget->height();
    const double way = travel * widget->property(moveCountProperty).toInt() / stepCount;
    return truncated(widget->property(ValueProperties::switchIsOn).toBool() ? travel - way : way);
}

} // namespace

OlvSwitch::OlvSwitch(QWidget *parent)
    : OlvWidget(parent)
{
    setColorOpen(QColor(Colors::inactive));
    setColorClose(QColor(19, 206, 102));
    setProperty(ValueProperties::switchIsOn, false);
    setProperty(moveCountProperty, 0);
    setProperty(moveWidthProperty, (width() - height()) / stepCount);
    setProperty(intervalProperty, unusedInterval);

    auto *knob = new SwitchRound(this);
    setProperty(ValueProperties::switchKnob, reinterpret_cast<qulonglong>(knob));
    knob->setGeometry(0, 0, height(), height());
    knob->d->mirror.width = width();

    auto *filter = new OlvPluginEventFilter(this);
    filter->addObject(knob);
    const auto listen = [&](QEvent::Type type, void (OlvSwitch::*reaction)()) {
        // an event may come after the destructor of the switch, while that of QWidget is at work
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
    // all of them, since a second start leaves the first timer running, and each event is a step
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
    return childAtAddress<SwitchRound>(this, property(ValueProperties::switchKnob));
}

void OlvSwitch::fitKnob()
{
    // a receiver of the move event may delete the knob and the switch
    const QPointer<OlvSwitch> self(this);
    const QPointer<SwitchRound> round(knob());
    if (round) {
        round->setInset(SwitchRound::Private::insetAt(height()));
        round->d->mirror.width = width();
        round->resize(height(), height());
    }
    const bool isMirrored = self && round && round->d->mirror.isOn;
    if (isMirrored && isSliding(this)) {
        // the resize moves the end that a mirrored knob is placed from
        round->move(round->d->mirror.placed(placeOnTheWay(this), round->width()), 0);
    } else if (self && round && (round->d->staysAtEnd || isMirrored) && !isSliding(this)) {
        moveKnobToEnd(property(ValueProperties::switchIsOn).toBool());
    }
    if (self) {
        setProperty(moveWidthProperty, (width() - height()) / stepCount);
    }
}

void OlvSwitch::toggle()
{
    // event filters see mouse events before Qt drops them for a disabled widget
    if (!isEnabled() || property(moveCountProperty).toInt() != 0) {
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
    const QPointer<OlvSwitch> self(this);
    if (SwitchRound *round = knob()) {
        const Mirror &mirror = round->d->mirror;
        const double step = property(moveWidthProperty).toDouble();
        const int x = mirror.placed(round->x(), round->width());
        round->move(mirror.placed(truncated(on ? x - step : x + step), round->width()), 0);
    }
    if (self) {
        update();
        setProperty(moveCountProperty, count + 1);
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
        const int x = on ? width() - height() : 0;
        round->move(round->d->mirror.placed(x, round->width()), 0);
    }
}

void OlvSwitch::settle(bool on)
{
    // event filters, slots and listeners of assistive programs may delete the switch
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
