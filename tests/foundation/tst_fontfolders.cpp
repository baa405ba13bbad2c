// SPDX-License-Identifier: MIT
#include "fontfiles.h"
#include "fontjobprogram.h"
#include "testprogram.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using FontFiles::write;

namespace {

/** Puts something in the place of the file that is listed as bad.ttf; @p path is under "fonts/". */
using Put = void (*)(const QString &path);

void putPipe(const QString &path)
{
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0666), 0);
}

void putLinkToPipe(const QString &path)
{
    putPipe(path + QLatin1String(".pipe"));
    QVERIFY(QFile::link(path + QLatin1String(".pipe"), path));
}

void putLinkToDevice(const QString &path)
{
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path));
}

void putLinkToNothing(const QString &path)
{
    QVERIFY(QFile::link(QStringLiteral("/no/such/file"), path));
}

void putFolder(const QString &path)
{
    QVERIFY(QDir().mkdir(path));
}

void putNothing(const QString & /*path*/) { }

void putEmptyFile(const QString &path)
{
    write(path);
}

void putText(const QString &path)
{
    write(path, "this is no font");
}

void putUnreadableFont(const QString &path)
{
    QVERIFY(QFile::copy(FontFiles::sans(), path));
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
}

void putHugeSparseFile(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(5LL * 1024 * 1024 * 1024));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A font file with some of its bytes changed, or cut off somewhere. */
QByteArray corrupted(QByteArray font, QRandomGenerator &random)
{
    if (random.bounded(4) == 0) {
        font.truncate(random.bounded(int(font.size())));
        return font;
    }
    for (int change = random.bounded(1, 200); change > 0; --change) {
        // half of the changes go to the header and to what it points at first
        const int size = int(font.size());
        const int range = random.bounded(2) == 0 ? qMin(size, 4096) : size;
        font[random.bounded(range)] = char(random.bounded(256));
    }
    return font;
}

} // namespace

Q_DECLARE_METATYPE(Put)

/**
 * Font folders that hold all sorts of things, read by an ordinary user whose home is read-only. The
 * job reads every name in them, and the program ends as usual.
 */
class TestFontFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void goesOnBehindWhatIsNoFont_data();
    void goesOnBehindWhatIsNoFont();
    void standsCorruptFonts();
    void findsNothingWhereThereIsNoFolder();
    void findsNothingInAnUnreadableFolder();
    void takesStrangeNames();
    void cleanup();

private:
    QString pathOf(const QString &name) const
    {
        return m_home->filePath(name);
    }
    QStringList told();

    std::unique_ptr<QTemporaryDir> m_home;
};

void TestFontFolders::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
    QVERIFY(QDir().mkdir(pathOf(QStringLiteral("Font"))));
    QVERIFY(QDir().mkdir(pathOf(QStringLiteral("fonts"))));
}

void TestFontFolders::cleanup()
{
    // a folder has to be readable and writable to be removed
    for (const QString &path : { m_home->path(), pathOf(QStringLiteral("Font")) }) {
        chmod(QFile::encodeName(path).constData(), 0755);
    }
}

/** What the program tells of its fonts. */
QStringList TestFontFolders::told()
{
    if (chmod(QFile::encodeName(m_home->path()).constData(), 0555) != 0) {
        return {};
    }
    const FontJobRun run = runFontJob(QStringLiteral("tell"), m_home->path());
    if (!run.hasEnded || run.code != 0) {
        return { QStringLiteral("ended badly"), run.errors };
    }
    QStringList lines = run.output.split(QLatin1Char('\n'));
    lines.removeLast(); // behind the last newline is nothing
    return lines;
}

void TestFontFolders::goesOnBehindWhatIsNoFont_data()
{
    QTest::addColumn<Put>("put");
    QTest::newRow("a pipe") << Put(putPipe);
    QTest::newRow("a link to a pipe") << Put(putLinkToPipe);
    QTest::newRow("a link to a device") << Put(putLinkToDevice);
    QTest::newRow("a link to nothing") << Put(putLinkToNothing);
    QTest::newRow("a folder") << Put(putFolder);
    QTest::newRow("nothing") << Put(putNothing);
    QTest::newRow("an empty file") << Put(putEmptyFile);
    QTest::newRow("a text") << Put(putText);
    QTest::newRow("an unreadable file") << Put(putUnreadableFont);
    QTest::newRow("a sparse file of 5 GiB") << Put(putHugeSparseFile);
}

void TestFontFolders::goesOnBehindWhatIsNoFont()
{
    QFETCH(Put, put);
    for (const char *name : { "before", "bad", "behind" }) {
        write(pathOf(QStringLiteral("Font/%1.ttf").arg(QLatin1String(name))));
    }
    QVERIFY(QFile::copy(FontFiles::sans(), pathOf(QStringLiteral("fonts/before.ttf"))));
    QVERIFY(QFile::copy(FontFiles::mono(), pathOf(QStringLiteral("fonts/behind.ttf"))));
    put(pathOf(QStringLiteral("fonts/bad.ttf")));
    QCOMPARE(told(),
             QStringList({ QStringLiteral("bad=bad"), QStringLiteral("before=loaded"),
                           QStringLiteral("behind=loaded") }));
}

void TestFontFolders::standsCorruptFonts()
{
    constexpr int files = 200;
    QRandomGenerator random(20240601);
    const QByteArray font = contentOf(FontFiles::mono());
    QVERIFY(!font.isEmpty());
    for (int i = 0; i < files; ++i) {
        write(pathOf(QStringLiteral("Font/%1.ttf").arg(i)));
        write(pathOf(QStringLiteral("fonts/%1.ttf").arg(i)), corrupted(font, random));
    }
    const QStringList lines = told();
    QVERIFY2(lines.size() == files, qPrintable(lines.join(QLatin1Char('\n'))));
    const auto loaded = lines.filter(QStringLiteral("=loaded")).size();
    QVERIFY2(loaded > 0 && loaded < files, QByteArray::number(loaded).constData());
}

void TestFontFolders::findsNothingWhereThereIsNoFolder()
{
    QVERIFY(QDir().rmdir(pathOf(QStringLiteral("Font"))));
    write(pathOf(QStringLiteral("Font")), "a file instead");
    QCOMPARE(told(), QStringList());
}

void TestFontFolders::findsNothingInAnUnreadableFolder()
{
    write(pathOf(QStringLiteral("Font/a.ttf")));
    QCOMPARE(chmod(QFile::encodeName(pathOf(QStringLiteral("Font"))).constData(), 0), 0);
    QCOMPARE(told(), QStringList());
}

void TestFontFolders::takesStrangeNames()
{
    // 255 bytes are the longest name; the last one is no UTF-8
    for (const QByteArray &name :
         { QByteArray(" .ttf"), QByteArray("...."), QByteArray("a%1\\b.ttf"),
           QByteArray(251, 'x') + ".ttf", QByteArray("\xff\xfe.ttf") }) {
        const QByteArray folder = QFile::encodeName(m_home->path());
        for (const char *sub : { "/Font/", "/fonts/" }) {
            FILE *file = std::fopen((folder + sub + name).constData(), "w");
            QVERIFY(file);
            std::fclose(file);
        }
    }
    const QStringList lines = told();
    QCOMPARE(lines.filter(QStringLiteral("=bad")), lines);
    QVERIFY(lines.contains(QStringLiteral(" =bad")));
    QVERIFY(lines.contains(QString(251, QLatin1Char('x')) + QLatin1String("=bad")));
}

ADD_TEST(TestFontFolders, QCoreApplication)
#include "tst_fontfolders.moc"
