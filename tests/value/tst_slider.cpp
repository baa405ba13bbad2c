// SPDX-License-Identifier: MIT
#include "mouse.h"
#include "paintwatch.h"
#include "pixels.h"
#include "sliderknob.h"
#include "testprogram.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

class TestSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtZeroWithItsKnobAtRest();
    void keepsItsHeight();
    void setValueMovesNothingAndTellsNobody();
    void valuesAndLimitsRepaintNothing();
    void getValueConvertsThePropertyToInt_data();
    void getValueConvertsThePropertyToInt();
    void drawsTheTrack_data();
    void drawsTheTrack();
    void drawsTheTrackWhateverTheValue();
    void drawsTheKnob_data();
    void drawsTheKnob();
};

void TestSlider::startsAtZeroWithItsKnobAtRest()
{
    QWidget parent;
    OlvSlider slider(&parent);
    QCOMPARE(slider.parentWidget(), &parent);
    QVERIFY(!slider.isWindow());
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

void TestSlider::keepsItsHeight()
{
    OlvSlider slider;
    slider.resize(90, 77);
    QCOMPARE(slider.size(), QSize(90, 30));
    QCOMPARE(slider.minimumHeight(), 30);
    QCOMPARE(slider.maximumHeight(), 30);
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

void TestSlider::valuesAndLimitsRepaintNothing()
{
    OlvSlider slider;
    PaintWatch sliderWatch(slider);
    PaintWatch knobWatch(*knobOf(slider));
    QVERIFY(sliderWatch.showWindow());
    knobWatch.take();
    slider.setValue(50);
    knobOf(slider)->setMaxX(60);
    QCOMPARE(sliderWatch.take(), {});
    QCOMPARE(knobWatch.take(), {});
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
        Mouse::press(knob, { 10, 10 });
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

ADD_TEST(TestSlider, QApplication)
#include "tst_slider.moc"
