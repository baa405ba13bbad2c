// SPDX-License-Identifier: MIT
#include "fakeportal.h"
#include "notingshortcut.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPointer>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>

namespace {

/** Longer than shortcuts are gathered, and the portal takes to answer. */
constexpr int settlingTime = 250; // milliseconds
using States = QVector<OlvShortcut::State>;

} // namespace

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
    void refusalSticks_data();
    void refusalSticks();
    void partOfThemMayBeGranted();
    void thoseOfAMomentGoIntoOneSession();
    void laterOnesLeaveEarlierOnesAlone();
    void canBeDestroyedWhilePending();
    void sessionEndsWithItsLastShortcut();
    void isGrantedAgainWithoutADialog();
    void isOfOneShortcutAtATime();
    void desktopMayTakeThemBack();
    void portalMayEnd();
    void portalMayNeverHaveBeen();
    void userMayTakeTheirTime();
    void portalMayAnswerNonsense();
    void programTellsItsName();
    void asksForNothingThatIsNoShortcut_data();
    void asksForNothingThatIsNoShortcut();
    void slotsMayDeleteIt();
    void livesInAnotherThread();

private:
    std::unique_ptr<FakePortal> m_portal;
    /** Registers and waits until it is granted. */
    void grant(OlvShortcut *shortcut)
    {
        m_portal->forgetCalls();
        QVERIFY(!shortcut->active());
        QTRY_COMPARE(shortcut->state(), OlvShortcut::Active);
        m_portal->forgetCalls();
    }
};

void TestShortcutPortal::init()
{
    m_portal = std::make_unique<FakePortal>();
}

