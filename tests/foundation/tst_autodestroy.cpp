// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvAutoDestroy>

#include <QTest>

#include <functional>

namespace {

/** Gives every test a process-wide instance of its own, as loading the library does. */
void renewProcessWideInstance()
{
    delete OlvAutoDestroy::SINGLEGLOBAL;
    OlvAutoDestroy::SINGLEGLOBAL = new OlvAutoDestroy;
}

} // namespace

class TestAutoDestroy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void runsCallablesInTheOrderOfRegistrationOnce();
    void keepsACopyOfTheCallable();
    void guardLeavesNoProcessWideInstance();
    void deletingTheInstanceDirectlyLeavesNoDanglingPointer();
    void aSecondGuardHasNothingLeftToRun();
    void callablesFindTheInstanceGone();
    void addingAfterTheGuardIsGoneIsDropped();
    void aCallableMayHaveAGuardOfItsOwn();
    void anEmptyCallableThrowsOutOfTheGuard();
    void anExceptionLeavesTheGuardAndTheRestDoesNotRun();
    void cannotBeCopied();
    void cleanupTestCase();
};

void TestAutoDestroy::initTestCase()
{
    QVERIFY2(OlvAutoDestroy::SINGLEGLOBAL, "loading the library creates the instance");
}

void TestAutoDestroy::init()
{
    renewProcessWideInstance();
}

void TestAutoDestroy::cleanupTestCase()
{
    delete OlvAutoDestroy::SINGLEGLOBAL;
}

void TestAutoDestroy::runsCallablesInTheOrderOfRegistrationOnce()
{
    QStringList ran;
    {
        const OlvAutoDestroy guard;
        OlvAutoDestroy::addDestroy([&] { ran.append(QStringLiteral("first")); });
        OlvAutoDestroy::addDestroy([&] { ran.append(QStringLiteral("second")); });
        OlvAutoDestroy::addDestroy([&] { ran.append(QStringLiteral("third")); });
        QCOMPARE(ran, QStringList());
    }
    QCOMPARE(ran,
             QStringList(
                 { QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third") }));
}

void TestAutoDestroy::keepsACopyOfTheCallable()
{
    int runs = 0;
    std::function<void()> callable = [&] {
        ++runs;
    };
    OlvAutoDestroy::addDestroy(callable);
    callable = nullptr;
    {
        const OlvAutoDestroy guard;
    }
    QCOMPARE(runs, 1);
}

void TestAutoDestroy::guardLeavesNoProcessWideInstance()
{
    {
        const OlvAutoDestroy guard;
        QVERIFY(OlvAutoDestroy::SINGLEGLOBAL);
    }
    QVERIFY(!OlvAutoDestroy::SINGLEGLOBAL);
}

void TestAutoDestroy::deletingTheInstanceDirectlyLeavesNoDanglingPointer()
{
    int runs = 0;
    OlvAutoDestroy::addDestroy([&] { ++runs; });
    delete OlvAutoDestroy::SINGLEGLOBAL;
    QVERIFY(!OlvAutoDestroy::SINGLEGLOBAL);
    QCOMPARE(runs, 1);
}

void TestAutoDestroy::aSecondGuardHasNothingLeftToRun()
{
    int runs = 0;
    {
        const OlvAutoDestroy outer;
        {
            const OlvAutoDestroy inner;
            OlvAutoDestroy::addDestroy([&] { ++runs; });
        }
        QCOMPARE(runs, 1);
    }
    QCOMPARE(runs, 1);
}

void TestAutoDestroy::callablesFindTheInstanceGone()
{
    bool gone = false;
    int later = 0;
    OlvAutoDestroy::addDestroy([&] {
        gone = !OlvAutoDestroy::SINGLEGLOBAL;
        OlvAutoDestroy::addDestroy([&] { ++later; });
    });
    {
        const OlvAutoDestroy guard;
    }
    QVERIFY(gone);
    QCOMPARE(later, 0);
}

void TestAutoDestroy::addingAfterTheGuardIsGoneIsDropped()
{
    {
        const OlvAutoDestroy guard;
    }
    int runs = 0;
    OlvAutoDestroy::addDestroy([&] { ++runs; });
    QVERIFY(!OlvAutoDestroy::SINGLEGLOBAL);
    {
        const OlvAutoDestroy guard;
    }
    QCOMPARE(runs, 0);
}

void TestAutoDestroy::aCallableMayHaveAGuardOfItsOwn()
{
    QStringList ran;
    OlvAutoDestroy::addDestroy([&] {
        const OlvAutoDestroy nested;
        ran.append(QStringLiteral("first"));
    });
    OlvAutoDestroy::addDestroy([&] { ran.append(QStringLiteral("second")); });
    {
        const OlvAutoDestroy guard;
    }
    QCOMPARE(ran, QStringList({ QStringLiteral("first"), QStringLiteral("second") }));
}

void TestAutoDestroy::anEmptyCallableThrowsOutOfTheGuard()
{
    OlvAutoDestroy::addDestroy({});
    auto *guard = new OlvAutoDestroy;
    QVERIFY_EXCEPTION_THROWN(delete guard, std::bad_function_call);
    QVERIFY(!OlvAutoDestroy::SINGLEGLOBAL);
}

void TestAutoDestroy::anExceptionLeavesTheGuardAndTheRestDoesNotRun()
{
    QStringList ran;
    OlvAutoDestroy::addDestroy([&] { ran.append(QStringLiteral("before")); });
    OlvAutoDestroy::addDestroy([] { throw 42; });
    OlvAutoDestroy::addDestroy([&] { ran.append(QStringLiteral("behind")); });
    auto *guard = new OlvAutoDestroy;
    QVERIFY_EXCEPTION_THROWN(delete guard, int);
    QVERIFY(!OlvAutoDestroy::SINGLEGLOBAL);
    QCOMPARE(ran, QStringList({ QStringLiteral("before") }));
}

void TestAutoDestroy::cannotBeCopied()
{
    QVERIFY(!std::is_copy_constructible<OlvAutoDestroy>::value);
    QVERIFY(!std::is_copy_assignable<OlvAutoDestroy>::value);
}

ADD_TEST(TestAutoDestroy, NoApplication)
#include "tst_autodestroy.moc"
