// SPDX-License-Identifier: MIT
#include "realinput.h"

#include <OlvIconButton>

#include <QSignalSpy>
#include <QTest>

class TestIconButtonOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsAClickFromADoubleClick();
};

void TestIconButtonOnServer::tellsAClickFromADoubleClick()
{
    QWidget window;
    window.resize(300, 200);
    auto *tile = new OlvIconButton(QChar(0xf0e0), QStringLiteral("Mail"),
                                   QStringLiteral("FontAwesome"), &window, 100, 100);
    tile->move(40, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy clicked(tile, &OlvIconButton::clicked);
    QSignalSpy dClicked(tile, &OlvIconButton::dClicked);

    RealInput input;
    QVERIFY(input.isValid());
    input.moveTo(*tile, { 50, 50 });
    input.click();
    QTRY_COMPARE(tile->getValue(), QVariant(true));
    QCOMPARE(clicked.count(), 0);
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(dClicked.count(), 0);

    input.click();
    // the window manager looks at every press first: one behind the other, not two at a time
    QTRY_COMPARE(tile->property("clickNumber").toInt(), 1);
    input.click();

    QTRY_COMPARE(dClicked.count(), 1);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(tile->getValue(), QVariant(true));
}

QTEST_MAIN(TestIconButtonOnServer)
#include "tst_iconbuttononserver.moc"
