// SPDX-License-Identifier: MIT
#include "fontfiles.h"
#include "fontjobprogram.h"
#include "testprogram.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/** How programs end that have started a font job. */
class TestFontJobEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leavingDuringTheJobIsSafe_data();
    void leavingDuringTheJobIsSafe();
    void endsInTime_data();
    void endsInTime();

private:
    QTemporaryDir m_home;
};

void TestFontJobEnd::initTestCase()
{
    QVERIFY(m_home.isValid());
    // another user has to get in
    QVERIFY(QFile::setPermissions(
        m_home.path(), QFile::permissions(m_home.path()) | QFile::ReadOther | QFile::ExeOther));
    const QDir home(m_home.path());
    QVERIFY(home.mkdir(QStringLiteral("Font")));
    QVERIFY(QFile::link(QStringLiteral("Font"), home.filePath(QStringLiteral("fonts"))));
    QVERIFY(QFile::copy(FontFiles::sans(), home.filePath(QStringLiteral("Font/sans.ttf"))));
    QVERIFY(QFile::copy(FontFiles::mono(), home.filePath(QStringLiteral("Font/mono.ttf"))));
}

void TestFontJobEnd::leavingDuringTheJobIsSafe_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("by returning from main") << QStringLiteral("return");
    QTest::newRow("by exit") << QStringLiteral("exit");
}

void TestFontJobEnd::leavingDuringTheJobIsSafe()
{
    QFETCH(QString, way);
    for (int round = 0; round < 20; ++round) {
        const FontJobRun run = runFontJob(way, m_home.path());
        QVERIFY(run.hasEnded);
        QVERIFY2(run.code == 0, qPrintable(run.errors));
    }
}

void TestFontJobEnd::endsInTime_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::addColumn<QString>("warning");
    QTest::newRow("no thread could be started")
        << QStringLiteral("refused") << 0 << 4000 << QStringLiteral("no thread can be started");
    QTest::newRow("the child of a fork during the job")
        << QStringLiteral("fork") << 0 << 4000 << QString();
    QTest::newRow("the job cannot read its file to the end")
        << QStringLiteral("stuck") << 5000 << 9000 << QString();
}

void TestFontJobEnd::endsInTime()
{
    QFETCH(QString, way);
    QFETCH(int, least);
    QFETCH(int, most);
    QFETCH(QString, warning);
    const FontJobRun run = runFontJob(way, m_home.path());
    QVERIFY(run.hasEnded);
    QVERIFY2(run.code == 0, qPrintable(run.errors));
    QVERIFY2(run.milliseconds >= least && run.milliseconds < most,
             QByteArray::number(run.milliseconds).constData());
    QVERIFY2(run.errors.contains(warning), qPrintable(run.errors));
}

ADD_TEST(TestFontJobEnd, QCoreApplication)
#include "tst_fontjobend.moc"
