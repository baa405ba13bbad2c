// SPDX-License-Identifier: MIT
#include "pixels.h"

#include <OlvSlider>

#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

namespace {

SliderRound *knobOf(const OlvSlider &slider)
{
    return reinterpret_cast<SliderRound *>(slider.property("SliderRound").toULongLong());
}

void sendMouse(QWidget *widget, QEvent::Type type, const QPointF &place,
               Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(type, place, button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/** Presses the knob at its middle and moves so that its logical x becomes @p newX, if it may. */
void dragTo(OlvSlider &slider, int newX)
{
    SliderRound *knob = knobOf(slider);
    sendMouse(knob, QEvent::MouseButtonPress, { 10, 10 });
    sendMouse(knob, QEvent::MouseMove, QPointF(newX + 10 - knob->x(), 10));
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

class TestSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtZeroWithItsKnobAtRest();
    void takesAParentAndNoFlags();
    void keepsItsHeight();
    void hasAMetaObjectWithNothingOfItsOwn();
    void setValueMovesNothingAndTellsNobody();
    void getValueConvertsThePropertyToInt_data();
    void getValueConvertsThePropertyToInt();
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
    void survivesAPropertyThatHoldsAnotherNumber_data();
    void survivesAPropertyThatHoldsAnotherNumber();
    void survivesASetValueThatDeletesTheSlider();
    void knobOutsideASliderDragsAndTellsNobody();
    void knobOutlivesTheSliderItLeft();
    void drawsTheTrack_data();
    void drawsTheTrack();
    void drawsTheTrackWhateverTheValue();
    void drawsTheKnob_data();
    void drawsTheKnob();
};

void TestSlider::startsAtZeroWithItsKnobAtRest()
{
    OlvSlider slider;
    QCOMPARE(slider.size(), QSize(200, 30));
    QCOMPARE(slider.property("progress"), QVariant(0));
    QCOMPARE(slider.property("progress").userType(), int(QMetaType::Int));
    QCOMPARE(slider.getValue(), QVariant(0));
    QCOMPARE(slider.dynamicPropertyNames(), QList<QByteArray>({ "progress", "SliderRound" }));
    QCOMPARE(slider.property("SliderRound").userType(), int(QMetaType::ULongLong));

    SliderRound *knob = knobOf(slider);
    QCOMPARE(slider.children(), QObjectList({ knob }));
    QCOMPARE(knob->geometry(), QRect(5, 5, 20, 20));
    QCOMPARE(knob->maxX(), 170);
}

void TestSlider::takesAParentAndNoFlags()
{
    QWidget parent;
    auto *slider = new OlvSlider(&parent);
    QCOMPARE(slider->parentWidget(), &parent);
    QVERIFY(!slider->isWindow());
}

void TestSlider::keepsItsHeight()
{
    OlvSlider slider;
    slider.resize(90, 77);
    QCOMPARE(slider.size(), QSize(90, 30));
    QCOMPARE(slider.minimumHeight(), 30);
    QCOMPARE(slider.maximumHeight(), 30);
}

void TestSlider::hasAMetaObjectWithNothingOfItsOwn()
{
    const QMetaObject &meta = OlvSlider::staticMetaObject;
    QCOMPARE(meta.className(), "OlvSlider");
    QCOMPARE(meta.superClass(), &OlvWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    QCOMPARE(SliderRound::staticMetaObject.className(), "QWidget");
}

void TestSlider::setValueMovesNothingAndTellsNobody()
{
    OlvSlider slider;
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QSignalSpy changed(&slider, &OlvWidget::valueChanged);
    slider.setValue(50);
    QCOMPARE(slider.getValue(), QVariant(50));
    QCOMPARE(slider.property("progress"), QVariant(50));
    QCOMPARE(knobOf(slider)->geometry(), QRect(5, 5, 20, 20));
    QCOMPARE(changed.count(), 0);
}

void TestSlider::getValueConvertsThePropertyToInt_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("value");
    QTest::newRow("text") << QVariant(QStringLiteral("73")) << 73;
    QTest::newRow("no number") << QVariant(QStringLiteral("much")) << 0;
    QTest::newRow("real") << QVariant(41.6) << 42;
    QTest::newRow("above the range") << QVariant(1000) << 1000;
    QTest::newRow("below the range") << QVariant(-3) << -3;
    QTest::newRow("invalid") << QVariant() << 0;
}

void TestSlider::getValueConvertsThePropertyToInt()
{
    QFETCH(QVariant, stored);
    QFETCH(int, value);
    OlvSlider slider;
    slider.setValue(stored);
    QCOMPARE(slider.property("progress"), stored);
    QCOMPARE(slider.getValue(), QVariant(value));
    QCOMPARE(slider.getValue().userType(), int(QMetaType::Int));
}

void TestSlider::pressingGrowsTheKnobAboutItsCentre_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestSlider::pressingGrowsTheKnobAboutItsCentre()
{
    QFETCH(Qt::MouseButton, button);
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    QTest::mousePress(knob, button, {}, { 10, 10 });
    QCOMPARE(knob->geometry(), QRect(0, 0, 30, 30));
    QTest::mouseRelease(knob, button, {}, { 10, 10 });
    QCOMPARE(knob->geometry(), QRect(5, 5, 20, 20));
}

void TestSlider::pressRoundsThePointInTheGeometryBefore_data()
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

void TestSlider::pressRoundsThePointInTheGeometryBefore()
{
    QFETCH(qreal, pressX);
    QFETCH(qreal, moveX);
    QFETCH(int, knobX);
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    sendMouse(knob, QEvent::MouseButtonPress, { pressX, 3.0 });
    sendMouse(knob, QEvent::MouseMove, { moveX, 80.0 });
    QCOMPARE(knob->pos(), QPoint(knobX, 0));
}

void TestSlider::dragGivesAPercentage_data()
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

void TestSlider::dragGivesAPercentage()
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

void TestSlider::writesOnlyNewPercentagesButAlwaysTheFirst()
{
    CountingSlider slider;
    SliderRound *knob = knobOf(slider);
    sendMouse(knob, QEvent::MouseButtonPress, { 10, 10 });
    sendMouse(knob, QEvent::MouseMove, { 10, 10 });
    QCOMPARE(slider.values, QVariantList({ 0 }));
    sendMouse(knob, QEvent::MouseMove, { 11, 10 });
    QCOMPARE(knob->x(), 1);
    QCOMPARE(slider.values, QVariantList({ 0 }));
    sendMouse(knob, QEvent::MouseMove, { 11, 10 });
    QCOMPARE(slider.values, QVariantList({ 0, 1 }));

    // what the knob handed over last counts, not what the property holds by now
    slider.setProperty("progress", 60);
    sendMouse(knob, QEvent::MouseMove, { 10, 10 });
    QCOMPARE(slider.values, QVariantList({ 0, 1 }));
    QCOMPARE(slider.getValue(), QVariant(60));
}

void TestSlider::draggingEmitsNothing()
{
    OlvSlider slider;
    QSignalSpy changed(&slider, &OlvWidget::valueChanged);
    dragTo(slider, 100);
    QTest::mouseRelease(knobOf(slider), Qt::LeftButton);
    QCOMPARE(slider.getValue(), QVariant(58));
    QCOMPARE(changed.count(), 0);
}

void TestSlider::releasingWritesNoValue()
{
    CountingSlider slider;
    dragTo(slider, 100);
    slider.setProperty("progress", 3);
    sendMouse(knobOf(slider), QEvent::MouseButtonRelease, { 25, 25 });
    QCOMPARE(slider.getValue(), QVariant(3));
    QCOMPARE(slider.values.count(), 1);
    QCOMPARE(knobOf(slider)->geometry(), QRect(105, 5, 20, 20));
}

void TestSlider::movesOnlyWhilePressed()
{
    CountingSlider slider;
    SliderRound *knob = knobOf(slider);
    sendMouse(knob, QEvent::MouseMove, { 60, 10 });
    QCOMPARE(knob->geometry(), QRect(5, 5, 20, 20));
    dragTo(slider, 40);
    sendMouse(knob, QEvent::MouseButtonRelease, { 10, 10 });
    sendMouse(knob, QEvent::MouseMove, { 60, 10 });
    QCOMPARE(knob->geometry(), QRect(45, 5, 20, 20));
    QCOMPARE(slider.values.count(), 1);
}

void TestSlider::tracksNoMouseAtRest()
{
    OlvSlider slider;
    QVERIFY(!slider.hasMouseTracking());
    QVERIFY(!knobOf(slider)->hasMouseTracking());
}

void TestSlider::keepsTheKnobsPlaceOnResizeUntilTheNextDrag()
{
    OlvSlider slider;
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    SliderRound *knob = knobOf(slider);
    dragTo(slider, 170);
    sendMouse(knob, QEvent::MouseButtonRelease, { 10, 10 });
    QCOMPARE(knob->geometry(), QRect(175, 5, 20, 20));

    slider.resize(100, 30);
    QCOMPARE(knob->maxX(), 70);
    QCOMPARE(knob->geometry(), QRect(175, 5, 20, 20));
    QCOMPARE(slider.getValue(), QVariant(100));

    sendMouse(knob, QEvent::MouseButtonPress, { 10, 10 });
    sendMouse(knob, QEvent::MouseMove, { 10, 10 });
    QCOMPARE(knob->pos(), QPoint(70, 0));
}

void TestSlider::survivesAPropertyThatHoldsAnotherNumber_data()
{
    QTest::addColumn<QVariant>("number");
    QTest::newRow("zero") << QVariant(0);
    QTest::newRow("wild") << QVariant(qulonglong(0xdeadbeef));
    QTest::newRow("text") << QVariant(QStringLiteral("knob"));
    QTest::newRow("invalid") << QVariant();
}

void TestSlider::survivesAPropertyThatHoldsAnotherNumber()
{
    QFETCH(QVariant, number);
    OlvSlider slider;
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    auto *knob = slider.findChild<QWidget *>();
    slider.setProperty("SliderRound", number);
    slider.resize(100, 30);
    QCOMPARE(static_cast<SliderRound *>(knob)->maxX(), 170);
}

void TestSlider::survivesASetValueThatDeletesTheSlider()
{
    class Suicidal : public OlvSlider
    {
    public:
        void setValue(const QVariant & /*value*/) override
        {
            delete this;
        }
    };
    const QPointer<OlvSlider> slider(new Suicidal);
    dragTo(*slider, 50);
    QVERIFY(slider.isNull());
}

void TestSlider::knobOutsideASliderDragsAndTellsNobody()
{
    QWidget parent;
    parent.resize(130, 30);
    SliderRound knob(&parent);
    QCOMPARE(knob.maxX(), 100);
    sendMouse(&knob, QEvent::MouseButtonPress, { 10, 10 });
    sendMouse(&knob, QEvent::MouseMove, { 45, 10 });
    QCOMPARE(knob.geometry(), QRect(30, 0, 30, 30));
}

void TestSlider::knobOutlivesTheSliderItLeft()
{
    QWidget home;
    auto *slider = new OlvSlider;
    SliderRound *knob = knobOf(*slider);
    knob->setParent(&home);
    delete slider;
    sendMouse(knob, QEvent::MouseButtonPress, { 10, 10 });
    sendMouse(knob, QEvent::MouseMove, { 60, 10 });
    QCOMPARE(knob->pos(), QPoint(50, 0));
}

void TestSlider::drawsTheTrack_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<qreal>("ratio");
    for (const int width : { 200, 201, 480, 40, 31, 30, 20 }) {
        for (const qreal ratio : { 1.0, 2.0 }) {
            QTest::addRow("%d pixels at %g", width, ratio) << width << ratio;
        }
    }
}

void TestSlider::drawsTheTrack()
{
    QFETCH(int, width);
    QFETCH(qreal, ratio);
    OlvSlider slider;
    slider.resize(width, 30);
    DrawnWidget expected({ width, 30 }, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(64, 158, 255));
        painter.drawRoundedRect(QRectF(15, 10, width - 30, 10), 5, 5, Qt::AbsoluteSize);
    });
    COMPARE_PICTURES(pictureOf(slider, ratio), pictureOf(expected, ratio));
}

