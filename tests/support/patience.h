// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

/**
 * How long a test waits for what comes at once on an idle machine. It takes this long only where
 * the test fails, so it suits a build with sanitizers on a busy machine.
 */
constexpr int patience = 30000; // milliseconds

// Qt's macros of these names give up after five seconds, and look only every 50 milliseconds, which
// takes most of the time of a test that waits after each step of a drag.
#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#define QTRY_VERIFY(condition)                                                                     \
    do {                                                                                           \
        const bool isSoSoon = QTest::qWaitFor([&] { return bool(condition); }, patience);          \
        QVERIFY2(isSoSoon, #condition);                                                            \
    } while (false)
#define QTRY_VERIFY2(condition, description)                                                       \
    do {                                                                                           \
        const bool isSoSoon = QTest::qWaitFor([&] { return bool(condition); }, patience);          \
        QVERIFY2(isSoSoon, description);                                                           \
    } while (false)
#define QTRY_COMPARE(actual, expected)                                                             \
    do {                                                                                           \
        (void)QTest::qWaitFor([&] { return bool((actual) == (expected)); }, patience);             \
        QCOMPARE(actual, expected);                                                                \
    } while (false)
