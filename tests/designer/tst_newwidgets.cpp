// SPDX-License-Identifier: MIT
#include <QTest>
QTEST_MAIN(QObject)