void TestSlider::drawsTheTrackWhateverTheValue()
{
    OlvSlider slider;
    const QImage before = pictureOf(slider);
    slider.setValue(80);
    COMPARE_PICTURES(pictureOf(slider), before);
}

void TestSlider::drawsTheKnob_data()
{
    QTest::addColumn<bool>("pressed");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("at rest") << false << 1.0;
    QTest::newRow("pressed") << true << 1.0;
    QTest::newRow("at rest, ratio 2") << false << 2.0;
    QTest::newRow("pressed, ratio 2") << true << 2.0;
}

void TestSlider::drawsTheKnob()
{
    QFETCH(bool, pressed);
    QFETCH(qreal, ratio);
    OlvSlider slider;
    SliderRound *knob = knobOf(slider);
    if (pressed) {
        sendMouse(knob, QEvent::MouseButtonPress, { 10, 10 });
    }
    const int size = pressed ? 30 : 20;
    DrawnWidget expected({ size, size }, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(
            QPen(QColor(64, 158, 255), 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.setBrush(Qt::white);
        painter.drawEllipse(2, 2, size - 4, size - 4);
    });
    COMPARE_PICTURES(pictureOf(*knob, ratio), pictureOf(expected, ratio));
}

QTEST_MAIN(TestSlider)
#include "tst_slider.moc"
