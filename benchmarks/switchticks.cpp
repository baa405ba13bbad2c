// SPDX-License-Identifier: MIT
#include "groups.h"
#include "support.h"

#include <OlvWidgets/value.h>

#include <QBasicTimer>
#include <QCoreApplication>
#include <QPainter>
#include <QTimerEvent>
#include <QVariantAnimation>
#include <QVector>

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

void toggleHandWritten(benchmark::State &state)
{
    QWidget window;
    auto *handWritten = new HandWrittenSwitch(&window);
    handWritten->setGeometry(switchGeometry);
    showAndWait(window);
    bool on = false;
    while (state.KeepRunning()) {
        on = !on;
        handWritten->start();
        const int timerId = handWritten->timerId();
        for (int i = 0; i < tickCount; ++i) {
            tick(*handWritten, timerId, window);
        }
    }
    if (handWritten->isOn() != on) {
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

void startOne(HandWrittenSwitch *handWritten)
{
    handWritten->start();
}

int timerOf(const OlvSwitch *library)
{
    return library->property("timerId").toInt();
}

int timerOf(const HandWrittenSwitch *handWritten)
{
    return handWritten->timerId();
}

/** All slide side by side, and the window is painted once a tick. */
template <typename Switch> void toggleMany(benchmark::State &state)
{
    QWidget window;
    const QVector<Switch *> switches = makeMany<Switch>(window);
    showAndWait(window);
    while (state.KeepRunning()) {
        for (Switch *one : switches) {
            startOne(one);
        }
        for (int i = 0; i < tickCount; ++i) {
            for (Switch *one : switches) {
                QTimerEvent event(timerOf(one));
                QCoreApplication::sendEvent(one, &event);
            }
            paintUpdates(window);
        }
    }
}

} // namespace

void addSwitchTicks()
{
    addBenchmark("switch-ticks/library", toggleLibrary);
    addBenchmark("switch-ticks/handwritten", toggleHandWritten);
    addBenchmark("switch-ticks/animation", toggleAnimated);
    addBenchmark("many-switches/library", toggleMany<OlvSwitch>);
    addBenchmark("many-switches/handwritten", toggleMany<HandWrittenSwitch>);
}
