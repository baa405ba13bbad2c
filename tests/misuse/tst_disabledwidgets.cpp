// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "mouse.h"
#include "movablewidget.h"
#include "resizehandles.h"
#include "sizedswitch.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <OlvMoveWidget>
#include <OlvResizeWidget>

#include <QSignalSpy>
#include <QTest>

/**
 * What is disabled does nothing by the mouse: event filters see that before Qt keeps it from a
 * disabled widget. What began before the widget was disabled still ends.
 */
class TestDisabledWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void switchIgnoresClicks_data();
    void switchIgnoresClicks();
    void switchIsStillSetFromCode();
    void switchEndsItsSlide();
    void sliderIsNotDragged();
    void sliderDragEnds_data();
    void sliderDragEnds();
    void widgetIsNotMoved();
    void moveEnds_data();
    void moveEnds();
    void widgetIsNotResized_data();
    void widgetIsNotResized();
    void resizeStops();
};

void TestDisabledWidgets::cleanup()
{
    runDeferred();
}

void TestDisabledWidgets::switchIgnoresClicks_data()
{
    QTest::addColumn<bool>("onKnob");
    QTest::addColumn<bool>("byParent");
    QTest::newRow("on the track") << false << false;
    QTest::newRow("on the knob") << true << false;
    QTest::newRow("on the track, in a disabled parent") << false << true;
    QTest::newRow("on the knob, in a disabled parent") << true << true;
}

void TestDisabledWidgets::switchIgnoresClicks()
{
    QFETCH(bool, onKnob);
    QFETCH(bool, byParent);
    QWidget parent;
    SizedSwitch toggle;
    toggle.setParent(&parent);
    QWidget &disabled = byParent ? parent : toggle;
    QWidget &clicked = onKnob ? *knobOf(toggle) : static_cast<QWidget &>(toggle);
    disabled.setEnabled(false);
    releaseMouse(clicked);
    QVERIFY(!toggle.isChecked());
    QVERIFY(!toggle.property("timerId").isValid());

    disabled.setEnabled(true);
    releaseMouse(clicked);
    QVERIFY(toggle.isChecked());
}

void TestDisabledWidgets::switchIsStillSetFromCode()
{
    SizedSwitch toggle;
    toggle.setEnabled(false);
    const QSignalSpy changed(&toggle, &OlvSwitch::changed);
    toggle.setValue(true);
    runAnimation(toggle);
    QCOMPARE(changed.count(), 1);
}

void TestDisabledWidgets::switchEndsItsSlide()
{
    SizedSwitch toggle;
    releaseMouse(toggle);
    tick(toggle);
    toggle.setEnabled(false);
    for (int i = 0; i < 4; ++i) {
        tick(toggle);
    }
    QCOMPARE(toggle.getValue(), QVariant(true));
    QCOMPARE(toggle.property("moveCount"), QVariant(0));
}

void TestDisabledWidgets::sliderIsNotDragged()
{
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    slider.setEnabled(false);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 95, 10 });
    Mouse::release(knob, { 95, 10 });
    QCOMPARE(slider.getValue(), QVariant(0));
    QCOMPARE(knob->geometry(), QRect(5, 5, 20, 20));
}

void TestDisabledWidgets::sliderDragEnds_data()
{
    QTest::addColumn<bool>("enabledBeforeRelease");
    QTest::newRow("disabled") << false;
    QTest::newRow("enabled again") << true;
}

void TestDisabledWidgets::sliderDragEnds()
{
    QFETCH(bool, enabledBeforeRelease);
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 95, 10 });
    QCOMPARE(slider.getValue(), QVariant(50));
    slider.setEnabled(false);
    Mouse::move(knob, { 30, 10 });
    QCOMPARE(slider.getValue(), QVariant(50));
    slider.setEnabled(enabledBeforeRelease);
    Mouse::release(knob, { 30, 10 });
    QCOMPARE(knob->geometry(), QRect(90, 5, 20, 20));

    slider.setEnabled(true);
    Mouse::move(knob, { 60, 10 });
    QCOMPARE(slider.getValue(), QVariant(50));
    Mouse::release(knob, { 60, 10 });
}

void TestDisabledWidgets::widgetIsNotMoved()
{
    MovableWidget movable;
    QWidget *target = movable.target;
    target->setEnabled(false);
    Mouse::press(target, { 10, 10 });
    QVERIFY(!movable.mover.property("CanMove").toBool());
    Mouse::move(target, { 17, 18 });
    target->setEnabled(true);
    Mouse::move(target, { 17, 18 });
    QCOMPARE(target->pos(), QPoint(20, 30));
}

void TestDisabledWidgets::moveEnds_data()
{
    QTest::addColumn<bool>("byParent");
    QTest::newRow("disabled itself") << false;
    QTest::newRow("disabled by its parent") << true;
}

void TestDisabledWidgets::moveEnds()
{
    QFETCH(bool, byParent);
    MovableWidget movable;
    QWidget *target = movable.target;
    Mouse::press(target, { 10, 10 });
    Mouse::move(target, { 17, 18 });
    QCOMPARE(target->pos(), QPoint(27, 38));
    QWidget *disabled = byParent ? &movable.window : target;
    disabled->setEnabled(false);
    Mouse::move(target, { 17, 18 });
    QCOMPARE(target->pos(), QPoint(27, 38));
    QVERIFY(movable.mover.property("CanMove").toBool());
    Mouse::release(target);
    QCOMPARE(movable.mover.property("CanMove"), QVariant(false));
    disabled->setEnabled(true);
    Mouse::move(target, { 17, 18 });
    QCOMPARE(target->pos(), QPoint(27, 38));
}

void TestDisabledWidgets::widgetIsNotResized_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("right edge") << int(OlvResizeItem::RightEdge);
    QTest::newRow("bottom edge") << int(OlvResizeItem::BottomEdge);
    QTest::newRow("corner") << int(OlvResizeItem::Corner);
}

void TestDisabledWidgets::widgetIsNotResized()
{
    QFETCH(int, type);
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *handle = handleOf(target, OlvResizeItem::ResizeType(type));
    target.setEnabled(false);
    drag(handle, { 1, 1 }, { 20, 20 });
    QCOMPARE(target.size(), QSize(400, 300));
    QCOMPARE(handle->pressPosition(), QPoint(0, 0));
    target.setEnabled(true);
    drag(handle, { 1, 1 }, { 20, 20 });
    QVERIFY(target.size() != QSize(400, 300));
}

void TestDisabledWidgets::resizeStops()
{
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *corner = handlesOf(target).corner;
    drag(corner, { 1, 1 }, { 11, 21 });
    QCOMPARE(target.size(), QSize(410, 320));
    target.setEnabled(false);
    Mouse::move(corner, { 11, 21 });
    QCOMPARE(target.size(), QSize(410, 320));
    Mouse::release(corner, { 11, 21 });
    target.setEnabled(true);
    QCOMPARE(target.size(), QSize(410, 320));
}

ADD_TEST(TestDisabledWidgets, QApplication)
#include "tst_disabledwidgets.moc"
