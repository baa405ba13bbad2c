// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvGlobal>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/** What becomes of the font job where Qt has no fonts to add to. */
class TestFontJobWithoutGui : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNotStarted();
};

void TestFontJobWithoutGui::isNotStarted()
{
    const QTemporaryDir home;
    QVERIFY(QDir::setCurrent(home.path()));
    QVERIFY(QDir().mkdir(QStringLiteral("Font")));
    QFile file(QStringLiteral("Font/some.ttf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const auto threads = [] {
        return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    };
    const QStringList before = threads();
    OlvGlobal::init();
    QCOMPARE(threads(), before);
    QVERIFY(!OlvGlobal::isReady());
    QVERIFY(OlvGlobal::OlvPluginFonts.isEmpty());
    QCOMPARE(OlvGlobal::desktopSize, QSize());
    QCOMPARE(OlvGlobal::DPI, 0.0);
}

ADD_TEST(TestFontJobWithoutGui, QCoreApplication)
#include "tst_fontjobwithoutgui.moc"
