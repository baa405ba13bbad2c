// SPDX-License-Identifier: MIT
#include "groups.h"
#include "prepared.h"
#include "support.h"

#include <OlvWidgets/value.h>

#include <QBasicTimer>
#include <QCoreApplication>
#include <QPainter>
#include <QTimerEvent>
#include <QVariantAnimation>
#include <QVector>

#include <algorithm>
#include <ctime>

namespace {

constexpr QRect switchGeometry(10, 10, 50, 24);
constexpr int tickInterval = 50; // milliseconds
constexpr int tickCount = 5;
constexpr int framesPerSecond = 60;
constexpr int animationFrames = framesPerSecond * tickCount * tickInterval / 1000;

/** The switch that one would write oneself: one widget, its state in members. */
class HandWrittenSwitch : public QWidget
{
public:
    using QWidget::QWidget;

    void start()
    {
        m_timer.start(tickInterval, this);
    }

    int timerId() const
    {
        return m_timer.timerId();
    }

    bool isOn() const
    {
        return m_on;
    }

    /** @p progress is 0 at the start of the animation and 1 at its end. */
    void slideTo(qreal progress)
    {
        const int travel = width() - height();
        m_knobX = qRound(travel * (m_on ? 1 - progress : progress));
        update();
    }

    void arrive()
    {
        slideTo(1);
        m_on = !m_on;
    }

protected:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        if (++m_tick < tickCount) {
            slideTo(qreal(m_tick) / tickCount);
            return;
        }
        m_timer.stop();
        m_tick = 0;
        arrive();
    }

    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_on ? QColor(19, 206, 102) : QColor(220, 223, 230));
        painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
        painter.setBrush(Qt::white);
        const int inset = height() / 10;
        painter.drawEllipse(m_knobX + inset, inset, height() - 2 * inset, height() - 2 * inset);
    }

private:
    QBasicTimer m_timer;
    int m_tick = 0;
    int m_knobX = 0;
    bool m_on = false;
};

/** The library's two widgets, a track and the knob that moves on it, with prepared drawings. */
class TwoWidgetSwitch : public QObject
{
public:
    explicit TwoWidgetSwitch(QWidget *parent)
        : QObject(parent)
        , m_pair(prepareSwitch(parent))
    { }

    void setGeometry(const QRect &geometry)
    {
        m_pair.track->setGeometry(geometry);
    }

    void start()
    {
        m_timer.start(tickInterval, this);
    }

    int timerId() const
    {
        return m_timer.timerId();
    }

    bool isOn() const
    {
        return m_on;
    }

protected:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        const int travel = m_pair.track->width() - m_pair.knob->width();
        const int way = travel * ++m_tick / tickCount;
        m_pair.knob->move(m_on ? travel - way : way, 0);
        m_pair.track->update();
        if (m_tick == tickCount) {
            m_timer.stop();
            m_tick = 0;
            m_on = !m_on;
        }
    }

private:
    QBasicTimer m_timer;
    PreparedPair m_pair;
    int m_tick = 0;
    bool m_on = false;
};

void tick(QObject &receiver, int timerId, QWidget &window)
{
    QTimerEvent event(timerId);
    QCoreApplication::sendEvent(&receiver, &event);
    paintUpdates(window);
}

void toggleLibrary(benchmark::State &state)
{
    QWidget window;
    auto *library = new OlvSwitch(&window);
    library->setGeometry(switchGeometry);
    showAndWait(window);
    bool on = false;
    while (state.KeepRunning()) {
        on = !on;
        library->setValue(on);
        const int timerId = library->property("timerId").toInt();
        for (int i = 0; i < tickCount; ++i) {
            tick(*library, timerId, window);
        }
    }
    if (library->getValue().toBool() != on) {
        state.SkipWithError("the switch did not arrive");
    }
}

template <typename Switch> void toggleOther(benchmark::State &state)
{
    QWidget window;
    auto *other = new Switch(&window);
    other->setGeometry(switchGeometry);
    showAndWait(window);
    bool on = false;
    while (state.KeepRunning()) {
        on = !on;
        other->start();
        const int timerId = other->timerId();
        for (int i = 0; i < tickCount; ++i) {
            tick(*other, timerId, window);
        }
    }
    if (other->isOn() != on) {
        state.SkipWithError("the switch did not arrive");
    }
}

