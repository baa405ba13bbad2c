// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "mouse.h"
#include "testprogram.h"

#include <OlvSlider>

#include <QPointer>
#include <QTest>

#include <functional>

namespace {

/** A slider that takes down what it is set to. */
class Slider : public OlvSlider
{
public:
    explicit Slider(int width = 230)
    {
        resize(width, height());
        show(); // hidden widgets are not told their size
    }
    void setValue(const QVariant &value) override
    {
        record << value.toInt();
        OlvSlider::setValue(value);
        if (onSet) {
            onSet();
        }
    }
    QWidget *knob() const
    {
        return findChild<QWidget *>();
    }
    QAccessibleValueInterface *interface()
    {
        return accessible(this)->valueInterface();
    }

    QVector<int> record;
    std::function<void()> onSet;
};

/** Drags the knob to a logical x, as a person would. */
void drag(QWidget *knob, int x)
{
    Mouse::press(knob, QPointF(10, 10));
    Mouse::move(knob, QPointF(10 + x - knob->x(), 10));
    Mouse::release(knob);
}

} // namespace

class TestAccessibleSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasARangeOfPercentages();
    void readsTheValue_data();
    void readsTheValue();
    void isSet_data();
    void isSet();
    void ignoresWhatIsNoNumber_data();
    void ignoresWhatIsNoNumber();
    void standsWhereADragWouldGiveTheSame_data();
    void standsWhereADragWouldGiveTheSame();
    void dragsGoOnFromThere();
    void isSetDuringADrag();
    void isSetWhereThereIsNoRoom_data();
    void isSetWhereThereIsNoRoom();
    void isSetWithoutItsKnob();
    void disabledIsNotSet();
    void survivesDeletionWhileItIsSet();
    void tellsOfEveryChange();
};

void TestAccessibleSlider::hasARangeOfPercentages()
{
    Slider slider;
    QCOMPARE(slider.interface()->minimumValue(), QVariant(0));
    QCOMPARE(slider.interface()->maximumValue(), QVariant(100));
    QCOMPARE(slider.interface()->minimumStepSize(), QVariant(1));
    QCOMPARE(slider.interface()->currentValue(), QVariant(0));
}

void TestAccessibleSlider::readsTheValue_data()
{
    QTest::addColumn<QVariant>("progress");
    QTest::addColumn<int>("read");
    QTest::newRow("percentage") << QVariant(42) << 42;
    QTest::newRow("string") << QVariant(QStringLiteral("42")) << 42;
    QTest::newRow("too much") << QVariant(250) << 100;
    QTest::newRow("too little") << QVariant(-1) << 0;
    QTest::newRow("nothing") << QVariant() << 0;
}

void TestAccessibleSlider::readsTheValue()
{
    QFETCH(const QVariant, progress);
    QFETCH(const int, read);
    Slider slider;
    slider.setProperty("progress", progress);
    QCOMPARE(slider.interface()->currentValue(), QVariant(read));
    QCOMPARE(accessible(&slider)->text(QAccessible::Value), QString::number(read));
}

void TestAccessibleSlider::isSet_data()
{
    QTest::addColumn<QVariant>("set");
    QTest::addColumn<int>("progress");
    QTest::addColumn<int>("x"); // of the resting knob, on a track of 200 pixels
    QTest::newRow("half") << QVariant(50) << 50 << 105;
    QTest::newRow("start") << QVariant(0) << 0 << 5;
    QTest::newRow("end") << QVariant(100) << 100 << 205;
    QTest::newRow("below") << QVariant(33.4) << 33 << 71;
    QTest::newRow("above") << QVariant(33.6) << 34 << 73;
    QTest::newRow("too little") << QVariant(-1e300) << 0 << 5;
    QTest::newRow("too much") << QVariant(1e300) << 100 << 205;
    QTest::newRow("text") << QVariant(QStringLiteral("7")) << 7 << 19;
}

void TestAccessibleSlider::isSet()
{
    QFETCH(const QVariant, set);
    QFETCH(const int, progress);
    QFETCH(const int, x);
    Slider slider;
    slider.interface()->setCurrentValue(set);
    QCOMPARE(slider.record, QVector<int>{ progress });
    QCOMPARE(slider.getValue(), QVariant(progress));
    QCOMPARE(slider.property("progress"), QVariant(progress));
    QCOMPARE(slider.interface()->currentValue(), QVariant(progress));
    QCOMPARE(slider.knob()->geometry(), QRect(x, 5, 20, 20));
}

void TestAccessibleSlider::ignoresWhatIsNoNumber_data()
{
    QTest::addColumn<QVariant>("set");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("text") << QVariant(QStringLiteral("loud"));
    QTest::newRow("no number") << QVariant(qQNaN());
}

