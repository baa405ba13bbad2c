// SPDX-License-Identifier: MIT
#include "portalscene.h"

#include <QThread>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr Qt::Key stays = Qt::Key_F5;
constexpr Qt::Key goes[] = { Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F9 };

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
    void othersMayBeLetGoOfWhileOneIsGranted();
    void othersMayBeLetGoOfWhileOneIsPressed();
    void othersMayBeLetGoOfWhileOneIsTakenBack();
    void othersMayBeLetGoOfWhileThePortalEnds();

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

// In the tests that follow, this thread shares nothing with the others from when they start until
// the backend does what is tested. The sanitizer would take it for what orders the two, as it takes
// the backend's lock and the counters of strings that both have copies of, and not miss another
// lock.

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

void TestShortcutPortalThreads::othersMayBeLetGoOfWhileOneIsGranted()
{
    m_scene.portal->delay = 100;
    NotingShortcut one(stays);
    QVERIFY(!one.active());
    const Shortcuts others = registered();
    QTRY_COMPARE(m_scene.portal->calls().count(), 2);
    PortalScene::exchange(); // the call's reply: then no copies of what they want are left to free
    {
        const LettingGo lettingGo(others);
        QTRY_COMPARE(one.states, States{ OlvShortcut::Active });
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

void TestShortcutPortalThreads::othersMayBeLetGoOfWhileOneIsTakenBack()
{
    NotingShortcut one(stays);
    QVERIFY(!one.active());
    QTRY_COMPARE(one.states, States{ OlvShortcut::Active });
    const Shortcuts others = registered();
    QTRY_COMPARE(others.back()->states, States{ OlvShortcut::Active });
    expectWarning("the desktop has taken them back");
    {
        const LettingGo lettingGo(others);
        m_scene.portal->closeSessionOf(portalId("F5"));
        QTRY_COMPARE(one.states, (States{ OlvShortcut::Active, OlvShortcut::Inactive }));
    }
    QTRY_COMPARE(m_scene.portal->bound(), QStringList());
}

void TestShortcutPortalThreads::othersMayBeLetGoOfWhileThePortalEnds()
{
    NotingShortcut one(stays);
    QVERIFY(!one.active());
    QTRY_COMPARE(one.states, States{ OlvShortcut::Active });
    // of a session that ends with them, so that the list of sessions changes
    const Shortcuts others = registered();
    QTRY_COMPARE(others.back()->states, States{ OlvShortcut::Active });
    expectWarning("the portal has ended");
    {
        const LettingGo lettingGo(others);
        m_scene.portal.reset();
        QTRY_COMPARE(one.states, (States{ OlvShortcut::Active, OlvShortcut::Inactive }));
    }
    for (const auto &other : others) {
        QCOMPARE(other->state(), OlvShortcut::Inactive);
    }
}

QTEST_MAIN(TestShortcutPortalThreads)
#include "tst_shortcutportalthreads.moc"
