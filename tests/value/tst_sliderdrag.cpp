// SPDX-License-Identifier: MIT
#include "mouse.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <limits>

namespace {

/** Presses the knob at its middle and moves so that its logical x becomes @p newX, if it may. */
void dragTo(OlvSlider &slider, int newX)
{
    SliderRound *knob = knobOf(slider);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, QPointF(newX + 10 - knob->x(), 10));
}

class CountingSlider : public OlvSlider
{
public:
    using OlvSlider::OlvSlider;
    void setValue(const QVariant &value) override
    {
        values.append(value);
        OlvSlider::setValue(value);
    }
    QVariantList values;
};

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestSliderDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pressingGrowsTheKnobAboutItsCentre_data();
    void pressingGrowsTheKnobAboutItsCentre();
    void pressRoundsThePointInTheGeometryBefore_data();
    void pressRoundsThePointInTheGeometryBefore();
    void dragGivesAPercentage_data();
    void dragGivesAPercentage();
    void writesOnlyNewPercentagesButAlwaysTheFirst();
    void draggingEmitsNothing();
    void releasingWritesNoValue();
    void movesOnlyWhilePressed();
    void tracksNoMouseAtRest();
    void keepsTheKnobsPlaceOnResizeUntilTheNextDrag();
    void survivesASetValueThatDeletesTheSlider();
    void knobOutsideASliderDragsAndTellsNobody();
    void knobOutlivesTheSliderItLeft();
    void survivesPositionsThatNoPixelHas_data();
    void survivesPositionsThatNoPixelHas();
    void survivesPlacesThatNoKnobHas();
    void survivesAnEndThatNoSliderHas();
    void survivesADragWhileItIsDestroyed();
};

void TestSliderDrag::pressingGrowsTheKnobAboutItsCentre_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestSliderDrag::pressingGrowsTheKnobAboutItsCentre()
{
    QFETCH(Qt::MouseButton, button);
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    QTest::mousePress(knob, button, {}, { 10, 10 });
    QCOMPARE(knob->geometry(), QRect(0, 0, 30, 30));
    QTest::mouseRelease(knob, button, {}, { 10, 10 });
    QCOMPARE(knob->geometry(), QRect(5, 5, 20, 20));
}

void TestSliderDrag::pressRoundsThePointInTheGeometryBefore_data()
{
    QTest::addColumn<qreal>("pressX");
    QTest::addColumn<qreal>("moveX");
    QTest::addColumn<int>("knobX");
    QTest::newRow("whole") << 4.0 << 54.0 << 50;
    QTest::newRow("press rounds up at a half") << 4.5 << 54.0 << 49;
    QTest::newRow("press rounds down below it") << 4.4 << 54.0 << 50;
    QTest::newRow("move rounds up at a half") << 4.0 << 53.5 << 50;
    QTest::newRow("move rounds down below it") << 4.0 << 53.4 << 49;
    QTest::newRow("press outside on the left") << -2.0 << 48.0 << 50;
}

void TestSliderDrag::pressRoundsThePointInTheGeometryBefore()
{
    QFETCH(qreal, pressX);
    QFETCH(qreal, moveX);
    QFETCH(int, knobX);
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    Mouse::press(knob, { pressX, 3.0 });
    Mouse::move(knob, { moveX, 80.0 });
    QCOMPARE(knob->pos(), QPoint(knobX, 0));
}

void TestSliderDrag::dragGivesAPercentage_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("newX");
    QTest::addColumn<int>("knobX");
    QTest::addColumn<int>("progress");
    QTest::newRow("at the start") << 200 << 0 << 0 << 0;
    QTest::newRow("left of the start") << 200 << -1 << 0 << 0;
    QTest::newRow("far left") << 200 << -5000 << 0 << 0;
    QTest::newRow("one pixel is less than a percent") << 200 << 1 << 1 << 0;
    QTest::newRow("two pixels are cut off to one percent") << 200 << 2 << 2 << 1;
    QTest::newRow("middle") << 200 << 85 << 85 << 50;
    QTest::newRow("just before the end") << 200 << 169 << 169 << 99;
    QTest::newRow("at the end") << 200 << 170 << 170 << 100;
    QTest::newRow("beyond the end") << 200 << 171 << 170 << 100;
    QTest::newRow("far right") << 200 << 9000 << 170 << 100;
    QTest::newRow("one pixel of travel, start") << 31 << 0 << 0 << 0;
    QTest::newRow("one pixel of travel, end") << 31 << 1 << 1 << 100;
    QTest::newRow("as wide as the knob, on the spot") << 30 << 0 << 0 << 0;
    QTest::newRow("as wide as the knob, to the left") << 30 << -4 << 0 << 0;
    QTest::newRow("as wide as the knob, to the right") << 30 << 4 << 0 << 100;
    QTest::newRow("narrower, on the spot") << 20 << 0 << -10 << 100;
    QTest::newRow("narrower, to the right") << 20 << 7 << -10 << 100;
    QTest::newRow("narrower, to the left") << 20 << -9 << -10 << 100;
    QTest::newRow("narrower, at its end") << 20 << -10 << 0 << 0;
    QTest::newRow("narrower, beyond its end") << 20 << -11 << 0 << 0;
    QTest::newRow("as wide as Qt allows") << QWIDGETSIZE_MAX << 16777000 << 16777000 << 99;
}

