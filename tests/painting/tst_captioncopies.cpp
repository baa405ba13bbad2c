// SPDX-License-Identifier: MIT
#include "captionscene.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <QTest>

#include <thread>

namespace {

using Change = std::function<void(QPainter &, Scene &)>;
using Open = std::function<void(QPainter &)>;

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Open)

class TestCaptionCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesDirectlyWhereCopyingIsNotProven_data();
    void writesDirectlyWhereCopyingIsNotProven();
    void writesDirectlyWhatComesOnce();
    void keepsNoneThatIsPartlyExposed();
    void writesSpaces();
    void noticesFontsOfAnyThread();
    void noticesASubstitute();
    void noticesASubstituteOfTheWidgetsFamily();
    void noticesTheStateOfAnotherPainter_data();
    void noticesTheStateOfAnotherPainter();
    void noticesTheScaleOfAnotherScreen();
    void keepsNoLongText();
    void forgetsWhatIsOldest();
};

void TestCaptionCopies::writesDirectlyWhereCopyingIsNotProven_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("scaled") << Change([](QPainter &painter, Scene &) { painter.scale(2, 2); });
    QTest::newRow("by a part of a pixel")
        << Change([](QPainter &painter, Scene &) { painter.translate(0.5, 0); });
    QTest::newRow("translucent") << Change(
        [](QPainter &painter, Scene &) { painter.setOpacity(0.5); });
    QTest::newRow("clipped") << Change(
        [](QPainter &painter, Scene &) { painter.setClipRect(0, 0, 60, 40); });
    QTest::newRow("on a translucent ground")
        << Change([](QPainter &, Scene &scene) { scene.fill.setAlpha(200); });
    QTest::newRow("in a hollow shape")
        << Change([](QPainter &, Scene &scene) { scene.lineWidth = 40; });
}

void TestCaptionCopies::writesDirectlyWhereCopyingIsNotProven()
{
    QFETCH(Change, change);
    bool wasCopied = true;
    const auto picture = [&](const std::function<void(const Scene &, QPainter &)> &paint) {
        return pictureOn({}, buttonSize, [&](QPainter &painter) {
            Scene changed = sceneOf(QStringLiteral("Direct"));
            change(painter, changed);
            paint(changed, painter);
        });
    };
    QImage actual;
    for (int round = 0; round < 3; ++round) {
        actual = picture(
            [&](const Scene &changed, QPainter &painter) { wasCopied = draw(changed, painter); });
        QVERIFY(!wasCopied);
    }
    COMPARE_PICTURES(actual, picture(drawReference));
}

void TestCaptionCopies::writesDirectlyWhatComesOnce()
{
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Once")), {}, 1), 0);
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Often")), {}, 5), 3);
    Scene other = sceneOf(QStringLiteral("Often"));
    other.caption.color = Qt::black;
    QCOMPARE(copiesIn(other, {}, 1), 0);
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Often"), buttonSize + QSize(1, 0)), {}, 1), 0);
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Often")), { QImage::Format_RGB32 }, 1), 0);
}

void TestCaptionCopies::keepsNoneThatIsPartlyExposed()
{
    const Scene scene = sceneOf(QStringLiteral("Partly"));
    const Target partly{ QImage::Format_RGB32, {}, QRect(0, 0, 119, 36) };
    QCOMPARE(copiesIn(scene, partly, 4), 0);
    QCOMPARE(copiesIn(scene, { QImage::Format_RGB32 }, 3), 1);
    QCOMPARE(copiesIn(scene, partly, 2), 2);
    // half of it lies beyond the image
    const Target halfway{ QImage::Format_RGB32, QPoint(90, 0) };
    const Scene other = sceneOf(QStringLiteral("Halfway"));
    QCOMPARE(copiesIn(other, halfway, 4), 0);
    bool wasCopied = false;
    comparePictures(other, { QImage::Format_RGB32 }, &wasCopied);
    QVERIFY(wasCopied);
}

void TestCaptionCopies::writesSpaces()
{
    bool wasCopied = false;
    comparePictures(sceneOf(QStringLiteral("  ")), {}, &wasCopied);
    QVERIFY(wasCopied);
}

void TestCaptionCopies::noticesFontsOfAnyThread()
{
    const Scene scene = sceneOf(QStringLiteral("Fonts"));
    QCOMPARE(copiesIn(scene, {}, 3), 1);
    std::thread([] { Q_EMIT qGuiApp->fontDatabaseChanged(); }).join();
    QCOMPARE(copiesIn(scene, {}, 3), 1);
    const int font = QFontDatabase::addApplicationFont(QStringLiteral(OLV_TEST_FONT));
    QVERIFY(font >= 0);
    QCOMPARE(copiesIn(scene, {}, 1), 0);
    bool wasCopied = false;
    comparePictures(scene, {}, &wasCopied);
    QVERIFY(wasCopied);
    QVERIFY(QFontDatabase::removeApplicationFont(font));
    QCOMPARE(copiesIn(scene, {}, 1), 0);
}

