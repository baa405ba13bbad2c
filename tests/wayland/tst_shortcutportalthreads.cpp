// SPDX-License-Identifier: MIT
#include "portalscene.h"
#include "testprogram.h"

#include <QThread>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr Qt::Key stays = Qt::Key_F5;
constexpr Qt::Key goes[] = { Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F9,
                             Qt::Key_A,  Qt::Key_B,  Qt::Key_C,  Qt::Key_D };

using Shortcuts = std::vector<std::unique_ptr<NotingShortcut>>;

/** Has a thread for each of the shortcuts let go of it, and ends with these threads. */
class LettingGo
{
public:
    explicit LettingGo(const Shortcuts &shortcuts)
    {
        for (const auto &shortcut : shortcuts) {
            m_threads.emplace_back([leaving = shortcut.get()] { leaving->destroy(); });
        }
    }
    ~LettingGo()
    {
        for (std::thread &thread : m_threads) {
            thread.join();
        }
    }
    Q_DISABLE_COPY(LettingGo)

private:
    std::vector<std::thread> m_threads;
};

} // namespace

/**
 * Shortcuts of several threads by a desktop's portal. The thread sanitizer finds what they share
 * without its lock.
 */
class TestShortcutPortalThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void livesInAnotherThread();
    void othersMayBeLetGoOfWhileOneIsAskedFor();
    void othersMayBeLetGoOfWhileOneIsRefused();
    void othersMayBeLetGoOfWhileOneIsPressed();
    void othersMayBeLetGoOfWhileOneIsTakenBack_data();
    void othersMayBeLetGoOfWhileOneIsTakenBack();
    void otherThreadsMayEndSessions();

private:
    /** Registers those that are let go of, which are granted in one session. */
    Shortcuts registered() const
    {
        Shortcuts shortcuts;
        for (const Qt::Key key : goes) {
            shortcuts.push_back(std::make_unique<NotingShortcut>(key));
            shortcuts.back()->active();
        }
        return shortcuts;
    }

    PortalScene m_scene;
};

void TestShortcutPortalThreads::init()
{
    m_scene.begin();
}

void TestShortcutPortalThreads::cleanup()
{
    m_scene.end();
}

void TestShortcutPortalThreads::livesInAnotherThread()
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
    m_scene.portal->press(portalId("F5"));
    QTRY_COMPARE(tellings.load(), 2);
    shortcut->deleteLater();
    QTRY_COMPARE(m_scene.portal->bound(), QStringList());
    thread.quit();
    thread.wait();
}

// In the tests that follow, nothing orders what this thread and the others do from when these start
// until the backend does what is tested, so that the sanitizer sees whether the backend's lock
// does. Strings that both have copies of would, and so would a session that ends in another thread,
// which wakes this one.

void TestShortcutPortalThreads::othersMayBeLetGoOfWhileOneIsAskedFor()
{
    NotingShortcut one(stays);
    QVERIFY(!one.active());
    const Shortcuts others = registered();
    {
        const LettingGo lettingGo(others);
        QTRY_COMPARE(m_scene.portal->calls().count(), 2);
    }
    QTRY_COMPARE(one.states, States{ OlvShortcut::Active });
}

void TestShortcutPortalThreads::othersMayBeLetGoOfWhileOneIsRefused()
{
    m_scene.portal->delay = 100;
    m_scene.portal->refused = QStringList{ portalId("F5") };
    NotingShortcut one(stays);
    QVERIFY(!one.active());
    const Shortcuts others = registered();
    QTRY_COMPARE(m_scene.portal->calls().count(), 2);
    PortalScene::exchange(); // the call's reply, with which the last copies of what is wanted go
    expectWarning("they have not been confirmed");
    {
        const LettingGo lettingGo(others);
        QTRY_COMPARE(one.states, States{ OlvShortcut::Inactive });
    }
    for (const auto &other : others) {
        QCOMPARE(other->state(), OlvShortcut::Inactive);
    }
}

void TestShortcutPortalThreads::othersMayBeLetGoOfWhileOneIsPressed()
{
    NotingShortcut one(stays);
    QVERIFY(!one.active());
    const Shortcuts others = registered();
    QTRY_COMPARE(one.states, States{ OlvShortcut::Active });
    {
        const LettingGo lettingGo(others);
        m_scene.portal->press(portalId("F5"));
        QTRY_COMPARE(one.presses, 1);
    }
    QVERIFY(one.active());
}

void TestShortcutPortalThreads::othersMayBeLetGoOfWhileOneIsTakenBack_data()
{
    QTest::addColumn<bool>("portalEnds");
    QTest::newRow("with its session") << false;
    QTest::newRow("with the portal") << true;
}

void TestShortcutPortalThreads::othersMayBeLetGoOfWhileOneIsTakenBack()
{
    QFETCH(bool, portalEnds);
    NotingShortcut one(stays);
    QVERIFY(!one.active());
    const Shortcuts others = registered();
    QTRY_COMPARE(one.states, States{ OlvShortcut::Active });
    expectWarning(portalEnds ? "the portal has ended" : "the desktop has taken them back");
    {
        const LettingGo lettingGo(others);
        if (portalEnds) {
            m_scene.portal.reset();
        } else {
            m_scene.portal->closeSessionOf(portalId("F5"));
        }
        QTRY_COMPARE(one.states, (States{ OlvShortcut::Active, OlvShortcut::Inactive }));
    }
    for (const auto &other : others) {
        QCOMPARE(other->state(), OlvShortcut::Inactive);
    }
}

void TestShortcutPortalThreads::otherThreadsMayEndSessions()
{
    NotingShortcut one(stays);
    QVERIFY(!one.active());
    QTRY_COMPARE(one.states, States{ OlvShortcut::Active });
    const Shortcuts others = registered();
    QTRY_COMPARE(others.back()->states, States{ OlvShortcut::Active });
    {
        const LettingGo lettingGo(others);
    }
    QTRY_COMPARE(m_scene.portal->bound(), QStringList{ portalId("F5") });
    QVERIFY(one.active());
}

ADD_TEST(TestShortcutPortalThreads, QApplication)
#include "tst_shortcutportalthreads.moc"
