// SPDX-License-Identifier: MIT
#include "paintwatch.h"
#include "pixels.h"
#include "sizedswitch.h"
#include "testprogram.h"

#include <QPainter>
#include <QTest>

class TestSwitchPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colourSettersStoreStringsWithoutRepainting();
    void knobColourRepaintsTheKnobAlone();
    void knobsOwnSettersRepaintNothing();
    void eachStepRepaintsTheTrack();
    void repaintsBeforeAndAfterItsSignals();
    void startingRepaintsNothing();
    void drawsTheTrack_data();
    void drawsTheTrack();
    void drawsTheKnob_data();
    void drawsTheKnob();
};

void TestSwitchPainting::colourSettersStoreStringsWithoutRepainting()
{
    SizedSwitch toggle;
    PaintWatch watch(toggle);
    QVERIFY(watch.showWindow());
    toggle.setColorOpen(QColor(1, 2, 3, 4));
    toggle.setColorClose(QColor(5, 6, 7));
    QCOMPARE(toggle.property("openColor"), QVariant(QStringLiteral("1,2,3")));
    QCOMPARE(toggle.property("closeColor"), QVariant(QStringLiteral("5,6,7")));
    QCOMPARE(watch.take(), {});
}

void TestSwitchPainting::knobColourRepaintsTheKnobAlone()
{
    SizedSwitch toggle;
    PaintWatch switchWatch(toggle);
    QVERIFY(switchWatch.showWindow());
    PaintWatch knobWatch(*knobOf(toggle));
    toggle.setColorRound(QColor(9, 8, 7, 100));
    QCOMPARE(knobOf(toggle)->color(), QColor(9, 8, 7, 100));
    QCOMPARE(knobWatch.takeWhole(), 1);
    // the knob is round: what lies behind it is drawn with it, and no more
    QCOMPARE(switchWatch.take(), QVector<QRegion>({ knobOf(toggle)->geometry() }));
}

void TestSwitchPainting::knobsOwnSettersRepaintNothing()
{
    SwitchRound knob;
    PaintWatch watch(knob);
    QVERIFY(watch.showWindow());
    knob.setColor(Qt::red);
    knob.setInset(7);
    QCOMPARE(knob.inset(), 7);
    QCOMPARE(watch.take(), {});
}

void TestSwitchPainting::eachStepRepaintsTheTrack()
{
    // the knob of a square switch stays, so that nothing but the track asks for a repaint
    SizedSwitch toggle({ 120, 120 });
    PaintWatch watch(toggle);
    QVERIFY(watch.showWindow());
    for (int i = 0; i < 10; ++i) {
        tick(toggle);
        QCOMPARE(watch.takeWhole(), 1);
    }
}

void TestSwitchPainting::repaintsBeforeAndAfterItsSignals()
{
    SizedSwitch toggle({ 120, 120 });
    PaintWatch watch(toggle);
    QVERIFY(watch.showWindow());
    int before = 0;
    int between = -1;
    connect(&toggle, &OlvWidget::valueChanged, this, [&] { before = watch.takeWhole(); });
    connect(&toggle, &OlvSwitch::changed, this, [&] { between = watch.takeWhole(); });
    for (int i = 0; i < 4; ++i) {
        tick(toggle);
    }
    watch.take();
    tick(toggle);
    QCOMPARE(before, 1);
    QCOMPARE(between, 0);
    QCOMPARE(watch.takeWhole(), 1);
}

void TestSwitchPainting::startingRepaintsNothing()
{
    SizedSwitch toggle;
    PaintWatch watch(toggle);
    QVERIFY(watch.showWindow());
    toggle.setValue(true);
    QCOMPARE(watch.take(), {});
}

void TestSwitchPainting::drawsTheTrack_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("on");
    QTest::addColumn<qreal>("ratio");
    for (const QSize size : { QSize(50, 24), QSize(51, 25), QSize(20, 20), QSize(7, 30) }) {
        for (const bool on : { false, true }) {
            for (const qreal ratio : { 1.0, 2.0 }) {
                QTest::addRow("%d x %d %s at %g", size.width(), size.height(), on ? "on" : "off",
                              ratio)
                    << size << on << ratio;
            }
        }
    }
}

void TestSwitchPainting::drawsTheTrack()
{
    QFETCH(QSize, size);
    QFETCH(bool, on);
    QFETCH(qreal, ratio);
    SizedSwitch toggle(size);
    toggle.setProperty("switch", on);
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(on ? QColor(19, 206, 102) : QColor(220, 223, 230));
        const int radius = size.height() / 2;
        painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), radius, radius);
    });
    COMPARE_PICTURES(pictureOf(toggle, ratio), pictureOf(expected, ratio));

    toggle.setColorOpen(QColor(10, 20, 30));
    toggle.setColorClose(QColor(10, 20, 30));
    QVERIFY(!difference(pictureOf(toggle, ratio), pictureOf(expected, ratio)).isEmpty());
}

void TestSwitchPainting::drawsTheKnob_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QColor>("color");
    for (const int height : { 9, 10, 24, 25, 60 }) {
        for (const QColor &color : { QColor(Qt::white), QColor(200, 10, 20, 90) }) {
            QTest::addRow("%d high, %s", height, qPrintable(color.name(QColor::HexArgb)))
                << height << color;
        }
    }
}

void TestSwitchPainting::drawsTheKnob()
{
    QFETCH(int, height);
    QFETCH(QColor, color);
    SizedSwitch toggle({ 3 * height, height });
    toggle.setColorRound(color);
    const int inset = height / 10;
    const int diameter = height - 2 * inset;
    DrawnWidget expected({ height, height }, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(inset, inset, diameter, diameter);
    });
    for (const qreal ratio : { 1.0, 2.0 }) {
        COMPARE_PICTURES(pictureOf(*knobOf(toggle), ratio), pictureOf(expected, ratio));
    }
}

ADD_TEST(TestSwitchPainting, QApplication)
#include "tst_switchpainting.moc"