void TestSliderDrag::dragGivesAPercentage()
{
    QFETCH(int, width);
    QFETCH(int, newX);
    QFETCH(int, knobX);
    QFETCH(int, progress);
    CountingSlider slider;
    slider.resize(width, 30);
    QResizeEvent resized(slider.size(), slider.size());
    QCoreApplication::sendEvent(&slider, &resized);
    QCOMPARE(knobOf(slider)->maxX(), width - 30);
    dragTo(slider, newX);
    QCOMPARE(knobOf(slider)->pos(), QPoint(knobX, 0));
    QCOMPARE(knobOf(slider)->size(), QSize(30, 30));
    QCOMPARE(slider.values, QVariantList({ progress }));
    QCOMPARE(slider.getValue(), QVariant(progress));
}

void TestSliderDrag::writesOnlyNewPercentagesButAlwaysTheFirst()
{
    CountingSlider slider;
    SliderRound *knob = knobOf(slider);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 10, 10 });
    QCOMPARE(slider.values, QVariantList({ 0 }));
    Mouse::move(knob, { 11, 10 });
    QCOMPARE(knob->x(), 1);
    QCOMPARE(slider.values, QVariantList({ 0 }));
    Mouse::move(knob, { 11, 10 });
    QCOMPARE(slider.values, QVariantList({ 0, 1 }));

    // what the knob handed over last counts, not what the property holds by now
    slider.setProperty("progress", 60);
    Mouse::move(knob, { 10, 10 });
    QCOMPARE(slider.values, QVariantList({ 0, 1 }));
    QCOMPARE(slider.getValue(), QVariant(60));
}

void TestSliderDrag::draggingEmitsNothing()
{
    OlvSlider slider;
    QSignalSpy changed(&slider, &OlvWidget::valueChanged);
    dragTo(slider, 100);
    QTest::mouseRelease(knobOf(slider), Qt::LeftButton);
    QCOMPARE(slider.getValue(), QVariant(58));
    QCOMPARE(changed.count(), 0);
}

void TestSliderDrag::releasingWritesNoValue()
{
    CountingSlider slider;
    dragTo(slider, 100);
    slider.setProperty("progress", 3);
    Mouse::release(knobOf(slider), { 25, 25 });
    QCOMPARE(slider.getValue(), QVariant(3));
    QCOMPARE(slider.values.count(), 1);
    QCOMPARE(knobOf(slider)->geometry(), QRect(105, 5, 20, 20));
}

void TestSliderDrag::movesOnlyWhilePressed()
{
    CountingSlider slider;
    SliderRound *knob = knobOf(slider);
    Mouse::move(knob, { 60, 10 });
    QCOMPARE(knob->geometry(), QRect(5, 5, 20, 20));
    dragTo(slider, 40);
    Mouse::release(knob, { 10, 10 });
    Mouse::move(knob, { 60, 10 });
    QCOMPARE(knob->geometry(), QRect(45, 5, 20, 20));
    QCOMPARE(slider.values.count(), 1);
}

void TestSliderDrag::tracksNoMouseAtRest()
{
    OlvSlider slider;
    QVERIFY(!slider.hasMouseTracking());
    QVERIFY(!knobOf(slider)->hasMouseTracking());
}

