// SPDX-License-Identifier: MIT
#include "fontfiles.h"
#include "jobhold.h"
#include "jobthreads.h"
#include "testprogram.h"

#include <OlvGlobal>

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

using FontFiles::mono;
using FontFiles::sans;
using FontFiles::write;

/**
 * The functions run in their order: the first ones see the state before any job, and readiness
 * comes once in the life of a process.
 */
class TestFontJob : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingIsKnownBefore();
    void getFilesListsRegularFilesOnly();
    void getFilesOfNoDirectoryIsEmpty();
    void getFontWithoutAnyFontGivesTheDefaultInTheSize_data();
    void getFontWithoutAnyFontGivesTheDefaultInTheSize();
    void initReturnsAtOnceAndTheJobIsReadyOnlyWhenDone();
    void recordsTheScreen();
    void keysAreFileNamesLessFourCharacters();
    void idsAreThoseOfTheFontDatabase();
    void laterFileInTheListingWinsAKey();
    void getFontFindsTheFamilyOfAFile();
    void getFontOfAnUnknownKeyGivesTheFirstFamily();
    void getFontOfABadFileGivesTheDefault();
    void lookingUpAddsNoKey();
    void secondJobRegistersEverythingAgain();
    void withoutADirectoryNothingIsRegistered();

private:
    QTemporaryDir m_home;
    QStringList m_listing;
};

void TestFontJob::initTestCase()
{
    QVERIFY(m_home.isValid());
    QVERIFY(QDir::setCurrent(m_home.path()));
    QVERIFY(QFile::exists(sans()));
    QVERIFY(QFile::exists(mono()));
    QVERIFY(QDir().mkdir(QStringLiteral("Font")));
    QVERIFY(QDir().mkdir(QStringLiteral("Font/folder.ttf")));
    QVERIFY(QDir().mkdir(QStringLiteral("fonts")));

    // what "Font" lists is never read; what "fonts" holds is
    const QByteArray listed("listed only");
    for (const char *name : { "mono.ttf", "bad.ttf", "pair.ttf", "pair.otf", "abc", "abcd",
                              ".hidden.ttf", "absent.ttf" }) {
        write(QStringLiteral("Font/") + QLatin1String(name), listed);
    }
    QVERIFY(QFile::link(sans(), QStringLiteral("Font/link.ttf")));

    QVERIFY(QFile::copy(mono(), QStringLiteral("fonts/mono.ttf")));
    write(QStringLiteral("fonts/bad.ttf"), "this is no font");
    QVERIFY(QFile::copy(sans(), QStringLiteral("fonts/pair.ttf")));
    QVERIFY(QFile::copy(mono(), QStringLiteral("fonts/pair.otf")));
    QVERIFY(QFile::copy(sans(), QStringLiteral("fonts/abc")));
    QVERIFY(QFile::copy(sans(), QStringLiteral("fonts/.hidden.ttf")));
    QVERIFY(QFile::copy(sans(), QStringLiteral("fonts/link.ttf")));
    QVERIFY(QFile::copy(sans(), QStringLiteral("fonts/unlisted.ttf")));
    m_listing = OlvGlobal::getFiles(QStringLiteral("Font"));
}

void TestFontJob::nothingIsKnownBefore()
{
    QVERIFY(!OlvGlobal::isReady());
    QVERIFY(OlvGlobal::OlvPluginFonts.isEmpty());
    QCOMPARE(OlvGlobal::desktopSize, QSize(-1, -1));
    QCOMPARE(OlvGlobal::DPI, 0.0);
}

void TestFontJob::getFilesListsRegularFilesOnly()
{
    QStringList sorted = m_listing;
    sorted.sort();
    QCOMPARE(sorted,
             QStringList({ QStringLiteral(".hidden.ttf"), QStringLiteral("abc"),
                           QStringLiteral("abcd"), QStringLiteral("absent.ttf"),
                           QStringLiteral("bad.ttf"), QStringLiteral("mono.ttf"),
                           QStringLiteral("pair.otf"), QStringLiteral("pair.ttf") }));
    QCOMPARE(m_listing,
             QDir(QStringLiteral("Font"))
                 .entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDir::NoSort));
}

void TestFontJob::getFilesOfNoDirectoryIsEmpty()
{
    QCOMPARE(OlvGlobal::getFiles(QStringLiteral("no such directory")), QStringList());
}

void TestFontJob::getFontWithoutAnyFontGivesTheDefaultInTheSize_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("given");
    QTest::newRow("12") << 12 << 12;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("0 gives the default size") << 0 << QFont().pointSize();
    QTest::newRow("negative gives the default size") << -5 << QFont().pointSize();
}

void TestFontJob::getFontWithoutAnyFontGivesTheDefaultInTheSize()
{
    QFETCH(int, asked);
    QFETCH(int, given);
    const QFont font = OlvGlobal::getFont(QStringLiteral("mono"), asked);
    QCOMPARE(font.family(), QFont().family());
    QCOMPARE(font.pointSize(), given);
}

