// SPDX-License-Identifier: MIT
#include "gallerywindow.h"
#include "realinput.h"
#include "testprogram.h"

#include <OlvSlider>

#include <QTest>

class TestSliderOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dragsFromEndToEndWithTheRealPointer();
};

void TestSliderOnServer::dragsFromEndToEndWithTheRealPointer()
{
    GalleryWindow gallery;
    QVERIFY(gallery.showPage(QStringLiteral("Sliders")));
    gallery.show();
    QVERIFY(QTest::qWaitForWindowActive(&gallery, patience));
    auto *slider = static_cast<OlvSlider *>(gallery.findChild<QWidget *>(QStringLiteral("slider")));
    QVERIFY(slider);
    QVERIFY(slider->isVisible());
    auto *knob = reinterpret_cast<QWidget *>(slider->property("SliderRound").toULongLong());
    const int centre = slider->height() / 2;
    const int travel = slider->width() - 30;

    RealInput input;
    QVERIFY(input.isValid());
    input.moveTo(*slider, { 15, centre });
    input.press();
    QTRY_COMPARE(knob->geometry(), QRect(0, 0, 30, 30));
    for (int x = 0; x <= travel; x += 10) {
        input.moveTo(*slider, { 10 + x, centre });
        QTRY_COMPARE(knob->x(), qMax(0, x));
    }
    input.moveTo(*slider, { slider->width() + 40, centre });
    QTRY_COMPARE(slider->getValue().toInt(), 100);
    QCOMPARE(knob->x(), travel);

    input.moveTo(*slider, { -40, centre });
    QTRY_COMPARE(slider->getValue().toInt(), 0);
    QCOMPARE(knob->x(), 0);
    input.release();
    QTRY_COMPARE(knob->geometry(), QRect(5, 5, 20, 20));
    QCOMPARE(slider->getValue().toInt(), 0);
}

ADD_TEST(TestSliderOnServer, QApplication)
#include "tst_slideronserver.moc"
