// SPDX-License-Identifier: MIT
#include "portalscene.h"
#include "testprogram.h"

#include <QGuiApplication>
#include <QTimer>

namespace {

/** What ends the wait for the portal's answer, where something does; null for nothing. */
QTimer *runningLimit()
{
    // the backend's objects are below that of the application
    const auto timers = QCoreApplication::instance()->findChildren<QTimer *>();
    for (QTimer *timer : timers) {
        if (timer->isActive()) {
            return timer;
        }
    }
    return nullptr;
}

} // namespace

/** What a desktop's portal answers, at what time, and if it does at all. */
class TestShortcutPortalAnswers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void refusalSticks_data();
    void refusalSticks();
    void partOfThemMayBeGranted();
    void desktopMayTakeThemBack();
    void portalMayEnd();
    void portalMayNeverHaveBeen();
    void userMayTakeTheirTime();
    void silentPortalIsGivenUp_data();
    void silentPortalIsGivenUp();
    void portalMayAnswerNonsense();
    void programTellsItsName();

private:
    PortalScene m_scene;
};

void TestShortcutPortalAnswers::init()
{
    m_scene.begin();
}

void TestShortcutPortalAnswers::cleanup()
{
    m_scene.end();
}

void TestShortcutPortalAnswers::refusalSticks_data()
{
    QTest::addColumn<uint>("code");
    QTest::newRow("the user cancels") << 1U;
    QTest::newRow("it ends otherwise") << 2U;
    QTest::newRow("success with nothing granted") << 0U;
}

void TestShortcutPortalAnswers::refusalSticks()
{
    QFETCH(uint, code);
    m_scene.portal->refusesAll = true;
    m_scene.portal->code = code;
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
    QCOMPARE(m_scene.portal->calls(),
             QStringList({ QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts ") + portalId("F5"),
                           QStringLiteral("Close Session") }));
    // Asking again takes a destroy().
    m_scene.portal->refusesAll = false;
    disconnect(connection);
    shortcut.destroy();
    m_scene.grant(&shortcut);
    QCOMPARE(shortcut.states, (States{ OlvShortcut::Inactive, OlvShortcut::Active }));
}

void TestShortcutPortalAnswers::partOfThemMayBeGranted()
{
    m_scene.portal->refused = QStringList{ portalId("F6") };
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
    m_scene.portal->press(portalId("F7"));
    QTRY_COMPARE(three.presses, 1);
}

void TestShortcutPortalAnswers::desktopMayTakeThemBack()
{
    NotingShortcut shortcut(Qt::Key_F5);
    m_scene.grant(&shortcut);
    expectWarning("the desktop has taken them back");
    m_scene.portal->closeSessionOf(portalId("F5"));
    QTRY_COMPARE(shortcut.states, (States{ OlvShortcut::Active, OlvShortcut::Inactive }));
    QVERIFY(!shortcut.active());
    QTest::qWait(settlingTime);
    QCOMPARE(m_scene.portal->calls(), QStringList());
    shortcut.destroy();
    m_scene.grant(&shortcut);
}

void TestShortcutPortalAnswers::portalMayEnd()
{
    NotingShortcut granted(Qt::Key_F5);
    m_scene.grant(&granted);
    m_scene.portal->isMuteForShortcuts = true;
    NotingShortcut pending(Qt::Key_F6);
    QVERIFY(!pending.active());
    QTRY_VERIFY(m_scene.portal->bound().contains(portalId("F6")));
    expectWarning("the portal has ended");
    m_scene.portal.reset();
    QTRY_COMPARE(pending.states, States{ OlvShortcut::Inactive });
    QCOMPARE(granted.states, (States{ OlvShortcut::Active, OlvShortcut::Inactive }));
    QVERIFY(!granted.active() && !pending.active());
    // A new one is asked when they are asked for anew.
    m_scene.portal = std::make_unique<FakePortal>();
    QTest::qWait(settlingTime);
    QCOMPARE(m_scene.portal->calls(), QStringList());
    granted.destroy();
    m_scene.grant(&granted);
    m_scene.portal->press(portalId("F5"));
    QTRY_COMPARE(granted.presses, 1);
}

void TestShortcutPortalAnswers::portalMayNeverHaveBeen()
{
    m_scene.portal.reset();
    PortalScene::exchange();
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

void TestShortcutPortalAnswers::userMayTakeTheirTime()
{
    m_scene.portal->delay = 200;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    QTRY_VERIFY(m_scene.portal->bound().contains(portalId("F5")));
    QCOMPARE(shortcut.state(), OlvShortcut::Pending);
    QVERIFY(!runningLimit());
    QTRY_COMPARE(shortcut.states, States{ OlvShortcut::Active });
}

void TestShortcutPortalAnswers::silentPortalIsGivenUp_data()
{
    QTest::addColumn<bool>("isFrozen");
    QTest::newRow("it takes the request") << false;
    QTest::newRow("it does not even reply") << true;
}

void TestShortcutPortalAnswers::silentPortalIsGivenUp()
{
    QFETCH(bool, isFrozen);
    m_scene.portal->isMuteForSessions = true;
    m_scene.portal->isFrozen = isFrozen;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    QTRY_COMPARE(m_scene.portal->calls(), QStringList{ QStringLiteral("CreateSession") });
    PortalScene::exchange();
    QCOMPARE(shortcut.state(), OlvShortcut::Pending);
    QVERIFY(!shortcut.active());
    QTimer *limit = runningLimit();
    QVERIFY(limit);
    QCOMPARE(limit->interval(), 25000);
    QTest::qWait(settlingTime);
    QCOMPARE(shortcut.state(), OlvShortcut::Pending);
    m_scene.portal->forgetCalls();
    expectWarning("it does not answer");
    limit->start(1);
    QTRY_COMPARE(shortcut.states, States{ OlvShortcut::Inactive });
    QVERIFY(!shortcut.active());
    QTRY_COMPARE(m_scene.portal->calls(), QStringList{ QStringLiteral("Close Session") });
}

void TestShortcutPortalAnswers::portalMayAnswerNonsense()
{
    m_scene.portal->isConfused = true;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    expectWarning("they have not been confirmed");
    QTRY_COMPARE(shortcut.states, States{ OlvShortcut::Inactive });
}

void TestShortcutPortalAnswers::programTellsItsName()
{
    m_scene.portal->wantsName = true;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    expectWarning("An app id is required");
    QTRY_COMPARE(shortcut.states, States{ OlvShortcut::Inactive });
    PortalScene::exchange();
    m_scene.portal->forgetCalls();
    QGuiApplication::setDesktopFileName(QStringLiteral("org.example.recorder"));
    NotingShortcut named(Qt::Key_F6);
    QVERIFY(!named.active());
    QTRY_COMPARE(named.state(), OlvShortcut::Active);
    QCOMPARE(m_scene.portal->calls(),
             QStringList({ QStringLiteral("Register org.example.recorder"),
                           QStringLiteral("CreateSession"),
                           QStringLiteral("BindShortcuts org_example_recorder_CTRL_F6") }));
}

ADD_TEST(TestShortcutPortalAnswers, QApplication)
#include "tst_shortcutportalanswers.moc"
