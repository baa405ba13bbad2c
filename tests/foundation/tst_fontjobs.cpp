// SPDX-License-Identifier: MIT
#include "fontfiles.h"
#include "jobhold.h"
#include "jobthreads.h"
#include "testprogram.h"

#include <OlvGlobal>

#include <QDir>
#include <QFontDatabase>
#include <QTemporaryDir>
#include <QTest>

using FontFiles::write;

/** What becomes of several font jobs at once, and of one that cannot start. */
class TestFontJobs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void withoutAThreadNothingIsReadyButAWarningComes();
    void oneJobRunsBehindTheOther();
    void noEntryIsLost();
    void theGuiGetsFontsBetweenFiles();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> m_home;
};

void TestFontJobs::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_home->path()));
    QVERIFY(QDir().mkdir(QStringLiteral("Font")));
    QVERIFY(QFile::link(QStringLiteral("Font"), QStringLiteral("fonts")));
    OlvGlobal::OlvPluginFonts.clear();
    OlvGlobal::DPI = 0.0;
}

void TestFontJobs::cleanup()
{
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
}

void TestFontJobs::withoutAThreadNothingIsReadyButAWarningComes()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "OlvGlobal::init: the fonts are not registered, no thread can be started: "
                         "Resource temporarily unavailable");
    JobThreads::startJobWithoutThread();
    QVERIFY(!OlvGlobal::isReady());
    QVERIFY(OlvGlobal::OlvPluginFonts.isEmpty());
}

void TestFontJobs::oneJobRunsBehindTheOther()
{
    QVERIFY(QFile::copy(FontFiles::sans(), QStringLiteral("Font/sans.ttf")));
    JobHold hold;
    JobThreads::startJob();
    QTRY_VERIFY(hold.isHolding());

    // the second job has no file to read that could keep it
    QVERIFY(QFile::remove(QStringLiteral("Font/sans.ttf")));
    JobThreads::startJob();
    QTest::qWait(200);
    QVERIFY(!OlvGlobal::isReady());

    hold.release();
    QTRY_VERIFY(JobThreads::haveEnded());
    QVERIFY(OlvGlobal::isReady());
    QVERIFY(OlvGlobal::DPI > 0.0);
    QCOMPARE(OlvGlobal::OlvPluginFonts.keys(), QStringList(QStringLiteral("sans")));
}

void TestFontJobs::noEntryIsLost()
{
    constexpr int files = 300;
    for (int i = 0; i < files; ++i) {
        write(QStringLiteral("Font/%1.ttf").arg(i));
    }
    for (int job = 0; job < 4; ++job) {
        JobThreads::startJob();
    }
    QTRY_VERIFY_WITH_TIMEOUT(JobThreads::haveEnded(), 60000);
    QCOMPARE(OlvGlobal::OlvPluginFonts.size(), files);
    for (int i = 0; i < files; ++i) {
        QCOMPARE(OlvGlobal::OlvPluginFonts.value(QString::number(i), 99), -1);
    }
}

void TestFontJobs::theGuiGetsFontsBetweenFiles()
{
    constexpr int jobs = 40;
    for (int i = 0; i < 10; ++i) {
        QVERIFY(QFile::copy(FontFiles::sans(), QStringLiteral("Font/%1.ttf").arg(i)));
    }
    for (int job = 0; job < jobs; ++job) {
        JobThreads::startJob();
    }
    int answers = 0;
    while (!JobThreads::haveEnded()) {
        QFontDatabase::applicationFontFamilies(0);
        ++answers;
        QTest::qWait(1);
    }
    QVERIFY2(answers > jobs, QByteArray::number(answers).constData());
}

ADD_TEST(TestFontJobs, QApplication)
#include "tst_fontjobs.moc"
