// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>
#include <QTest>

/** The files that the tests of font jobs make. */
namespace FontFiles {

inline QString sans()
{
    return QStringLiteral(OLV_TEST_FONTS "/DejaVuSans.ttf");
}

inline QString mono()
{
    return QStringLiteral(OLV_TEST_FONTS "/DejaVuSansMono.ttf");
}

inline void write(const QString &path, const QByteArray &content = QByteArray())
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(content), qint64(content.size()));
}

} // namespace FontFiles
