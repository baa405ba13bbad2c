// SPDX-License-Identifier: MIT
#include "colors.h"
#include "gallerywindow.h"
#include "patience.h"
#include "pixels.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QApplication>
#include <QDir>
#include <QFontInfo>
#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

struct Outcome
{
    int code;
    QString errors;
};

Outcome runGallery(const QStringList &arguments, const QString &scale = QStringLiteral("1"))
{
    QProcess gallery;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), scale);
    gallery.setProcessEnvironment(environment);
    gallery.start(QStringLiteral(OLV_GALLERY), arguments);
    const bool finished = gallery.waitForFinished(60000);
    return { finished && gallery.exitStatus() == QProcess::NormalExit ? gallery.exitCode() : -1,
             QString::fromUtf8(gallery.readAllStandardError()) };
}

/** Where a colour comes first, going down the rows. */
QPoint firstOf(const QImage &image, QRgb color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color) {
                return { x, y };
            }
        }
    }
    return {};
}

template <typename Widget> bool shows(const QWidget &page)
{
    const QList<Widget *> widgets = page.findChildren<Widget *>();
    return std::any_of(widgets.cbegin(), widgets.cend(), [](const Widget *widget) {
        return widget->isVisible() && !widget->visibleRegion().isEmpty();
    });
}

} // namespace

class TestGalleryOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAPictureOfEveryPage();
    void writesAPictureOfOnePage();
    void laysOutFromTheRight();
    void refusesAPageThatItDoesNotHave();
    void refusesAFolderThatItCannotWriteTo();
    void findsPagesByNameWhateverTheCase();
    void overviewShowsEveryWidget();
    void darkOptionPutsEveryPageOnADarkBackground();
    void lineEditsAreReadableOnEveryBackground_data();
    void lineEditsAreReadableOnEveryBackground();
    void boxAroundFittedTextIsWholeAtEveryScale_data();
    void boxAroundFittedTextIsWholeAtEveryScale();
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
        QVERIFY2(qGray(picture.pixel(picture.width() - 1, 0)) > 192, qPrintable(file));
        QVERIFY2(colorCount(picture) > 20, qPrintable(file));
    }
}

void TestGalleryOnServer::writesAPictureOfOnePage()
{
    const QTemporaryDir home;
    const Outcome outcome = runGallery({ QStringLiteral("--page"), QStringLiteral("Forms"),
                                         QStringLiteral("--screenshots"), home.path() });
    QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
    QCOMPARE(QDir(home.path()).entryList(QDir::Files), QStringList(QStringLiteral("forms.png")));
}

void TestGalleryOnServer::laysOutFromTheRight()
{
    const QTemporaryDir home;
    const QString file = home.filePath(QStringLiteral("forms.png"));
    const QStringList arguments{ QStringLiteral("--page"), QStringLiteral("Forms"),
                                 QStringLiteral("--screenshots"), home.path() };
    QCOMPARE(runGallery(arguments).code, 0);
    const QImage left(file);
    QCOMPARE(runGallery(arguments + QStringList(QStringLiteral("--right-to-left"))).code, 0);
    const QImage right(file);
    QCOMPARE(right.size(), left.size());
    // the list of pages, and the page
    const QPoint first(5, left.height() - 5);
    const QPoint last(left.width() - 5, left.height() - 5);
    QVERIFY(left.pixel(first) != left.pixel(last));
    QCOMPARE(right.pixel(last), left.pixel(first));
    QCOMPARE(right.pixel(first), left.pixel(last));
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

void TestGalleryOnServer::overviewShowsEveryWidget()
{
    GalleryWindow gallery;
    gallery.show();
    QVERIFY(QTest::qWaitForWindowExposed(&gallery, patience));
    QCOMPARE(gallery.pageNames().constFirst(), QStringLiteral("Overview"));
    const QWidget &page = *gallery.findChild<QStackedWidget *>()->currentWidget();
    QVERIFY(shows<OlvButton>(page));
    QVERIFY(shows<OlvIconButton>(page));
    QVERIFY(shows<OlvSimpleIconButton>(page));
    QVERIFY(shows<OlvLineEdit>(page));
    QVERIFY(shows<OlvShortcutEdit>(page));
    QVERIFY(shows<OlvSwitch>(page));
    QVERIFY(shows<OlvSlider>(page));
    QVERIFY(shows<OlvControlBar>(page));
    QVERIFY(shows<OlvGridLayout>(page));
    QVERIFY(shows<OlvFlexWidget>(page));
    QCOMPARE(gallery.size(), QSize(1000, 700));
}

void TestGalleryOnServer::darkOptionPutsEveryPageOnADarkBackground()
{
    const QTemporaryDir home;
    const Outcome outcome =
        runGallery({ QStringLiteral("--dark"), QStringLiteral("--screenshots"), home.path() });
    QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
    const QStringList files = QDir(home.path()).entryList({ QStringLiteral("*.png") });
    QCOMPARE(files.count(), GalleryWindow().pageNames().count());
    for (const QString &file : files) {
        const QImage picture(home.filePath(file));
        QVERIFY2(qGray(picture.pixel(picture.width() - 1, 0)) < 64, qPrintable(file));
        QVERIFY2(qGray(picture.pixel(0, picture.height() - 1)) < 64, qPrintable(file));
        QVERIFY2(colorCount(picture) > 20, qPrintable(file));
    }
}

void TestGalleryOnServer::lineEditsAreReadableOnEveryBackground_data()
{
    QTest::addColumn<QPalette>("colors");
    QTest::newRow("light") << lightColors();
    QTest::newRow("dark") << darkColors();
}

void TestGalleryOnServer::lineEditsAreReadableOnEveryBackground()
{
    QFETCH(QPalette, colors);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(colors);
    GalleryWindow gallery;
    gallery.showPage(QStringLiteral("Line edits"));
    gallery.show();
    auto *line =
        static_cast<OlvLineEdit *>(gallery.findChild<QWidget *>(QStringLiteral("iconLine")));
    const auto *text = line->findChild<QLineEdit *>();
    const QImage picture = line->grab().toImage().copy(text->geometry());
    QApplication::setPalette(before);
    int dark = 0;
    int light = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int gray = qGray(picture.pixel(x, y));
            dark += gray < 80 ? 1 : 0;
            light += gray > 250 ? 1 : 0;
        }
    }
    QVERIFY2(dark > 50, qPrintable(QString::number(dark)));
    QVERIFY2(light > 1000, qPrintable(QString::number(light)));
}

void TestGalleryOnServer::boxAroundFittedTextIsWholeAtEveryScale_data()
{
    QTest::addColumn<QString>("scale");
    QTest::newRow("1.5") << QStringLiteral("1.5");
    QTest::newRow("2") << QStringLiteral("2");
}

void TestGalleryOnServer::boxAroundFittedTextIsWholeAtEveryScale()
{
    QFETCH(QString, scale);
    const QTemporaryDir home;
    const Outcome outcome = runGallery({ QStringLiteral("--screenshots"), home.path() }, scale);
    QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
    const QImage picture(home.filePath(QStringLiteral("text-fitting.png")));
    QCOMPARE(picture.size(), QSize(1000, 700) * scale.toDouble());
    const QPoint inside = firstOf(picture, qRgb(236, 245, 255));
    const QRgb edge = qRgb(64, 158, 255);
    QCOMPARE(picture.pixel(inside - QPoint(0, 1)), edge);
    QCOMPARE(picture.pixel(inside - QPoint(1, 0)), edge);
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

ADD_TEST(TestGalleryOnServer, QApplication)
#include "tst_galleryonserver.moc"
