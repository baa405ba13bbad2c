// SPDX-License-Identifier: MIT
#include "mouse.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <limits>

namespace {

constexpr int animationTime = 250; // milliseconds

bool hasTimers(OlvSwitch &toggle)
{
    return !QAbstractEventDispatcher::instance()->registeredTimers(&toggle).isEmpty();
}

/** A slider that notes what it is told. */
class NotingSlider : public OlvSlider
{
public:
    QVariantList told;

    void setValue(const QVariant &value) override
    {
        told.append(value);
        OlvSlider::setValue(value);
    }
};

} // namespace

class TestSettingAtOnce : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsASwitchOnAndOff();
    void endsTheAnimationUnderWay_data();
    void endsTheAnimationUnderWay();
    void tellsWhereASwitchSlidesTo();
    void keepsTheKnobOfASwitchAtItsEnd();
    void slidesAfterwardsAsBefore();
    void standsADeletionInEachSignal_data();
    void standsADeletionInEachSignal();
    void putsTheKnobOfASliderToItsPercentage_data();
    void putsTheKnobOfASliderToItsPercentage();
    void boundsThePercentage_data();
    void boundsThePercentage();
    void keepsTheKnobOfASliderAtItsPercentage();
    void aDragComesBeforeAResize();
    void needsNoKnob();
};

void TestSettingAtOnce::standsASwitchOnAndOff()
{
    SizedSwitch toggle;
    QStringList order;
    connect(&toggle, &OlvWidget::valueChanged, this, [&](const QVariant &value) {
        order << QStringLiteral("valueChanged %1").arg(value.toString());
        QCOMPARE(toggle.getValue(), value);
    });
    connect(&toggle, &OlvSwitch::changed, this,
            [&](bool on) { order << QStringLiteral("changed %1").arg(on); });

    toggle.setChecked(true);
    QCOMPARE(toggle.getValue(), QVariant(true));
    QVERIFY(toggle.isChecked());
    QCOMPARE(knobOf(toggle)->pos(), QPoint(80, 0));
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("valueChanged true changed 1"));
    QVERIFY(!hasTimers(toggle));

    order.clear();
    toggle.setChecked(true);
    QCOMPARE(order, QStringList());

    toggle.setChecked(false);
    QCOMPARE(toggle.getValue(), QVariant(false));
    QVERIFY(!toggle.isChecked());
    QCOMPARE(knobOf(toggle)->pos(), QPoint(0, 0));
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("valueChanged false changed 0"));
}

void TestSettingAtOnce::endsTheAnimationUnderWay_data()
{
    QTest::addColumn<int>("starts");
    QTest::addColumn<int>("steps");
    QTest::addColumn<bool>("checked");
    for (const bool checked : { false, true }) {
        for (const int starts : { 1, 2 }) {
            for (const int steps : { 0, 1, 4 }) {
                QTest::addRow("%d starts, %d steps, %s", starts, steps, checked ? "on" : "off")
                    << starts << steps << checked;
            }
        }
    }
}

void TestSettingAtOnce::endsTheAnimationUnderWay()
{
    QFETCH(int, starts);
    QFETCH(int, steps);
    QFETCH(bool, checked);
    SizedSwitch toggle;
    for (int i = 0; i < starts; ++i) {
        toggle.setValue(true);
    }
    for (int i = 0; i < steps; ++i) {
        tick(toggle);
    }
    QSignalSpy changed(&toggle, &OlvSwitch::changed);

    toggle.setChecked(checked);
    QCOMPARE(toggle.isChecked(), checked);
    QCOMPARE(toggle.getValue(), QVariant(checked));
    QCOMPARE(toggle.property("moveCount"), QVariant(0));
    QCOMPARE(knobOf(toggle)->pos(), QPoint(checked ? 80 : 0, 0));
    QCOMPARE(changed.count(), checked ? 1 : 0);

    QTest::qWait(animationTime + 100);
    QCOMPARE(toggle.getValue(), QVariant(checked));
    QCOMPARE(knobOf(toggle)->pos(), QPoint(checked ? 80 : 0, 0));
    QCOMPARE(changed.count(), checked ? 1 : 0);
}

void TestSettingAtOnce::tellsWhereASwitchSlidesTo()
{
    SizedSwitch toggle;
    toggle.setValue(true);
    QVERIFY(toggle.isChecked()); // before the first step
    tick(toggle);
    QVERIFY(toggle.isChecked());
    QCOMPARE(toggle.getValue(), QVariant(false));
    QTRY_VERIFY(toggle.getValue().toBool());
    QVERIFY(toggle.isChecked());
    releaseMouse(toggle);
    QVERIFY(!toggle.isChecked());
    QCOMPARE(toggle.getValue(), QVariant(true));
}