void TestFontJob::initReturnsAtOnceAndTheJobIsReadyOnlyWhenDone()
{
    JobHold hold;
    JobThreads::startJob();
    QTRY_VERIFY(hold.isHolding());
    QVERIFY(!OlvGlobal::isReady());
    QCOMPARE(OlvGlobal::desktopSize, QSize(-1, -1));
    QCOMPARE(OlvGlobal::DPI, 0.0);

    hold.release();
    QTRY_VERIFY(OlvGlobal::isReady());
    QTRY_VERIFY(JobThreads::haveEnded());
}

void TestFontJob::recordsTheScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    QCOMPARE(OlvGlobal::desktopSize, screen->size());
    QCOMPARE(OlvGlobal::DPI, screen->logicalDotsPerInch() / 96.0);
}

void TestFontJob::keysAreFileNamesLessFourCharacters()
{
    QStringList keys = OlvGlobal::OlvPluginFonts.keys();
    keys.sort();
    // "abc" and "abcd" both give the empty key
    QCOMPARE(
        keys,
        QStringList({ QString(), QStringLiteral(".hidden"), QStringLiteral("absent"),
                      QStringLiteral("bad"), QStringLiteral("mono"), QStringLiteral("pair") }));
}

void TestFontJob::idsAreThoseOfTheFontDatabase()
{
    QCOMPARE(OlvGlobal::OlvPluginFonts.value(QStringLiteral("bad"), 99), -1);
    QCOMPARE(OlvGlobal::OlvPluginFonts.value(QStringLiteral("absent"), 99), -1);
    for (const char *key : { "mono", "pair", ".hidden" }) {
        const int id = OlvGlobal::OlvPluginFonts.value(QLatin1String(key), -1);
        QVERIFY2(id >= 0, key);
        QVERIFY2(!QFontDatabase::applicationFontFamilies(id).isEmpty(), key);
    }
}

void TestFontJob::laterFileInTheListingWinsAKey()
{
    const bool otfIsLater = m_listing.indexOf(QStringLiteral("pair.otf"))
        > m_listing.indexOf(QStringLiteral("pair.ttf"));
    QCOMPARE(OlvGlobal::getFont(QStringLiteral("pair"), 10).family(),
             otfIsLater ? QStringLiteral("DejaVu Sans Mono") : QStringLiteral("DejaVu Sans"));

    const bool absentIsLater =
        m_listing.indexOf(QStringLiteral("abcd")) > m_listing.indexOf(QStringLiteral("abc"));
    QCOMPARE(OlvGlobal::OlvPluginFonts.value(QString(), 99) == -1, absentIsLater);
}

void TestFontJob::getFontFindsTheFamilyOfAFile()
{
    const QFont font = OlvGlobal::getFont(QStringLiteral("mono"), 23);
    QCOMPARE(font.family(), QStringLiteral("DejaVu Sans Mono"));
    QCOMPARE(font.pointSize(), 23);
    QCOMPARE(font.weight(), int(QFont::Normal));
    QVERIFY(!font.italic());
}

void TestFontJob::getFontOfAnUnknownKeyGivesTheFirstFamily()
{
    const QFont font = OlvGlobal::getFont(QStringLiteral("never heard of"), 12);
    QCOMPARE(font.family(), QFontDatabase::applicationFontFamilies(0).value(0));
    QCOMPARE(font.pointSize(), 12);
}

void TestFontJob::getFontOfABadFileGivesTheDefault()
{
    const QFont font = OlvGlobal::getFont(QStringLiteral("bad"), 31);
    QCOMPARE(font.family(), QFont().family());
    QCOMPARE(font.pointSize(), 31);
}

void TestFontJob::lookingUpAddsNoKey()
{
    const auto before = OlvGlobal::OlvPluginFonts.size();
    OlvGlobal::getFont(QStringLiteral("one more unknown"), 12);
    QCOMPARE(OlvGlobal::OlvPluginFonts.size(), before);
}

void TestFontJob::secondJobRegistersEverythingAgain()
{
    const int before = OlvGlobal::OlvPluginFonts.value(QStringLiteral("mono"));
    OlvGlobal::desktopSize = QSize();
    OlvGlobal::DPI = 0.0;
    JobThreads::startJob();
    QTRY_VERIFY(JobThreads::haveEnded());
    QVERIFY(OlvGlobal::DPI > 0.0);
    QVERIFY(OlvGlobal::isReady());
    QVERIFY(OlvGlobal::OlvPluginFonts.value(QStringLiteral("mono")) > before);
    QCOMPARE(OlvGlobal::desktopSize, QGuiApplication::primaryScreen()->size());
}

void TestFontJob::withoutADirectoryNothingIsRegistered()
{
    const QTemporaryDir empty;
    QVERIFY(QDir::setCurrent(empty.path()));
    OlvGlobal::OlvPluginFonts.clear();
    OlvGlobal::DPI = 0.0;
    JobThreads::startJob();
    QTRY_VERIFY(JobThreads::haveEnded());
    QVERIFY(OlvGlobal::DPI > 0.0);
    QVERIFY(OlvGlobal::OlvPluginFonts.isEmpty());
    QVERIFY(QDir::setCurrent(m_home.path()));
}

ADD_TEST(TestFontJob, QApplication)
#include "tst_fontjob.moc"