void TestShortcutPortal::cleanup()
{
    QGuiApplication::setDesktopFileName(QString());
    // what has been released is closed from the event loop
    QTest::qWait(50);
    QCOMPARE(m_portal ? m_portal->bound() : QStringList(), QStringList());
    m_portal.reset();
    QTest::qWait(50);
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
    QCOMPARE(m_portal->calls(),
             QStringList({ QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts ") + portalId("F5") }));
    m_portal->forgetCalls();
    shortcut.destroy();
    QCOMPARE(shortcut.state(), OlvShortcut::Inactive);
    QTRY_COMPARE(m_portal->calls(), QStringList({ QStringLiteral("Close Session") }));
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
    const QHash<QString, QVariantMap> wanted = m_portal->wanted();
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
    m_portal->press(portalId("F5"));
    QTRY_COMPARE(one.presses, 1);
    m_portal->press(portalId("F5"));
    m_portal->press(portalId("F6"));
    QTRY_COMPARE(two.presses, 1);
    QCOMPARE(one.presses, 2);
    one.destroy();
    m_portal->press(portalId("F5"));
    m_portal->press(portalId("F6"));
    QTRY_COMPARE(two.presses, 2);
    QCOMPARE(one.presses, 2);
}

void TestShortcutPortal::refusalSticks_data()
{
    QTest::addColumn<uint>("code");
    QTest::newRow("the user cancels") << 1U;
    QTest::newRow("it ends otherwise") << 2U;
    QTest::newRow("success with nothing granted") << 0U;
}

void TestShortcutPortal::refusalSticks()
{
    QFETCH(uint, code);
    m_portal->refusesAll = true;
    m_portal->code = code;
    NotingShortcut shortcut(Qt::Key_F5);
    int asked = 0;
    const auto connection = connect(&shortcut, &OlvShortcut::stateChanged, this, [&] {
        ++asked;
        QVERIFY(!shortcut.active());
    });
    expectWarning("they have not been confirmed");
    QVERIFY(!shortcut.active());
    QTRY_COMPARE(shortcut.states, States{ OlvShortcut::Inactive });
    QCOMPARE(asked, 1);
    for (int i = 0; i < 10; ++i) {
        QVERIFY(!shortcut.active());
    }
    QTest::qWait(settlingTime);
    QCOMPARE(shortcut.state(), OlvShortcut::Inactive);
    QCOMPARE(m_portal->calls(),
             QStringList({ QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts ") + portalId("F5"),
                           QStringLiteral("Close Session") }));
    // Asking again takes a destroy().
    m_portal->refusesAll = false;
    disconnect(connection);
    shortcut.destroy();
    grant(&shortcut);
    QCOMPARE(shortcut.states, (States{ OlvShortcut::Inactive, OlvShortcut::Active }));
}

void TestShortcutPortal::partOfThemMayBeGranted()
{
    m_portal->refused = QStringList{ portalId("F6") };
    NotingShortcut one(Qt::Key_F5);
    NotingShortcut two(Qt::Key_F6);
    NotingShortcut three(Qt::Key_F7);
    QVERIFY(!one.active() && !two.active() && !three.active());
    expectWarning("they have not been confirmed");
    QTRY_COMPARE(three.state(), OlvShortcut::Active);
    QCOMPARE(one.states, States{ OlvShortcut::Active });
    QCOMPARE(two.states, States{ OlvShortcut::Inactive });
    QCOMPARE(three.states, States{ OlvShortcut::Active });
    QVERIFY(one.active() && !two.active() && three.active());
    m_portal->press(portalId("F7"));
    QTRY_COMPARE(three.presses, 1);
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
    QCOMPARE(m_portal->calls(),
             QStringList({ QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts %1 %2 %3")
                               .arg(portalId("F5"), portalId("F6"), portalId("F7")) }));
    QCOMPARE(d.states, States());
}

void TestShortcutPortal::laterOnesLeaveEarlierOnesAlone()
{
    NotingShortcut early(Qt::Key_F5);
    grant(&early);
    NotingShortcut late(Qt::Key_F6);
    QVERIFY(!late.active());
    QVERIFY(early.active());
    QTRY_COMPARE(late.state(), OlvShortcut::Active);
    QCOMPARE(m_portal->calls(),
             QStringList({ QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts ") + portalId("F6") }));
    // The names are the same in every run, for the desktop to know them again.
    const QString name = QCoreApplication::applicationName();
    for (const QString &session : m_portal->sessionNames()) {
        QVERIFY(
            QRegularExpression(QStringLiteral("^%1_[0-9]+$").arg(name)).match(session).hasMatch());
    }
    QCOMPARE(m_portal->sessionNames().count(), 2);
    m_portal->press(portalId("F5"));
    m_portal->press(portalId("F6"));
    QTRY_COMPARE(early.presses + late.presses, 2);
    late.destroy();
    QTRY_COMPARE(m_portal->bound(), QStringList{ portalId("F5") });
    m_portal->press(portalId("F5"));
    QTRY_COMPARE(early.presses, 2);
}

void TestShortcutPortal::canBeDestroyedWhilePending()
{
    m_portal->delay = 200;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    // before it is asked for
    shortcut.destroy();
    QTest::qWait(100);
    QCOMPARE(m_portal->calls(), QStringList());
    // while the session is being made
    QVERIFY(!shortcut.active());
    QTRY_COMPARE(m_portal->calls(), QStringList({ QStringLiteral("CreateSession") }));
    m_portal->forgetCalls();
    shortcut.destroy();
    QTRY_COMPARE(m_portal->calls(),
                 QStringList({ QStringLiteral("Close Session"), QStringLiteral("Close Request") }));
    // while the user thinks
    m_portal->delay = 0;
    m_portal->isMuteForShortcuts = true;
    auto second = std::make_unique<NotingShortcut>(Qt::Key_F6);
    QVERIFY(!second->active());
    QTRY_VERIFY(m_portal->bound().contains(portalId("F6")));
    m_portal->forgetCalls();
    QCOMPARE(second->state(), OlvShortcut::Pending);
    second.reset();
    QTRY_COMPARE(m_portal->calls(),
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
    grant(two.get());
    one.destroy();
    QTest::qWait(settlingTime);
    QCOMPARE(m_portal->calls(), QStringList());
    two.reset();
    QTRY_COMPARE(m_portal->calls(), QStringList({ QStringLiteral("Close Session") }));
}

void TestShortcutPortal::isGrantedAgainWithoutADialog()
{
    NotingShortcut one(Qt::Key_F5);
    NotingShortcut two(Qt::Key_F6);
    QVERIFY(!one.active());
    grant(&two);
    one.destroy();
    // The desktop still has it, since the session holds the other one.
    QVERIFY(one.active());
    m_portal->press(portalId("F5"));
    QTRY_COMPARE(one.presses, 1);
    QCOMPARE(m_portal->calls(), QStringList());
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
    grant(&second);
    m_portal->press(portalId("F5"));
    QTRY_COMPARE(second.presses, 1);
    QCOMPARE(first.presses, 0);
}

void TestShortcutPortal::desktopMayTakeThemBack()
{
    NotingShortcut shortcut(Qt::Key_F5);
    grant(&shortcut);
    expectWarning("the desktop has taken them back");
    m_portal->closeSessionOf(portalId("F5"));
    QTRY_COMPARE(shortcut.states, (States{ OlvShortcut::Active, OlvShortcut::Inactive }));
    QVERIFY(!shortcut.active());
    QTest::qWait(settlingTime);
    QCOMPARE(m_portal->calls(), QStringList());
    shortcut.destroy();
    grant(&shortcut);
}

void TestShortcutPortal::portalMayEnd()
{
    NotingShortcut granted(Qt::Key_F5);
    grant(&granted);
    m_portal->isMuteForShortcuts = true;
    NotingShortcut pending(Qt::Key_F6);
    QVERIFY(!pending.active());
    QTRY_VERIFY(m_portal->bound().contains(portalId("F6")));
    expectWarning("the portal has ended");
    m_portal.reset();
    QTRY_COMPARE(pending.states, States{ OlvShortcut::Inactive });
    QCOMPARE(granted.states, (States{ OlvShortcut::Active, OlvShortcut::Inactive }));
    QVERIFY(!granted.active() && !pending.active());
    // A new one is asked when they are asked for anew.
    m_portal = std::make_unique<FakePortal>();
    QTest::qWait(settlingTime);
    QCOMPARE(m_portal->calls(), QStringList());
    granted.destroy();
    grant(&granted);
    m_portal->press(portalId("F5"));
    QTRY_COMPARE(granted.presses, 1);
}

void TestShortcutPortal::portalMayNeverHaveBeen()
{
    m_portal.reset();
    NotingShortcut one(Qt::Key_F5);
    NotingShortcut two(Qt::Key_F6);
    expectWarning(".*org.freedesktop.portal.Desktop");
    QVERIFY(!one.active() && !two.active());
    QTRY_COMPARE(one.states, States{ OlvShortcut::Inactive });
    QTRY_COMPARE(two.states, States{ OlvShortcut::Inactive });
    QVERIFY(!one.active());
    one.destroy();
    expectWarning(".*org.freedesktop.portal.Desktop");
    QVERIFY(!one.active());
    QTRY_COMPARE(one.states, (States{ OlvShortcut::Inactive, OlvShortcut::Inactive }));
}

void TestShortcutPortal::userMayTakeTheirTime()
{
    m_portal->delay = 1500;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    QTest::qWait(2000);
    QCOMPARE(shortcut.state(), OlvShortcut::Pending);
    QTRY_COMPARE(shortcut.state(), OlvShortcut::Active);
}

void TestShortcutPortal::portalMayAnswerNonsense()
{
    m_portal->isConfused = true;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    expectWarning("they have not been confirmed");
    QTRY_COMPARE(shortcut.states, States{ OlvShortcut::Inactive });
}

void TestShortcutPortal::programTellsItsName()
{
    m_portal->wantsName = true;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    expectWarning("An app id is required");
    QTRY_COMPARE(shortcut.states, States{ OlvShortcut::Inactive });
    m_portal->forgetCalls();
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.recorder"));
    NotingShortcut named(Qt::Key_F6);
    QVERIFY(!named.active());
    QTRY_COMPARE(named.state(), OlvShortcut::Active);
    QCOMPARE(m_portal->calls(),
             QStringList({ QStringLiteral("Register org.example.recorder"),
                           QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts org_example_recorder_CTRL_F6") }));
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
    QCOMPARE(m_portal->calls(), QStringList());
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
    grant(three);
    connect(three, &OlvShortcut::activated, this, [=] { delete three; });
    m_portal->press(portalId("F5"));
    QTRY_VERIFY(!three);
}

void TestShortcutPortal::livesInAnotherThread()
{
    QThread thread;
    thread.start();
    auto *shortcut = new OlvShortcut(Qt::Key_F5, true, false, false, false);
    QVERIFY(!shortcut->active());
    shortcut->moveToThread(&thread);
    std::atomic<int> tellings{ 0 };
    const auto tell = [&] {
        tellings += QThread::currentThread() == &thread ? 1 : 100;
    };
    connect(shortcut, &OlvShortcut::stateChanged, shortcut, tell, Qt::DirectConnection);
    connect(shortcut, &OlvShortcut::activated, shortcut, tell, Qt::DirectConnection);
    QTRY_COMPARE(tellings.load(), 1);
    m_portal->press(portalId("F5"));
    QTRY_COMPARE(tellings.load(), 2);
    shortcut->deleteLater();
    QTRY_COMPARE(m_portal->bound(), QStringList());
    thread.quit();
    thread.wait();
}

QTEST_MAIN(TestShortcutPortal)
#include "tst_shortcutportal.moc"