void TestSettingAtOnce::keepsTheKnobOfASwitchAtItsEnd()
{
    OlvSwitch toggle;
    toggle.setChecked(true);
    resizeAndTell(toggle, { 120, 30 });
    QCOMPARE(knobOf(toggle)->geometry(), QRect(90, 0, 30, 30));
    toggle.setChecked(false);
    resizeAndTell(toggle, { 60, 20 });
    QCOMPARE(knobOf(toggle)->geometry(), QRect(0, 0, 20, 20));

    toggle.setValue(true);
    tick(toggle);
    const int x = knobOf(toggle)->x();
    resizeAndTell(toggle, { 70, 20 }); // on its way the knob is left to the animation
    QCOMPARE(knobOf(toggle)->x(), x);
    QTRY_COMPARE(knobOf(toggle)->x(), 50);
}

void TestSettingAtOnce::slidesAfterwardsAsBefore()
{
    SizedSwitch toggle;
    toggle.setChecked(true);
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    releaseMouse(toggle);
    tick(toggle);
    QCOMPARE(knobOf(toggle)->x(), 64);
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(toggle.getValue(), QVariant(false));
    QCOMPARE(knobOf(toggle)->x(), 0);
}

void TestSettingAtOnce::standsADeletionInEachSignal_data()
{
    QTest::addColumn<bool>("first");
    QTest::newRow("valueChanged") << true;
    QTest::newRow("changed") << false;
}

void TestSettingAtOnce::standsADeletionInEachSignal()
{
    QFETCH(bool, first);
    const QPointer<OlvSwitch> toggle(new SizedSwitch);
    const auto end = [=] {
        delete toggle;
    };
    if (first) {
        connect(toggle, &OlvWidget::valueChanged, this, end);
    } else {
        connect(toggle, &OlvSwitch::changed, this, end);
    }
    toggle->setChecked(true);
    QVERIFY(!toggle);
}

void TestSettingAtOnce::putsTheKnobOfASliderToItsPercentage_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("x");
    QTest::newRow("0") << 0 << 5;
    QTest::newRow("50") << 50 << 90;
    QTest::newRow("100") << 100 << 175;
}

void TestSettingAtOnce::putsTheKnobOfASliderToItsPercentage()
{
    QFETCH(int, percent);
    QFETCH(int, x);
    NotingSlider slider;
    QSignalSpy changed(&slider, &OlvWidget::valueChanged);
    slider.setSliderPosition(percent);
    QCOMPARE(slider.getValue(), QVariant(percent));
    QCOMPARE(slider.told, QVariantList({ percent }));
    QCOMPARE(knobOf(slider)->geometry(), QRect(x, 5, 20, 20));
    QCOMPARE(changed.count(), 0);

    // a drag from there begins at the same percentage
    Mouse::press(knobOf(slider), { 10, 10 });
    Mouse::move(knobOf(slider), { 10, 10 });
    QCOMPARE(slider.told, QVariantList({ percent }));
}

void TestSettingAtOnce::boundsThePercentage_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("bounded");
    QTest::newRow("below") << -1 << 0;
    QTest::newRow("far below") << std::numeric_limits<int>::min() << 0;
    QTest::newRow("above") << 101 << 100;
    QTest::newRow("far above") << std::numeric_limits<int>::max() << 100;
}

void TestSettingAtOnce::boundsThePercentage()
{
    QFETCH(int, percent);
    QFETCH(int, bounded);
    OlvSlider slider;
    slider.setSliderPosition(percent);
    QCOMPARE(slider.getValue(), QVariant(bounded));
    QCOMPARE(knobOf(slider)->x(), bounded == 0 ? 5 : 175);
}

void TestSettingAtOnce::keepsTheKnobOfASliderAtItsPercentage()
{
    NotingSlider slider;
    slider.setSliderPosition(50);
    resizeAndTell(slider, { 330, 30 });
    QCOMPARE(knobOf(slider)->x(), 155);
    QCOMPARE(slider.told, QVariantList({ 50 }));

    OlvSlider untouched;
    untouched.setValue(50);
    resizeAndTell(untouched, { 330, 30 });
    QCOMPARE(knobOf(untouched)->x(), 5);
}

void TestSettingAtOnce::aDragComesBeforeAResize()
{
    OlvSlider slider;
    slider.setSliderPosition(50);
    SliderRound *knob = knobOf(slider);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 95, 10 });
    QCOMPARE(slider.getValue(), QVariant(100));
    resizeAndTell(slider, { 330, 30 }); // while the button is held the pointer has the knob
    QCOMPARE(knob->x(), 170);
    Mouse::release(knob);
    resizeAndTell(slider, { 130, 30 });
    QCOMPARE(knob->geometry(), QRect(105, 5, 20, 20));
}

void TestSettingAtOnce::needsNoKnob()
{
    OlvSlider slider;
    delete knobOf(slider);
    slider.setSliderPosition(30);
    QCOMPARE(slider.getValue(), QVariant(30));
    SizedSwitch toggle;
    delete knobOf(toggle);
    toggle.setChecked(true);
    QCOMPARE(toggle.getValue(), QVariant(true));
}

ADD_TEST(TestSettingAtOnce, QApplication)
#include "tst_settingatonce.moc"
