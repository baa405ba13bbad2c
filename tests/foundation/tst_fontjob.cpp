// SPDX-License-Identifier: MIT
#include <OlvGlobal>

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QString sans()
{
    return QStringLiteral(OLV_TEST_FONTS "/DejaVuSans.ttf");
}

QString mono()
{
    return QStringLiteral(OLV_TEST_FONTS "/DejaVuSansMono.ttf");
}

/** Lists two files, either of which keeps a job waiting until somebody opens it for writing. */
void makeTwoPipes()
{
    QVERIFY(QDir().mkdir(QStringLiteral("Font")));
    QVERIFY(QDir().mkdir(QStringLiteral("fonts")));
    write(QStringLiteral("Font/a.ttf"), "listed only");
    write(QStringLiteral("Font/b.ttf"), "listed only");
    QCOMPARE(mkfifo("fonts/a.ttf", 0600), 0);
    QCOMPARE(mkfifo("fonts/b.ttf", 0600), 0);
}

} // namespace

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
    void initDoesNotWaitForAJobThatIsStuck();
    void leavingDuringTheJobIsSafe_data();
    void leavingDuringTheJobIsSafe();

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
    for (const char *name : { "slow.ttf", "mono.ttf", "bad.ttf", "pair.ttf", "pair.otf", "abc",
                              "abcd", ".hidden.ttf", "absent.ttf" }) {
        write(QStringLiteral("Font/") + QLatin1String(name), listed);
    }
    QVERIFY(QFile::link(sans(), QStringLiteral("Font/link.ttf")));

    QCOMPARE(mkfifo("fonts/slow.ttf", 0600), 0);
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
    QCOMPARE(
        sorted,
        QStringList({ QStringLiteral(".hidden.ttf"), QStringLiteral("abc"), QStringLiteral("abcd"),
                      QStringLiteral("absent.ttf"), QStringLiteral("bad.ttf"),
                      QStringLiteral("mono.ttf"), QStringLiteral("pair.otf"),
                      QStringLiteral("pair.ttf"), QStringLiteral("slow.ttf") }));
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
    // the job is stuck in a file that nobody writes to yet
    OlvGlobal::init();
    QVERIFY(!OlvGlobal::isReady());
    QCOMPARE(OlvGlobal::desktopSize, QSize(-1, -1));
    QCOMPARE(OlvGlobal::DPI, 0.0);

    // opening it is what the job waits for
    QFile slow(QStringLiteral("fonts/slow.ttf"));
    QVERIFY(slow.open(QIODevice::WriteOnly));
    slow.close();
    QTRY_VERIFY(OlvGlobal::isReady());
}

void TestFontJob::recordsTheScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    QCOMPARE(OlvGlobal::desktopSize, screen->size());
    QTRY_COMPARE(OlvGlobal::DPI, screen->logicalDotsPerInch() / 96.0);
}

void TestFontJob::keysAreFileNamesLessFourCharacters()
{
    QStringList keys = OlvGlobal::OlvPluginFonts.keys();
    keys.sort();
    // "abc" and "abcd" both give the empty key
    QCOMPARE(keys,
             QStringList({ QString(), QStringLiteral(".hidden"), QStringLiteral("absent"),
                           QStringLiteral("bad"), QStringLiteral("mono"), QStringLiteral("pair"),
                           QStringLiteral("slow") }));
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
    const int before = OlvGlobal::OlvPluginFonts.size();
    OlvGlobal::getFont(QStringLiteral("one more unknown"), 12);
    QCOMPARE(OlvGlobal::OlvPluginFonts.size(), before);
}

void TestFontJob::secondJobRegistersEverythingAgain()
{
    const int before = OlvGlobal::OlvPluginFonts.value(QStringLiteral("mono"));
    QVERIFY(QFile::remove(QStringLiteral("Font/slow.ttf")));
    OlvGlobal::desktopSize = QSize();
    OlvGlobal::DPI = 0.0;
    OlvGlobal::init();
    QTRY_VERIFY(OlvGlobal::DPI > 0.0);
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
    OlvGlobal::init();
    QTRY_VERIFY(OlvGlobal::DPI > 0.0);
    QVERIFY(OlvGlobal::OlvPluginFonts.isEmpty());
    QVERIFY(QDir::setCurrent(m_home.path()));
}

void TestFontJob::initDoesNotWaitForAJobThatIsStuck()
{
    const QTemporaryDir home;
    QVERIFY(QDir::setCurrent(home.path()));
    makeTwoPipes();
    OlvGlobal::OlvPluginFonts.clear();
    OlvGlobal::DPI = 0.0;
    OlvGlobal::init();
    // whichever pipe can be opened is the one that the job reads; it gets stuck in the other one
    QString other;
    const auto isPastTheFirst = [&] {
        for (const char *name : { "a", "b" }) {
            const QByteArray pipe = QByteArray("fonts/") + name + ".ttf";
            const int writer = open(pipe.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
            if (writer >= 0) {
                close(writer);
                other = *name == 'a' ? QStringLiteral("b") : QStringLiteral("a");
                return true;
            }
        }
        return false;
    };
    QVERIFY(QTest::qWaitFor(isPastTheFirst));

    QVERIFY(QFile::remove(QStringLiteral("Font/a.ttf")));
    QVERIFY(QFile::remove(QStringLiteral("Font/b.ttf")));
    QCOMPARE(OlvGlobal::DPI, 0.0);
    OlvGlobal::init();
    QTRY_VERIFY(OlvGlobal::DPI > 0.0);
    QCOMPARE(OlvGlobal::OlvPluginFonts.size(), 1);
    QVERIFY(!OlvGlobal::OlvPluginFonts.contains(other));

    OlvGlobal::DPI = 0.0;
    QFile pipe(QStringLiteral("fonts/%1.ttf").arg(other));
    QVERIFY(pipe.open(QIODevice::WriteOnly));
    pipe.close();
    QTRY_VERIFY(OlvGlobal::DPI > 0.0);
    QCOMPARE(OlvGlobal::OlvPluginFonts.value(other, 99), -1);
    QVERIFY(QDir::setCurrent(m_home.path()));
}

void TestFontJob::leavingDuringTheJobIsSafe_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("by returning from main") << QStringLiteral("return");
    QTest::newRow("by exit") << QStringLiteral("exit");
}

void TestFontJob::leavingDuringTheJobIsSafe()
{
    QFETCH(QString, way);
    for (int run = 0; run < 20; ++run) {
        QProcess program;
        program.setWorkingDirectory(m_home.path());
        // what counts is that it does not crash: whoever leaves so early need not clean up
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(OLV_INIT_AND_LEAVE), { way });
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }
}

QTEST_MAIN(TestFontJob)
#include "tst_fontjob.moc"
