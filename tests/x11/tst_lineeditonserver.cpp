// SPDX-License-Identifier: MIT
#include "realinput.h"
#include "testprogram.h"

#include <OlvLineEdit>

#include <QLineEdit>
#include <QTest>

/** A line edit and another widget that has the focus at first. */
class TestLineEditOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickPutsTheCaretIntoTheText_data();
    void aClickPutsTheCaretIntoTheText();
};

void TestLineEditOnServer::aClickPutsTheCaretIntoTheText_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("in the column of the icon") << QPoint(10, 15);
    QTest::newRow("in the text") << QPoint(150, 15);
    QTest::newRow("on the frame") << QPoint(0, 0);
}

void TestLineEditOnServer::aClickPutsTheCaretIntoTheText()
{
    QFETCH(QPoint, place);
    QWidget window;
    window.resize(400, 200);
    QLineEdit other(&window);
    auto *edit = new OlvLineEdit(&window);
    edit->setGeometry(40, 80, 240, 32);
    window.show();
    other.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    QTRY_VERIFY(other.hasFocus());
    QCOMPARE(edit->property("state").toString(), QStringLiteral("normal"));

    RealInput input;
    QVERIFY(input.isValid());
    input.moveTo(*edit, place);
    input.click();
    QTRY_COMPARE(edit->property("state").toString(), QStringLiteral("edit"));
    for (const quint32 key : { 0x68U, 0x69U }) { // h, i
        input.pressKey(key);
        input.releaseKey(key);
    }
    QTRY_COMPARE(edit->getText(), QStringLiteral("hi"));

    input.moveTo(other, { 5, 5 });
    input.click();
    QTRY_COMPARE(edit->property("state").toString(), QStringLiteral("normal"));
}

ADD_TEST(TestLineEditOnServer, QApplication)
#include "tst_lineeditonserver.moc"