void TestCaptionCopies::noticesASubstitute()
{
    const Scene scene = sceneOf(QStringLiteral("Substitute"));
    QCOMPARE(copiesIn(scene, {}, 3), 1);
    QFont::insertSubstitution(scene.caption.family, QStringLiteral("DejaVu Serif"));
    QCOMPARE(copiesIn(scene, {}, 1), 0);
    bool wasCopied = false;
    comparePictures(scene, {}, &wasCopied);
    QVERIFY(wasCopied);
    QFont::removeSubstitutions(scene.caption.family);
    comparePictures(scene, {}, &wasCopied);
    QVERIFY(wasCopied);
}

void TestCaptionCopies::noticesASubstituteOfTheWidgetsFamily()
{
    const QString missing = QStringLiteral("No such family");
    Target target;
    target.prepare = [&](QWidget &widget) {
        QFont font = widget.font();
        font.setFamilies({ missing });
        widget.setFont(font);
    };
    const Scene scene = sceneOf(QStringLiteral("Families"));
    QCOMPARE(copiesIn(scene, target, 3), 1);
    QFont::insertSubstitution(missing, QStringLiteral("DejaVu Serif"));
    QCOMPARE(copiesIn(scene, target, 1), 0);
    bool wasCopied = false;
    comparePictures(scene, target, &wasCopied);
    QVERIFY(wasCopied);
    QFont::removeSubstitutions(missing);
    comparePictures(scene, target, &wasCopied);
    QVERIFY(wasCopied);
}

void TestCaptionCopies::noticesTheStateOfAnotherPainter_data()
{
    QTest::addColumn<Open>("change");
    // read from the right, the mark stands on the left
    QTest::newRow("direction") << Open(
        [](QPainter &painter) { painter.setLayoutDirection(Qt::RightToLeft); });
    QTest::newRow("hints") << Open(
        [](QPainter &painter) { painter.setRenderHint(QPainter::TextAntialiasing, false); });
}

void TestCaptionCopies::noticesTheStateOfAnotherPainter()
{
    QFETCH(Open, change);
    Target before;
    before.open = [](QPainter & /*painter*/) {
    };
    Target after;
    after.open = change;
    const Scene scene = sceneOf(QString::fromUtf8(QTest::currentDataTag()) + QLatin1Char('!'));
    QCOMPARE(copiesIn(scene, before, 3), 1);
    QCOMPARE(copiesIn(scene, after, 1), 0);
    bool wasCopied = false;
    comparePictures(scene, after, &wasCopied);
    QVERIFY(wasCopied);
    comparePictures(scene, before, &wasCopied);
    QVERIFY(wasCopied);
}

void TestCaptionCopies::noticesTheScaleOfAnotherScreen()
{
    Target larger;
    larger.dotsPerInch = 144;
    const Scene scene = sceneOf(QStringLiteral("Scale"));
    QCOMPARE(copiesIn(scene, {}, 3), 1);
    QCOMPARE(copiesIn(scene, larger, 1), 0);
    bool wasCopied = false;
    comparePictures(scene, larger, &wasCopied);
    QVERIFY(wasCopied);
    comparePictures(scene, {}, &wasCopied);
    QVERIFY(wasCopied);
    // glyphs of more than 48 pixels are outlines
    larger.dotsPerInch = 400;
    QCOMPARE(copiesIn(scene, larger, 4), 0);
}

void TestCaptionCopies::keepsNoLongText()
{
    const QString text(256, QLatin1Char('l'));
    QCOMPARE(copiesIn(sceneOf(text, QSize(600, 36)), {}, 3), 1);
    QCOMPARE(copiesIn(sceneOf(text + QLatin1Char('l'), QSize(600, 36)), {}, 5), 0);
}

void TestCaptionCopies::forgetsWhatIsOldest()
{
    const auto numbered = [](int number) {
        return sceneOf(QStringLiteral("MMMM %1").arg(number));
    };
    QCOMPARE(copiesIn(numbered(0), {}, 3), 1);
    // some 3 kB each
    for (int number = 1; number < 700; ++number) {
        copiesIn(numbered(number), {}, 2);
    }
    QCOMPARE(copiesIn(numbered(699), {}, 1), 1);
    QCOMPARE(copiesIn(numbered(0), {}, 1), 0);
}

QTEST_MAIN(TestCaptionCopies)
#include "tst_captioncopies.moc"
