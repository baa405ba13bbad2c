// SPDX-License-Identifier: MIT
#include "portalscene.h"
#include "testprogram.h"

#include <QElapsedTimer>
#include <QPointer>

#include <memory>

/** Shortcuts by a desktop's portal, which here is the test's own. */
class TestShortcutPortal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void isPendingUntilItIsGranted();
    void tellsWhatItIsFor();
    void presses();
    void thoseOfAMomentGoIntoOneSession();
    void laterOnesLeaveEarlierOnesAlone();
    void canBeDestroyedWhilePending();
    void sessionEndsWithItsLastShortcut();
    void isGrantedAgainWithoutADialog();
    void isOfOneShortcutAtATime();
    void asksForNothingThatIsNoShortcut_data();
    void asksForNothingThatIsNoShortcut();
    void slotsMayDeleteIt();

private:
    PortalScene m_scene;
};

void TestShortcutPortal::init()
{
    m_scene.begin();
}

void TestShortcutPortal::cleanup()
{
    m_scene.end();
}

void TestShortcutPortal::isPendingUntilItIsGranted()
{
    NotingShortcut shortcut(Qt::Key_F5);
    QCOMPARE(shortcut.state(), OlvShortcut::Inactive);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!shortcut.active());
    QVERIFY(clock.elapsed() < 500);
    QCOMPARE(shortcut.state(), OlvShortcut::Pending);
    for (int i = 0; i < 10; ++i) {
        QVERIFY(!shortcut.active());
        QTest::qWait(5);
    }
    QTRY_COMPARE(shortcut.states, States{ OlvShortcut::Active });
    QCOMPARE(shortcut.state(), OlvShortcut::Active);
    QVERIFY(shortcut.active());
    QVERIFY(shortcut.active());
    QTest::qWait(settlingTime);
    QCOMPARE(m_scene.portal->calls(),
             QStringList({ QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts ") + portalId("F5") }));
    m_scene.portal->forgetCalls();
    shortcut.destroy();
    QCOMPARE(shortcut.state(), OlvShortcut::Inactive);
    QTRY_COMPARE(m_scene.portal->calls(), QStringList({ QStringLiteral("Close Session") }));
    QCOMPARE(shortcut.states, States{ OlvShortcut::Active });
}

void TestShortcutPortal::tellsWhatItIsFor()
{
    OlvShortcut described(Qt::Key_A, true, true, true, true);
    QCOMPARE(described.description(), QString());
    described.setDescription(QStringLiteral("Start recording"));
    QCOMPARE(described.description(), QStringLiteral("Start recording"));
    OlvShortcut plain(Qt::Key_Exclam, false, true, false, false);
    OlvShortcut cyrillic(Qt::Key(0x0410), false, false, true, false);
    QVERIFY(!described.active() && !plain.active() && !cyrillic.active());
    QTRY_COMPARE(plain.state(), OlvShortcut::Active);
    const QHash<QString, QVariantMap> wanted = m_scene.portal->wanted();
    const QString name = QCoreApplication::applicationName();
    const auto valueOf = [&](const char *id, const char *key) {
        return wanted.value(name + QLatin1Char('_') + QLatin1String(id))
            .value(QLatin1String(key))
            .toString();
    };
    QCOMPARE(valueOf("CTRL_ALT_SHIFT_LOGO_a", "description"), QStringLiteral("Start recording"));
    QCOMPARE(valueOf("CTRL_ALT_SHIFT_LOGO_a", "preferred_trigger"),
             QStringLiteral("CTRL+ALT+SHIFT+LOGO+a"));
    QCOMPARE(valueOf("SHIFT_exclam", "description"), QStringLiteral("Shift+!"));
    QCOMPARE(valueOf("SHIFT_exclam", "preferred_trigger"), QStringLiteral("SHIFT+exclam"));
    QCOMPARE(valueOf("ALT_Cyrillic_a", "preferred_trigger")
                 + valueOf("ALT_U0430", "preferred_trigger"),
             QStringLiteral("ALT+U0430"));
}

void TestShortcutPortal::presses()
{
    NotingShortcut one(Qt::Key_F5);
    NotingShortcut two(Qt::Key_F6);
    QVERIFY(!one.active() && !two.active());
    QTRY_COMPARE(two.state(), OlvShortcut::Active);
    m_scene.portal->press(portalId("F5"));
    QTRY_COMPARE(one.presses, 1);
    m_scene.portal->press(portalId("F5"));
    m_scene.portal->press(portalId("F6"));
    QTRY_COMPARE(two.presses, 1);
    QCOMPARE(one.presses, 2);
    one.destroy();
    m_scene.portal->press(portalId("F5"));
    m_scene.portal->press(portalId("F6"));
    QTRY_COMPARE(two.presses, 2);
    QCOMPARE(one.presses, 2);
}

void TestShortcutPortal::thoseOfAMomentGoIntoOneSession()
{
    NotingShortcut c(Qt::Key_F7);
    NotingShortcut a(Qt::Key_F5);
    NotingShortcut b(Qt::Key_F6);
    QVERIFY(!c.active() && !a.active());
    QTest::qWait(10);
    QVERIFY(!b.active());
    NotingShortcut d(Qt::Key_F8);
    QVERIFY(!d.active());
    d.destroy();
    QTRY_COMPARE(b.state(), OlvShortcut::Active);
    QCOMPARE(m_scene.portal->calls(),
             QStringList({ QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts %1 %2 %3")
                               .arg(portalId("F5"), portalId("F6"), portalId("F7")) }));
    QCOMPARE(d.states, States());
}

void TestShortcutPortal::laterOnesLeaveEarlierOnesAlone()
{
    NotingShortcut early(Qt::Key_F5);
    m_scene.grant(&early);
    NotingShortcut late(Qt::Key_F6);
    QVERIFY(!late.active());
    QVERIFY(early.active());
    QTRY_COMPARE(late.state(), OlvShortcut::Active);
    QCOMPARE(m_scene.portal->calls(),
             QStringList({ QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts ") + portalId("F6") }));
    // The names are the same in every run, for the desktop to know them again.
    const QString name = QCoreApplication::applicationName();
    for (const QString &session : m_scene.portal->sessionNames()) {
        QVERIFY(
            QRegularExpression(QStringLiteral("^%1_[0-9]+$").arg(name)).match(session).hasMatch());
    }
    QCOMPARE(m_scene.portal->sessionNames().count(), 2);
    m_scene.portal->press(portalId("F5"));
    m_scene.portal->press(portalId("F6"));
    QTRY_COMPARE(early.presses + late.presses, 2);
    late.destroy();
    QTRY_COMPARE(m_scene.portal->bound(), QStringList{ portalId("F5") });
    m_scene.portal->press(portalId("F5"));
    QTRY_COMPARE(early.presses, 2);
}

void TestShortcutPortal::canBeDestroyedWhilePending()
{
    m_scene.portal->delay = 200;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    // before it is asked for
    shortcut.destroy();
    QTest::qWait(100);
    QCOMPARE(m_scene.portal->calls(), QStringList());
    // while the session is being made
    QVERIFY(!shortcut.active());
    QTRY_COMPARE(m_scene.portal->calls(), QStringList({ QStringLiteral("CreateSession") }));
    m_scene.portal->forgetCalls();
    shortcut.destroy();
    QTRY_COMPARE(m_scene.portal->calls(),
                 QStringList({ QStringLiteral("Close Session"), QStringLiteral("Close Request") }));
    // while the user thinks
    m_scene.portal->delay = 0;
    m_scene.portal->isMuteForShortcuts = true;
    auto second = std::make_unique<NotingShortcut>(Qt::Key_F6);
    QVERIFY(!second->active());
    QTRY_VERIFY(m_scene.portal->bound().contains(portalId("F6")));
    m_scene.portal->forgetCalls();
    QCOMPARE(second->state(), OlvShortcut::Pending);
    second.reset();
    QTRY_COMPARE(m_scene.portal->calls(),
                 QStringList({ QStringLiteral("Close Session"), QStringLiteral("Close Request") }));
    QTest::qWait(settlingTime);
    QCOMPARE(shortcut.states, States());
    QCOMPARE(shortcut.state(), OlvShortcut::Inactive);
}

void TestShortcutPortal::sessionEndsWithItsLastShortcut()
{
    NotingShortcut one(Qt::Key_F5);
    auto two = std::make_unique<NotingShortcut>(Qt::Key_F6);
    QVERIFY(!one.active());
    m_scene.grant(two.get());
    one.destroy();
    QTest::qWait(settlingTime);
    QCOMPARE(m_scene.portal->calls(), QStringList());
    two.reset();
    QTRY_COMPARE(m_scene.portal->calls(), QStringList({ QStringLiteral("Close Session") }));
}

void TestShortcutPortal::isGrantedAgainWithoutADialog()
{
    NotingShortcut one(Qt::Key_F5);
    NotingShortcut two(Qt::Key_F6);
    QVERIFY(!one.active());
    m_scene.grant(&two);
    one.destroy();
    // The desktop still has it, since the session holds the other one.
    QVERIFY(one.active());
    m_scene.portal->press(portalId("F5"));
    QTRY_COMPARE(one.presses, 1);
    QCOMPARE(m_scene.portal->calls(), QStringList());
}

void TestShortcutPortal::isOfOneShortcutAtATime()
{
    NotingShortcut first(Qt::Key_F5);
    NotingShortcut second(Qt::Key_F5);
    QVERIFY(!first.active());
    QVERIFY(!second.active());
    QCOMPARE(second.state(), OlvShortcut::Inactive);
    QTRY_COMPARE(first.state(), OlvShortcut::Active);
    QVERIFY(!second.active());
    QCOMPARE(second.state(), OlvShortcut::Inactive);
    first.destroy();
    m_scene.grant(&second);
    m_scene.portal->press(portalId("F5"));
    QTRY_COMPARE(second.presses, 1);
    QCOMPARE(first.presses, 0);
}

void TestShortcutPortal::asksForNothingThatIsNoShortcut_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("nothing") << 0;
    QTest::newRow("unknown") << int(Qt::Key_unknown);
    QTest::newRow("a modifier") << int(Qt::Key_Shift);
    QTest::newRow("a lock key") << int(Qt::Key_CapsLock);
    QTest::newRow("AltGr") << int(Qt::Key_AltGr);
    QTest::newRow("Super") << int(Qt::Key_Super_L);
}

void TestShortcutPortal::asksForNothingThatIsNoShortcut()
{
    QFETCH(int, key);
    OlvShortcut shortcut(Qt::Key(key), true, false, false, false);
    QVERIFY(!shortcut.active());
    QCOMPARE(shortcut.state(), OlvShortcut::Inactive);
    QTest::qWait(100);
    QCOMPARE(m_scene.portal->calls(), QStringList());
}

void TestShortcutPortal::slotsMayDeleteIt()
{
    const QPointer<NotingShortcut> one(new NotingShortcut(Qt::Key_F5));
    const QPointer<NotingShortcut> two(new NotingShortcut(Qt::Key_F6));
    QVERIFY(!one->active() && !two->active());
    connect(one, &OlvShortcut::stateChanged, this, [=] {
        delete one;
        delete two;
    });
    connect(two, &OlvShortcut::stateChanged, this, [=] {
        delete one;
        delete two;
    });
    QTRY_VERIFY(!one && !two);
    const QPointer<NotingShortcut> three(new NotingShortcut(Qt::Key_F5));
    m_scene.grant(three);
    connect(three, &OlvShortcut::activated, this, [=] { delete three; });
    m_scene.portal->press(portalId("F5"));
    QTRY_VERIFY(!three);
}

ADD_TEST(TestShortcutPortal, QApplication)
#include "tst_shortcutportal.moc"
