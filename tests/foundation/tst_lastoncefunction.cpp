// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvLastOnceFunction>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QThread>

#include <memory>

class TestLastOnceFunction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsOnceFromTheEventLoop();
    void outlivesTheObjectAndTheCallable();
    void waitsAtLeastAMillisecond();
    void runsSeveralInTheOrderOfCreation();
    void callableMayCreateFurtherOnes();
    void nestedEventLoopDoesNotRunItAgain();
    void callableMayDeleteWhatCreatedIt();
    void callableMayQuitTheLoop();
    void letsGoOfTheCallableOnceItHasRun();
    void runsOnTheThreadThatCreatedIt();
    void anEmptyCallableThrowsOutOfTheLoop();
};

void TestLastOnceFunction::runsOnceFromTheEventLoop()
{
    QStringList ran;
    OlvLastOnceFunction([&] { ran.append(QStringLiteral("run")); });
    QCOMPARE(ran.count(), 0);
    QTRY_COMPARE(ran.count(), 1);
    QTest::qWait(30);
    QCOMPARE(ran.count(), 1);
}

void TestLastOnceFunction::outlivesTheObjectAndTheCallable()
{
    int runs = 0;
    {
        std::function<void()> callable = [&] {
            ++runs;
        };
        const OlvLastOnceFunction deferred(callable);
        callable = nullptr;
    }
    QTRY_COMPARE(runs, 1);
}

void TestLastOnceFunction::waitsAtLeastAMillisecond()
{
    qint64 waited = -1;
    QElapsedTimer clock;
    clock.start();
    OlvLastOnceFunction([&] { waited = clock.nsecsElapsed(); });
    QTRY_VERIFY(waited >= 0);
    QVERIFY2(waited >= 900000, QByteArray::number(waited).constData());
}

void TestLastOnceFunction::runsSeveralInTheOrderOfCreation()
{
    QVector<int> ran;
    QVector<int> expected;
    for (int i = 0; i < 200; ++i) {
        expected.append(i);
        OlvLastOnceFunction([&ran, i] { ran.append(i); });
    }
    QTRY_COMPARE(ran.count(), 200);
    QCOMPARE(ran, expected);
}

void TestLastOnceFunction::callableMayCreateFurtherOnes()
{
    int runs = 0;
    std::function<void()> callable = [&] {
        if (++runs < 5) {
            OlvLastOnceFunction{ callable };
        }
    };
    OlvLastOnceFunction{ callable };
    QTRY_COMPARE(runs, 5);
    QTest::qWait(20);
    QCOMPARE(runs, 5);
}

void TestLastOnceFunction::nestedEventLoopDoesNotRunItAgain()
{
    int runs = 0;
    bool finished = false;
    OlvLastOnceFunction([&] {
        ++runs;
        QTest::qWait(30);
        finished = true;
    });
    QTRY_VERIFY(finished);
    QCOMPARE(runs, 1);
}

void TestLastOnceFunction::callableMayDeleteWhatCreatedIt()
{
    auto *creator = new QObject;
    const QPointer<QObject> watched(creator);
    auto *deferred = new OlvLastOnceFunction([creator] { delete creator; });
    delete deferred;
    QTRY_VERIFY(watched.isNull());
}

void TestLastOnceFunction::callableMayQuitTheLoop()
{
    QEventLoop loop;
    OlvLastOnceFunction([&] { loop.exit(7); });
    QCOMPARE(loop.exec(), 7);
}

void TestLastOnceFunction::letsGoOfTheCallableOnceItHasRun()
{
    auto held = std::make_shared<int>(0);
    OlvLastOnceFunction([held] { ++*held; });
    QTRY_COMPARE(*held, 1);
    QCOMPARE(held.use_count(), 1L);
}

void TestLastOnceFunction::runsOnTheThreadThatCreatedIt()
{
    QThread thread;
    QObject object;
    object.moveToThread(&thread);
    std::atomic<QThread *> ranOn{ nullptr };
    connect(&thread, &QThread::started, &object,
            [&] { OlvLastOnceFunction([&] { ranOn = QThread::currentThread(); }); });
    thread.start();
    QTRY_COMPARE(ranOn.load(), &thread);
    thread.quit();
    QVERIFY(thread.wait());
}

void TestLastOnceFunction::anEmptyCallableThrowsOutOfTheLoop()
{
    const auto runLoop = [] {
        OlvLastOnceFunction({});
        QTest::qWait(200);
    };
    QVERIFY_EXCEPTION_THROWN(runLoop(), std::bad_function_call);
}

ADD_TEST(TestLastOnceFunction, QCoreApplication)
#include "tst_lastoncefunction.moc"
