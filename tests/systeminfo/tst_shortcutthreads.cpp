// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvShortcut>

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

/** What holds in every thread without an X server, here on Qt's offscreen platform. */
class TestShortcutThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eightThreadsMakeAskAndDestroyThem();
    void fromAddressFindsThoseOfOtherThreads();
};

void TestShortcutThreads::eightThreadsMakeAskAndDestroyThem()
{
    constexpr int threadCount = 8;
    constexpr int rounds = 300;
    std::atomic<int> failures{ 0 };
    std::atomic<qulonglong> lastAddress{ 0 };
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            for (int round = 0; round < rounds; ++round) {
                OlvShortcut shortcut(Qt::Key(Qt::Key_A + i), true, false, false, false);
                const auto address = reinterpret_cast<qulonglong>(&shortcut);
                const bool isFound = OlvShortcut::fromAddress(address) == &shortcut;
                const bool isRight =
                    shortcut.toString() == QStringLiteral("Ctrl+") + QChar(ushort('A' + i));
                failures += int(!isFound || !isRight || shortcut.active());
                // one of another thread, which may be gone by now
                OlvShortcut::fromAddress(lastAddress.exchange(address));
                shortcut.destroy();
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(failures.load(), 0);
}

void TestShortcutThreads::fromAddressFindsThoseOfOtherThreads()
{
    const OlvShortcut shortcut(Qt::Key_A, true, false, false, false);
    const auto address = reinterpret_cast<qulonglong>(&shortcut);
    const OlvShortcut *found = nullptr;
    std::thread([&] { found = OlvShortcut::fromAddress(address); }).join();
    QCOMPARE(found, &shortcut);
}

ADD_TEST(TestShortcutThreads, QApplication)
#include "tst_shortcutthreads.moc"
