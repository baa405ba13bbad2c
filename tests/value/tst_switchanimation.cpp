// SPDX-License-Identifier: MIT
#include "paintwatch.h"
#include "sizedswitch.h"
#include "testprogram.h"

#include <QAbstractEventDispatcher>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class TestSwitchAnimation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreAFifthOfTheTravel_data();
    void stepsAreAFifthOfTheTravel();
    void stepsStartFromTheKnobsOwnPlace();
    void flipsAtTheFifthStepAndTellsInOrder();
    void ticksEveryFiftyMillisecondsOfACoarseTimer();
    void knobsTimerEventsAreStepsToo();
    void settingTheSameValueDoesNothing_data();
    void settingTheSameValueDoesNothing();
    void everyMouseButtonOnSwitchOrKnobClicks_data();
    void everyMouseButtonOnSwitchOrKnobClicks();
    void clickCallsTheVirtualSetValue();
    void ignoresClicksWhileTheKnobMoves();
    void secondStartBeforeTheFirstStepLeavesATimerBehind();
};

void TestSwitchAnimation::stepsAreAFifthOfTheTravel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QList<int>>("places");
    QTest::newRow("whole steps") << QSize(100, 20) << QList<int>({ 16, 32, 48, 64, 80 });
    // 6.4: each step is cut off from where the knob then stands
    QTest::newRow("broken steps") << QSize(52, 20) << QList<int>({ 6, 12, 18, 24, 32 });
    QTest::newRow("steps below a pixel") << QSize(24, 20) << QList<int>({ 0, 0, 0, 0, 4 });
    QTest::newRow("square") << QSize(20, 20) << QList<int>({ 0, 0, 0, 0, 0 });
    QTest::newRow("higher than wide") << QSize(10, 23) << QList<int>({ -2, -4, -6, -8, -13 });
    QTest::newRow("no size") << QSize(0, 0) << QList<int>({ 0, 0, 0, 0, 0 });
}

void TestSwitchAnimation::stepsAreAFifthOfTheTravel()
{
    QFETCH(QSize, size);
    QFETCH(QList<int>, places);
    SizedSwitch toggle(size);
    QCOMPARE(toggle.property("moveWidth"), QVariant((size.width() - size.height()) / 5.0));
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(toggle.property("switch"), QVariant(false));
        QCOMPARE(toggle.property("moveCount"), QVariant(i));
        tick(toggle);
        QCOMPARE(knobOf(toggle)->pos(), QPoint(places.at(i), 0));
    }
    QCOMPARE(toggle.property("switch"), QVariant(true));
    QCOMPARE(toggle.property("moveCount"), QVariant(0));

    // back again, down from the end and cut off towards zero
    int x = places.last();
    const double step = toggle.property("moveWidth").toDouble();
    for (int i = 0; i < 4; ++i) {
        tick(toggle);
        x = int(x - step);
        QCOMPARE(knobOf(toggle)->pos(), QPoint(x, 0));
    }
    tick(toggle);
    QCOMPARE(knobOf(toggle)->pos(), QPoint(0, 0));
    QCOMPARE(toggle.property("switch"), QVariant(false));
}

void TestSwitchAnimation::stepsStartFromTheKnobsOwnPlace()
{
    SizedSwitch toggle({ 52, 20 });
    knobOf(toggle)->move(-10, 7);
    tick(toggle);
    QCOMPARE(knobOf(toggle)->pos(), QPoint(-3, 0)); // -3.6 towards zero
    knobOf(toggle)->move(40, 7);
    tick(toggle);
    QCOMPARE(knobOf(toggle)->pos(), QPoint(46, 0));
}

void TestSwitchAnimation::flipsAtTheFifthStepAndTellsInOrder()
{
    SizedSwitch toggle;
    QStringList record;
    const auto note = [&](const char *signal, bool on) {
        record.append(QStringLiteral("%1 %2, %3 at %4")
                          .arg(QLatin1String(signal))
                          .arg(on)
                          .arg(toggle.getValue().toBool())
                          .arg(knobOf(toggle)->x()));
    };
    connect(&toggle, &OlvWidget::valueChanged, this, [&](const QVariant &value) {
        QCOMPARE(value.userType(), int(QMetaType::Bool));
        note("valueChanged", value.toBool());
    });
    connect(&toggle, &OlvSwitch::changed, this, [&](bool on) { note("changed", on); });
    for (int i = 0; i < 4; ++i) {
        tick(toggle);
    }
    QCOMPARE(record, QStringList());
    tick(toggle);
    QCOMPARE(record,
             QStringList({ QStringLiteral("valueChanged 1, 1 at 80"),
                           QStringLiteral("changed 1, 1 at 80") }));
    record.clear();
    runAnimation(toggle);
    QCOMPARE(record,
             QStringList({ QStringLiteral("valueChanged 0, 0 at 0"),
                           QStringLiteral("changed 0, 0 at 0") }));
}