void TestAccessibleSlider::ignoresWhatIsNoNumber()
{
    QFETCH(const QVariant, set);
    Slider slider;
    slider.interface()->setCurrentValue(set);
    QCOMPARE(slider.record, QVector<int>());
}

void TestAccessibleSlider::standsWhereADragWouldGiveTheSame_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("as made") << 200;
    QTest::newRow("a pixel a percentage") << 130;
    QTest::newRow("wide") << 1280;
}

void TestAccessibleSlider::standsWhereADragWouldGiveTheSame()
{
    QFETCH(const int, width);
    for (int progress = 0; progress <= 100; ++progress) {
        Slider set(width);
        set.interface()->setCurrentValue(progress);
        Slider dragged(width);
        drag(dragged.knob(), set.knob()->x() - 5);
        QCOMPARE(dragged.getValue(), QVariant(progress));
        QCOMPARE(dragged.knob()->geometry(), set.knob()->geometry());
    }
}

void TestAccessibleSlider::dragsGoOnFromThere()
{
    Slider slider;
    drag(slider.knob(), 100);
    slider.interface()->setCurrentValue(80);
    slider.record.clear();
    // back to what the last drag gave: a new value all the same
    drag(slider.knob(), 100);
    QCOMPARE(slider.record, QVector<int>{ 50 });
    QCOMPARE(slider.getValue(), QVariant(50));

    slider.interface()->setCurrentValue(80);
    slider.record.clear();
    // a press that does not move changes nothing
    drag(slider.knob(), 160);
    QCOMPARE(slider.record, QVector<int>());
    QCOMPARE(slider.getValue(), QVariant(80));
}

void TestAccessibleSlider::isSetDuringADrag()
{
    Slider slider;
    Mouse::press(slider.knob(), QPointF(10, 10));
    Mouse::move(slider.knob(), QPointF(30, 10));
    slider.interface()->setCurrentValue(50);
    QCOMPARE(slider.knob()->geometry(), QRect(100, 0, 30, 30));
    Mouse::move(slider.knob(), QPointF(30, 10));
    QCOMPARE(slider.getValue(), QVariant(60));
    Mouse::release(slider.knob());
    QCOMPARE(slider.knob()->geometry(), QRect(125, 5, 20, 20));
}

void TestAccessibleSlider::isSetWhereThereIsNoRoom_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("x");
    QTest::newRow("a knob wide") << 30 << 5;
    QTest::newRow("narrower") << 12 << 5;
    QTest::newRow("fewer pixels than percentages") << 80 << 32;
}

void TestAccessibleSlider::isSetWhereThereIsNoRoom()
{
    QFETCH(const int, width);
    QFETCH(const int, x);
    Slider slider(width);
    slider.interface()->setCurrentValue(53);
    QCOMPARE(slider.getValue(), QVariant(53));
    QCOMPARE(slider.knob()->geometry(), QRect(x, 5, 20, 20));
}

void TestAccessibleSlider::isSetWithoutItsKnob()
{
    Slider slider;
    delete slider.knob();
    slider.interface()->setCurrentValue(53);
    QCOMPARE(slider.getValue(), QVariant(53));
}

void TestAccessibleSlider::disabledIsNotSet()
{
    Slider slider;
    slider.setEnabled(false);
    slider.interface()->setCurrentValue(53);
    QCOMPARE(slider.record, QVector<int>());
}

void TestAccessibleSlider::survivesDeletionWhileItIsSet()
{
    const QPointer<Slider> slider(new Slider);
    slider->onSet = [&] {
        delete slider;
    };
    slider->interface()->setCurrentValue(53);
    QVERIFY(!slider);
}

void TestAccessibleSlider::tellsOfEveryChange()
{
    Assistant assistant;
    Slider slider;
    slider.show();
    const auto told = [&] {
        return assistant.heardOf(&slider);
    };
    drag(slider.knob(), 20);
    QCOMPARE(told(), QStringList{ QStringLiteral("value 10") });
    slider.setValue(20);
    QCOMPARE(told(), QStringList{ QStringLiteral("value 20") });
    slider.setProperty("progress", 30);
    QCOMPARE(told(), QStringList{ QStringLiteral("value 30") });
    slider.interface()->setCurrentValue(40);
    QCOMPARE(told(), QStringList{ QStringLiteral("value 40") });
    slider.interface()->setCurrentValue(40);
    QCOMPARE(told(), QStringList());
}

ADD_TEST(TestAccessibleSlider, QApplication)
#include "tst_accessibleslider.moc"
