// SPDX-License-Identifier: MIT
#include "realinput.h"
#include "testprogram.h"

#include <OlvSwitch>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

class TestSwitchOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickSwitchesAQuarterOfASecondLater_data();
    void aClickSwitchesAQuarterOfASecondLater();
};

void TestSwitchOnServer::aClickSwitchesAQuarterOfASecondLater_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("on the track") << QPoint(60, 20);
    QTest::newRow("on the knob") << QPoint(20, 20);
}

void TestSwitchOnServer::aClickSwitchesAQuarterOfASecondLater()
{
    QFETCH(QPoint, place);
    QWidget window;
    window.resize(300, 200);
    auto *toggle = new OlvSwitch(&window);
    toggle->setGeometry(40, 40, 100, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    auto *knob = reinterpret_cast<QWidget *>(toggle->property("round").toULongLong());

    RealInput input;
    QVERIFY(input.isValid());
    QSignalSpy valueChanged(toggle, &OlvWidget::valueChanged);
    QSignalSpy changed(toggle, &OlvSwitch::changed);
    QElapsedTimer clock;
    clock.start();
    input.moveTo(*toggle, place);
    input.click();
    QTRY_VERIFY(toggle->property("moveCount").toInt() > 0);
    QCOMPARE(toggle->getValue(), QVariant(false));
    QTRY_COMPARE(changed.count(), 1);
    QVERIFY2(clock.elapsed() >= 230, QByteArray::number(clock.elapsed()).constData());
    QCOMPARE(valueChanged.count(), 1);
    QCOMPARE(toggle->getValue(), QVariant(true));
    QCOMPARE(knob->geometry(), QRect(60, 0, 40, 40));

    input.click();
    QTRY_COMPARE(changed.count(), 2);
    QCOMPARE(toggle->getValue(), QVariant(false));
    QCOMPARE(knob->geometry(), QRect(0, 0, 40, 40));
}

ADD_TEST(TestSwitchOnServer, QApplication)
#include "tst_switchonserver.moc"
