// SPDX-License-Identifier: MIT
#include "fakeportal.h"
#include "notingshortcut.h"

#include <QTest>

/** A portal that takes a request and never gives the session that was asked for. */
class TestShortcutPortalSilence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isGivenUpInTheEnd();
};

void TestShortcutPortalSilence::isGivenUpInTheEnd()
{
    FakePortal portal;
    portal.isMuteForSessions = true;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    QTest::qWait(2000);
    QCOMPARE(shortcut.state(), OlvShortcut::Pending);
    QVERIFY(!shortcut.active());
    expectWarning("it does not answer");
    // The library waits as long as D-Bus waits for replies, which is 25 seconds.
    QTRY_COMPARE_WITH_TIMEOUT(shortcut.states, QVector<OlvShortcut::State>{ OlvShortcut::Inactive },
                              40000);
    QVERIFY(!shortcut.active());
    QTRY_COMPARE(portal.calls(),
                 QStringList({ QStringLiteral("CreateSession"), QStringLiteral("Close Session") }));
}

QTEST_MAIN(TestShortcutPortalSilence)
#include "tst_shortcutportalsilence.moc"
