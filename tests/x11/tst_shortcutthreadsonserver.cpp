// SPDX-License-Identifier: MIT
#include "shortcutkeys.h"
#include "testprogram.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSignalSpy>
#include <QThread>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <queue>
#include <thread>
#include <vector>

/** Shortcuts of several threads, where the thread of the application registers some. */
class TestShortcutThreadsOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void areNotActiveInAnotherThread();
    void eightThreadsLeaveThoseOfTheApplicationAlone();
    void anotherThreadMayLetGoOfIt();
    void mayBeDestroyedInAThreadThatItWasMovedTo();
    void isActivatedInTheThreadThatItWasMovedTo();
    void mayBeDestroyedThereWhileItIsPressed();

private:
    std::unique_ptr<RealInput> m_input;
};

namespace {

/**
 * Functions that are run in the thread that it was moved to. They are handed over under a lock of
 * its own, because the thread sanitizer cannot see the one of Qt's events.
 */
class Functions : public QObject
{
public:
    Functions() = default;
    ~Functions() override
    {
        // the end of a QThread is as invisible
        const std::lock_guard<std::mutex> lock(m_mutex);
    }
    Q_DISABLE_COPY(Functions)

    void add(std::function<void()> function)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_waiting.push(std::move(function));
        }
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::User) {
            next()();
        }
        return QObject::event(event);
    }

private:
    std::function<void()> next()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::function<void()> function = std::move(m_waiting.front());
        m_waiting.pop();
        return function;
    }

    std::mutex m_mutex;
    std::queue<std::function<void()>> m_waiting;
};

/** A thread with an event loop, which ends with this object. */
class Worker
{
public:
    Worker()
    {
        m_thread.start();
        m_functions.moveToThread(&m_thread);
    }
    ~Worker()
    {
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY(Worker)

    QThread *thread()
    {
        return &m_thread;
    }
    /** Runs something in the thread; returns at once. */
    void run(std::function<void()> function)
    {
        m_functions.add(std::move(function));
    }

private:
    QThread m_thread;
    Functions m_functions;
};

void makeAndDestroy(int rounds, std::atomic<int> *active)
{
    for (int round = 0; round < rounds; ++round) {
        const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
        *active += int(shortcut->active());
        shortcut->toString();
        shortcut->destroy();
    }
}

} // namespace

void TestShortcutThreadsOnServer::init()
{
    m_input = std::make_unique<RealInput>();
    QVERIFY(m_input->isValid());
}

void TestShortcutThreadsOnServer::cleanup()
{
    m_input.reset();
}

void TestShortcutThreadsOnServer::areNotActiveInAnotherThread()
{
    OlvShortcut shortcut(Qt::Key_F5, true, false, false, false);
    bool isActive = true;
    std::thread([&] { isActive = shortcut.active(); }).join();
    QVERIFY(!isActive);
    QVERIFY(shortcut.active());
    // even where it is registered
    std::thread([&] { isActive = shortcut.active(); }).join();
    QVERIFY(!isActive);
    QVERIFY(shortcut.active());
}

void TestShortcutThreadsOnServer::eightThreadsLeaveThoseOfTheApplicationAlone()
{
    constexpr int threadCount = 8;
    constexpr int rounds = 200;
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QVERIFY(shortcut->active());
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    std::atomic<int> active{ 0 };
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back(makeAndDestroy, rounds, &active);
    }
    constexpr int presses = 10;
    for (int i = 0; i < presses; ++i) {
        pressWithControl(*m_input, symbolF5);
        const std::unique_ptr<OlvShortcut> other(ctrl(Qt::Key_F6));
        QVERIFY(other->active());
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QTRY_COMPARE(activated.count(), presses);
    QCOMPARE(active.load(), 0);
    QVERIFY(shortcut->active());
}

void TestShortcutThreadsOnServer::anotherThreadMayLetGoOfIt()
{
    const std::unique_ptr<OlvShortcut> first(ctrl(Qt::Key_F5));
    const std::unique_ptr<OlvShortcut> second(ctrl(Qt::Key_F5));
    QVERIFY(first->active());
    QVERIFY(!second->active());
    std::thread([&] { first->destroy(); }).join();
    QVERIFY(second->active());
    QSignalSpy firstActivated(first.get(), &OlvShortcut::activated);
    QSignalSpy secondActivated(second.get(), &OlvShortcut::activated);
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(secondActivated.count(), 1);
    QCOMPARE(firstActivated.count(), 0);
}

void TestShortcutThreadsOnServer::mayBeDestroyedInAThreadThatItWasMovedTo()
{
    const std::unique_ptr<OlvShortcut> next(ctrl(Qt::Key_F5));
    QSignalSpy activated(next.get(), &OlvShortcut::activated);
    {
        Worker worker;
        OlvShortcut *moved = ctrl(Qt::Key_F5);
        QVERIFY(moved->active());
        QVERIFY(!next->active());
        moved->moveToThread(worker.thread());
        worker.run([=] { delete moved; });
        QTRY_VERIFY(next->active());
    }
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutThreadsOnServer::isActivatedInTheThreadThatItWasMovedTo()
{
    std::atomic<QThread *> thread{ nullptr };
    auto *const stored = &thread;
    Worker worker;
    OlvShortcut *moved = ctrl(Qt::Key_F5);
    QVERIFY(moved->active());
    connect(
        moved, &OlvShortcut::activated, moved, [=] { *stored = QThread::currentThread(); },
        Qt::DirectConnection);
    moved->moveToThread(worker.thread());
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(thread.load(), worker.thread());
    worker.run([=] { delete moved; });
}

void TestShortcutThreadsOnServer::mayBeDestroyedThereWhileItIsPressed()
{
    constexpr int rounds = 50;
    Worker worker;
    for (int round = 0; round < rounds; ++round) {
        OlvShortcut *moved = ctrl(Qt::Key_F5);
        QTRY_VERIFY(moved->active());
        moved->moveToThread(worker.thread());
        m_input->pressKey(symbolControl);
        m_input->pressKey(symbolF5);
        worker.run([=] { delete moved; });
        QCoreApplication::processEvents();
        m_input->releaseKey(symbolF5);
        m_input->releaseKey(symbolControl);
    }
    const std::unique_ptr<OlvShortcut> last(ctrl(Qt::Key_F5));
    QTRY_VERIFY(last->active());
}

ADD_TEST(TestShortcutThreadsOnServer, QApplication)
#include "tst_shortcutthreadsonserver.moc"
