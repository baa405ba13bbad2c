// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include <OlvGlobal>

#include <QDir>
#include <QFontInfo>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Outcome
{
    int code;
    QString errors;
};

Outcome runGallery(const QStringList &arguments)
{
    QProcess gallery;
    gallery.start(QStringLiteral(OLV_GALLERY), arguments);
    const bool finished = gallery.waitForFinished(60000);
    return { finished && gallery.exitStatus() == QProcess::NormalExit ? gallery.exitCode() : -1,
             QString::fromUtf8(gallery.readAllStandardError()) };
}

int colorCount(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors.size();
}

} // namespace

class TestGalleryOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAPictureOfEveryPage();
    void refusesAPageThatItDoesNotHave();
    void refusesAFolderThatItCannotWriteTo();
    void findsPagesByNameWhateverTheCase();
    void putsTheWidgetsOnADarkBackground();
    void shipsTheIconFontUnderBothFolderNames();
};

void TestGalleryOnServer::writesAPictureOfEveryPage()
{
    const QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("new/folder"));
    const Outcome outcome = runGallery({ QStringLiteral("--screenshots"), folder });
    QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
    QCOMPARE(outcome.errors, QString());

    const QStringList files = QDir(folder).entryList({ QStringLiteral("*.png") });
    QCOMPARE(files.count(), GalleryWindow().pageNames().count());
    for (const QString &file : files) {
        const QImage picture(QDir(folder).filePath(file));
        QVERIFY2(picture.width() >= 800 && picture.height() >= 500, qPrintable(file));
        QVERIFY2(colorCount(picture) > 20, qPrintable(file));
    }
}

void TestGalleryOnServer::refusesAPageThatItDoesNotHave()
{
    const Outcome outcome = runGallery({ QStringLiteral("--page"), QStringLiteral("Nowhere") });
    QCOMPARE(outcome.code, 1);
    QVERIFY(outcome.errors.contains(QStringLiteral("There is no page \"Nowhere\"")));
    QVERIFY(outcome.errors.contains(QStringLiteral("Start-up, ")));
}

void TestGalleryOnServer::refusesAFolderThatItCannotWriteTo()
{
    const Outcome outcome =
        runGallery({ QStringLiteral("--screenshots"), QStringLiteral("/proc/nowhere") });
    QCOMPARE(outcome.code, 1);
    QVERIFY(outcome.errors.contains(QStringLiteral("could not be written to /proc/nowhere")));
}

void TestGalleryOnServer::findsPagesByNameWhateverTheCase()
{
    GalleryWindow gallery;
    QVERIFY(gallery.showPage(QStringLiteral("sLIDERS")));
    QVERIFY(!gallery.showPage(QStringLiteral("Slider")));
}

void TestGalleryOnServer::shipsTheIconFontUnderBothFolderNames()
{
    QVERIFY(QDir::setCurrent(QFileInfo(QStringLiteral(OLV_GALLERY)).path()));
    QCOMPARE(OlvGlobal::getFiles(QStringLiteral("Font")),
             QStringList({ QStringLiteral("FontAwesome.otf") }));
    QVERIFY(QFile::exists(QStringLiteral("fonts/FontAwesome.otf")));
    OlvGlobal::init();
    QTRY_VERIFY(OlvGlobal::isReady());
    QCOMPARE(QFontInfo(OlvGlobal::getFont(QStringLiteral("FontAwesome"), 12)).family(),
             QStringLiteral("FontAwesome"));
}

void TestGalleryOnServer::putsTheWidgetsOnADarkBackground()
{
    for (const QString &option : { QString(), QStringLiteral("--dark") }) {
        const QTemporaryDir directory;
        QStringList arguments{ QStringLiteral("--screenshots"), directory.path() };
        if (!option.isEmpty()) {
            arguments << option;
        }
        const Outcome outcome = runGallery(arguments);
        QCOMPARE(outcome.code, 0);
        const QImage picture(directory.filePath(QStringLiteral("overview.png")));
        QVERIFY(!picture.isNull());
        const QPoint corner(picture.width() - 2, 2);
        QCOMPARE(qGray(picture.pixel(corner)) < 64, !option.isEmpty());
    }
}

QTEST_MAIN(TestGalleryOnServer)
#include "tst_galleryonserver.moc"