/** The benchmark requests the frames instead of a timer. */
void toggleAnimated(benchmark::State &state)
{
    QWidget window;
    auto *handWritten = new HandWrittenSwitch(&window);
    handWritten->setGeometry(switchGeometry);
    QVariantAnimation animation;
    animation.setDuration(tickCount * tickInterval);
    animation.setStartValue(0.0);
    animation.setEndValue(1.0);
    QObject::connect(
        &animation, &QVariantAnimation::valueChanged, handWritten,
        [handWritten](const QVariant &progress) { handWritten->slideTo(progress.toReal()); });
    showAndWait(window);
    while (state.KeepRunning()) {
        animation.setCurrentTime(0);
        for (int frame = 1; frame <= animationFrames; ++frame) {
            animation.setCurrentTime(frame * 1000 / framesPerSecond);
            paintUpdates(window);
        }
        handWritten->arrive();
    }
}

constexpr int manySwitches = 1000;
constexpr int switchesInARow = 40;

template <typename Switch> QVector<Switch *> makeMany(QWidget &window)
{
    window.resize(switchesInARow * 60, manySwitches / switchesInARow * 30);
    QVector<Switch *> switches;
    for (int i = 0; i < manySwitches; ++i) {
        switches.append(new Switch(&window));
        switches.last()->setGeometry(
            switchGeometry.translated(i % switchesInARow * 60, i / switchesInARow * 30));
    }
    return switches;
}

void startOne(OlvSwitch *library)
{
    library->setValue(!library->getValue().toBool());
}

template <typename Switch> void startOne(Switch *other)
{
    other->start();
}

int timerOf(const OlvSwitch *library)
{
    return library->property("timerId").toInt();
}

template <typename Switch> int timerOf(const Switch *other)
{
    return other->timerId();
}

bool isOn(OlvSwitch *library)
{
    return library->isChecked();
}

template <typename Switch> bool isOn(Switch *other)
{
    return other->isOn();
}

/** One tick of all, which are painted once after it; returns its processor time in milliseconds. */
template <typename Switch> double tickAll(const QVector<Switch *> &switches, QWidget &window)
{
    const std::clock_t begin = std::clock();
    for (Switch *one : switches) {
        QTimerEvent event(timerOf(one));
        QCoreApplication::sendEvent(one, &event);
    }
    paintUpdates(window);
    return 1000.0 * double(std::clock() - begin) / CLOCKS_PER_SEC;
}

/** All slide side by side. A tick that takes longer than the time to the next one delays it. */
template <typename Switch> void toggleMany(benchmark::State &state)
{
    QWidget window;
    const QVector<Switch *> switches = makeMany<Switch>(window);
    showAndWait(window);
    double busy = 0;
    int delayed = 0;
    bool on = false;
    while (state.KeepRunning()) {
        on = !on;
        for (Switch *one : switches) {
            startOne(one);
        }
        for (int i = 0; i < tickCount; ++i) {
            const double milliseconds = tickAll(switches, window);
            busy += milliseconds;
            delayed += milliseconds > tickInterval ? 1 : 0;
        }
    }
    if (!std::all_of(switches.cbegin(), switches.cend(),
                     [=](Switch *one) { return isOn(one) == on; })) {
        state.SkipWithError("a switch did not arrive");
    }
    const double ticks = double(state.iterations()) * tickCount;
    const double ticksPerSecond = 1000.0 / tickInterval;
    state.counters["busy"] = busy / ticks * ticksPerSecond;
    state.counters["delayed"] = delayed / ticks * ticksPerSecond;
}

} // namespace

void addSwitchTicks()
{
    addBenchmark("switch-ticks/library", toggleLibrary);
    addBenchmark("switch-ticks/handwritten", toggleOther<HandWrittenSwitch>);
    addBenchmark("switch-ticks/two-widgets", toggleOther<TwoWidgetSwitch>);
    addBenchmark("switch-ticks/animation", toggleAnimated);
    addBenchmark("many-switches/library", toggleMany<OlvSwitch>);
    addBenchmark("many-switches/handwritten", toggleMany<HandWrittenSwitch>);
    addBenchmark("many-switches/two-widgets", toggleMany<TwoWidgetSwitch>);
}