void TestSwitchAnimation::ticksEveryFiftyMillisecondsOfACoarseTimer()
{
    SizedSwitch toggle;
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    QCOMPARE(dispatcher->registeredTimers(&toggle).count(), 0);
    toggle.setValue(true);
    const QList<QAbstractEventDispatcher::TimerInfo> timers = dispatcher->registeredTimers(&toggle);
    QCOMPARE(timers.count(), 1);
    QCOMPARE(timers.first().interval, 50);
    QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
    QCOMPARE(toggle.property("timerId"), QVariant(timers.first().timerId));
    QCOMPARE(toggle.property("timerId").userType(), int(QMetaType::Int));
    runAnimation(toggle);
    QCOMPARE(dispatcher->registeredTimers(&toggle).count(), 0);
}

void TestSwitchAnimation::knobsTimerEventsAreStepsToo()
{
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    for (int i = 1; i <= 4; ++i) {
        tick(*knobOf(toggle));
        QCOMPARE(knobOf(toggle)->x(), 16 * i);
        QCOMPARE(toggle.property("moveCount"), QVariant(i));
    }
    tick(*knobOf(toggle));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(knobOf(toggle)->x(), 80);
}

void TestSwitchAnimation::settingTheSameValueDoesNothing_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("off, false") << false << QVariant(false);
    QTest::newRow("off, invalid") << false << QVariant();
    QTest::newRow("off, 0") << false << QVariant(0);
    QTest::newRow("off, \"false\"") << false << QVariant(QStringLiteral("false"));
    QTest::newRow("on, true") << true << QVariant(true);
    QTest::newRow("on, 7") << true << QVariant(7);
}

void TestSwitchAnimation::settingTheSameValueDoesNothing()
{
    QFETCH(bool, on);
    QFETCH(QVariant, value);
    SizedSwitch toggle;
    toggle.setProperty("switch", on);
    QSignalSpy valueChanged(&toggle, &OlvWidget::valueChanged);
    toggle.setValue(value);
    QVERIFY(!toggle.property("timerId").isValid());
    QCOMPARE(valueChanged.count(), 0);
}

void TestSwitchAnimation::everyMouseButtonOnSwitchOrKnobClicks_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("onKnob");
    QTest::newRow("left on the switch") << int(Qt::LeftButton) << false;
    QTest::newRow("right on the switch") << int(Qt::RightButton) << false;
    QTest::newRow("left on the knob") << int(Qt::LeftButton) << true;
    QTest::newRow("middle on the knob") << int(Qt::MiddleButton) << true;
}

void TestSwitchAnimation::everyMouseButtonOnSwitchOrKnobClicks()
{
    QFETCH(int, button);
    QFETCH(bool, onKnob);
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    QWidget *target = onKnob ? static_cast<QWidget *>(knobOf(toggle)) : &toggle;
    releaseMouse(*target, Qt::MouseButton(button));
    QVERIFY(changed.wait());
    QCOMPARE(changed.first().first().toBool(), true);
}

void TestSwitchAnimation::clickCallsTheVirtualSetValue()
{
    class Recording : public SizedSwitch
    {
    public:
        void setValue(const QVariant &value) override
        {
            values.append(value);
        }
        QVariantList values;
    } toggle;
    releaseMouse(toggle);
    toggle.setProperty("switch", true);
    releaseMouse(toggle);
    QCOMPARE(toggle.values, QVariantList({ true, false }));
    QCOMPARE(toggle.values.first().userType(), int(QMetaType::Bool));
}

void TestSwitchAnimation::ignoresClicksWhileTheKnobMoves()
{
    SizedSwitch toggle;
    tick(toggle);
    releaseMouse(toggle);
    QVERIFY(!toggle.property("timerId").isValid());
    for (int i = 0; i < 4; ++i) {
        tick(toggle);
    }
    releaseMouse(toggle);
    QVERIFY(toggle.property("timerId").toInt() > 0);
}

void TestSwitchAnimation::secondStartBeforeTheFirstStepLeavesATimerBehind()
{
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    releaseMouse(toggle);
    const int first = toggle.property("timerId").toInt();
    releaseMouse(toggle);
    const int second = toggle.property("timerId").toInt();
    QVERIFY(first != second);

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^QObject::killTimer")));
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(toggle.property("timerId").toInt(), second);
    // the first timer goes on to flip it back
    QTRY_COMPARE(changed.count(), 2);
    QCOMPARE(toggle.getValue(), QVariant(false));
    toggle.killTimer(first);
}

ADD_TEST(TestSwitchAnimation, QApplication)
#include "tst_switchanimation.moc"