void TestSliderDrag::keepsTheKnobsPlaceOnResizeUntilTheNextDrag()
{
    OlvSlider slider;
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    SliderRound *knob = knobOf(slider);
    dragTo(slider, 170);
    Mouse::release(knob, { 10, 10 });
    QCOMPARE(knob->geometry(), QRect(175, 5, 20, 20));

    slider.resize(100, 30);
    QCOMPARE(knob->maxX(), 70);
    QCOMPARE(knob->geometry(), QRect(175, 5, 20, 20));
    QCOMPARE(slider.getValue(), QVariant(100));

    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 10, 10 });
    QCOMPARE(knob->pos(), QPoint(70, 0));
}

void TestSliderDrag::survivesASetValueThatDeletesTheSlider()
{
    class DeletesItself : public OlvSlider
    {
    public:
        void setValue(const QVariant & /*value*/) override
        {
            delete this;
        }
    };
    const QPointer<OlvSlider> slider(new DeletesItself);
    dragTo(*slider, 50);
    QVERIFY(slider.isNull());
}

void TestSliderDrag::knobOutsideASliderDragsAndTellsNobody()
{
    QWidget parent;
    parent.resize(130, 30);
    SliderRound knob(&parent);
    QCOMPARE(knob.maxX(), 100);
    Mouse::press(&knob, { 10, 10 });
    Mouse::move(&knob, { 45, 10 });
    QCOMPARE(knob.geometry(), QRect(30, 0, 30, 30));
}

void TestSliderDrag::knobOutlivesTheSliderItLeft()
{
    QWidget home;
    auto *slider = new OlvSlider;
    SliderRound *knob = knobOf(*slider);
    knob->setParent(&home);
    delete slider;
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { 60, 10 });
    QCOMPARE(knob->pos(), QPoint(50, 0));
}

void TestSliderDrag::survivesPositionsThatNoPixelHas_data()
{
    QTest::addColumn<double>("place");
    QTest::addColumn<int>("progress");
    QTest::newRow("infinite") << qInf() << 100;
    QTest::newRow("infinite to the left") << -qInf() << 0;
    QTest::newRow("beyond an int") << 1e18 << 100;
    QTest::newRow("beyond an int to the left") << -1e18 << 0;
    QTest::newRow("no number, where the slider begins") << qQNaN() << 0;
}

void TestSliderDrag::survivesPositionsThatNoPixelHas()
{
    QFETCH(double, place);
    QFETCH(int, progress);
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    Mouse::press(knob, { 10, 10 });
    Mouse::move(knob, { place, place });
    QCOMPARE(slider.getValue(), QVariant(progress));
    Mouse::release(knob, { place, place });
    // and pressed there, any move is one to the other side
    Mouse::press(knob, { place, place });
    Mouse::move(knob, { 10, 10 });
    QVERIFY(QRect(0, 0, 200, 30).contains(knob->geometry()));
}

void TestSliderDrag::survivesPlacesThatNoKnobHas()
{
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    for (const int x : { least, least + 1, most - 30, most }) {
        knob->move(x, 0);
        Mouse::press(knob, { 10, 10 });
        knob->move(x, 0);
        Mouse::release(knob, { 10, 10 });
        Mouse::press(knob, { 10, 10 });
        Mouse::move(knob, { 10, 10 });
        Mouse::release(knob, { 10, 10 });
        QVERIFY(QRect(0, 0, 200, 30).contains(knob->geometry()));
    }
}

void TestSliderDrag::survivesAnEndThatNoSliderHas()
{
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    for (const int end : { std::numeric_limits<int>::min(), std::numeric_limits<int>::max() }) {
        knob->setMaxX(end);
        QCOMPARE(knob->maxX(), end);
        for (int i = 0; i < 3; ++i) {
            dragTo(slider, 50);
        }
        QVERIFY(qAbs(knob->x()) <= QWIDGETSIZE_MAX + 15);
    }
}

void TestSliderDrag::survivesADragWhileItIsDestroyed()
{
    const QPointer<OlvSlider> slider(new OlvSlider);
    SliderRound *knob = knobOf(*slider);
    int x = 0;
    // what is left of it is a plain widget, whose knob still lives
    connect(slider, &QObject::destroyed, this, [&] {
        Mouse::press(knob, { 10, 10 });
        Mouse::move(knob, { 60, 10 });
        x = knob->x();
    });
    delete slider;
    QCOMPARE(x, 50);
}

ADD_TEST(TestSliderDrag, QApplication)
#include "tst_sliderdrag.moc"
