// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testprogram.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <QTest>

#include <qpa/qwindowsysteminterface.h>

#include <thread>

namespace {

/** Something that a caption's pixels depend on. */
struct Change
{
    std::function<void(Scene &, Target &)> make;
    std::function<void()> undo = nullptr; ///< what it has done to the program
};

void setMeasuringScale(qreal dotsPerInch)
{
    QWindowSystemInterface::handleScreenLogicalDotsPerInchChange(QGuiApplication::primaryScreen(),
                                                                 dotsPerInch, dotsPerInch);
    QCoreApplication::processEvents();
}

} // namespace

Q_DECLARE_METATYPE(Change)

/** Which captions are copied, and which are written. */
class TestCaptionCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesWhatComesAgain();
    void writesDirectly_data();
    void writesDirectly();
    void capturesNoneThatIsPartlyExposed_data();
    void capturesNoneThatIsPartlyExposed();
    void noticesEachChange_data();
    void noticesEachChange();
    void noticesFontsOfAnyThread();
    void evictsTheLeastRecentlyUsed();
};

void TestCaptionCopies::copiesWhatComesAgain()
{
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Once")), {}, 1), 0);
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Often")), {}, 5), 3);
}

void TestCaptionCopies::writesDirectly_data()
{
    QTest::addColumn<Scene>("scene");
    QTest::addColumn<Target>("target");
    QTest::addColumn<bool>("isDirect");
    Scene scene = sceneOf(QStringLiteral("Direct"));
    scene.fill.setAlpha(200);
    QTest::newRow("on a translucent ground") << scene << Target{} << true;
    scene = sceneOf(QStringLiteral("Direct"));
    scene.lineWidth = 40;
    QTest::newRow("in a hollow shape") << scene << Target{} << true;
    QTest::newRow("of spaces") << sceneOf(QStringLiteral("  ")) << Target{} << true;
    const QString longText(256, QLatin1Char('l'));
    QTest::newRow("long") << sceneOf(longText, QSize(600, 36)) << Target{} << false;
    QTest::newRow("too long") << sceneOf(longText + QLatin1Char('l'), QSize(600, 36)) << Target{}
                              << true;
    QTest::newRow("on a large button")
        << sceneOf(QStringLiteral("Large"), QSize(327, 100)) << Target{} << false;
    QTest::newRow("on a button too large")
        << sceneOf(QStringLiteral("Large"), QSize(328, 100)) << Target{} << true;
    Target target;
    target.dotsPerInch = 384; // 9 points are 48 pixels
    QTest::newRow("of large glyphs")
        << sceneOf(QStringLiteral("I"), QSize(120, 80)) << target << false;
    target.dotsPerInch = 385;
    QTest::newRow("of glyphs too large")
        << sceneOf(QStringLiteral("I"), QSize(120, 80)) << target << true;
    QTest::newRow("in another format than windows have")
        << sceneOf(QStringLiteral("Format")) << Target{ QImage::Format_RGB888 } << true;
}

void TestCaptionCopies::writesDirectly()
{
    QFETCH(Scene, scene);
    QFETCH(Target, target);
    QFETCH(bool, isDirect);
    bool wasCopied = false;
    compareThirdPicture(scene, target, &wasCopied);
    QCOMPARE(wasCopied, !isDirect);
    QCOMPARE(copiesIn(scene, target, 1), int(!isDirect));
}

void TestCaptionCopies::capturesNoneThatIsPartlyExposed_data()
{
    QTest::addColumn<Target>("partly");
    const QImage::Format format = QImage::Format_RGB32;
    QTest::newRow("a column less") << Target{ format, {}, QRect(0, 0, 119, 36) };
    QTest::newRow("two parts") << Target{ format,
                                          {},
                                          QRegion(0, 0, 60, 36) | QRect(61, 0, 59, 36) };
    QTest::newRow("beyond the image's end") << Target{ format, QPoint(90, 0) };
    QTest::newRow("before the image") << Target{ format, QPoint(-70, -30) };
}

void TestCaptionCopies::capturesNoneThatIsPartlyExposed()
{
    QFETCH(Target, partly);
    const Scene scene = sceneOf(QString::fromUtf8(QTest::currentDataTag()).left(8));
    QCOMPARE(copiesIn(scene, partly, 4), 0);
    QCOMPARE(copiesIn(scene, { partly.format }, 3), 1);
    bool wasCopied = false;
    compareThirdPicture(scene, partly, &wasCopied);
    QVERIFY(wasCopied);
}

void TestCaptionCopies::noticesEachChange_data()
{
    QTest::addColumn<Change>("change");
    const auto add = [](const char *name, const Change &change) {
        QTest::newRow(name) << change;
    };
    const QString family = QStringLiteral("No such family");
    const QString substitute = QStringLiteral("DejaVu Serif");
    add("text", { [](Scene &scene, Target &) {
            scene.caption.text += QLatin1Char('.');
        } });
    add("color", { [](Scene &scene, Target &) {
            scene.caption.color = Qt::black;
        } });
    add("family", { [=](Scene &scene, Target &) {
            scene.caption.family = substitute;
        } });
    add("point size", { [](Scene &scene, Target &) {
            scene.caption.pointSize = 8;
        } });
    add("fill", { [](Scene &scene, Target &) {
            scene.fill = Qt::darkGreen;
        } });
    add("line", { [](Scene &scene, Target &) {
            scene.lineWidth = 2;
        } });
    add("radius", { [](Scene &scene, Target &) {
            scene.radius = 9;
        } });
    add("size", { [](Scene &scene, Target &) {
            scene.rect.setWidth(121);
        } });
    add("format", { [](Scene &, Target &target) {
            target.format = QImage::Format_RGB32;
        } });
    add("scale of the screen", { [](Scene &, Target &target) {
            target.dotsPerInch = 144;
        } });
    add("scale of measuring",
        { [](Scene &, Target &) { setMeasuringScale(144); },
          [] {
              setMeasuringScale(100);
          } });
    // read from the right, the mark stands on the left
    add("direction", { [](Scene &, Target &target) {
            target.open = [](QPainter &painter) {
                painter.setLayoutDirection(Qt::RightToLeft);
            };
        } });
    add("hints", { [](Scene &, Target &target) {
            target.open = [](QPainter &painter) {
                painter.setRenderHint(QPainter::TextAntialiasing, false);
            };
        } });
    add("the widget's font", { [](Scene &, Target &target) {
            target.prepare = [](QWidget &widget) {
                QFont font = widget.font();
                font.setBold(true);
                widget.setFont(font);
            };
        } });
    add("substitute",
        { [=](Scene &scene, Target &) {
             QFont::insertSubstitution(scene.caption.family, substitute);
         },
          [] {
              QFont::removeSubstitutions(sceneOf(QString()).caption.family);
          } });
    add("substitute of the widget's families",
        { [=](Scene &, Target &) { QFont::insertSubstitution(family, substitute); },
          [=] {
              QFont::removeSubstitutions(family);
          } });
}

void TestCaptionCopies::noticesEachChange()
{
    QFETCH(Change, change);
    Target before;
    before.dotsPerInch = 100;
    before.open = [](QPainter & /*painter*/) {
    };
    before.prepare = [](QWidget &widget) {
        QFont font = widget.font();
        font.setFamilies({ QStringLiteral("No such family") });
        widget.setFont(font);
    };
    const Scene scene =
        sceneOf(QString::fromUtf8(QTest::currentDataTag()).right(8) + QLatin1Char('!'));
    QCOMPARE(copiesIn(scene, before, 3), 1);

    Scene changed = scene;
    Target after = before;
    change.make(changed, after);
    bool wasCopied = false;
    QCOMPARE(copiesIn(changed, after, 1), 0);
    compareThirdPicture(changed, after, &wasCopied);
    QVERIFY(wasCopied);
    if (change.undo) {
        change.undo();
    }
    compareThirdPicture(scene, before, &wasCopied);
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
    compareThirdPicture(scene, {}, &wasCopied);
    QVERIFY(wasCopied);
    QVERIFY(QFontDatabase::removeApplicationFont(font));
    QCOMPARE(copiesIn(scene, {}, 1), 0);
}

void TestCaptionCopies::evictsTheLeastRecentlyUsed()
{
    const auto numbered = [](int number) {
        return sceneOf(QStringLiteral("MMMM %1").arg(number));
    };
    QCOMPARE(copiesIn(numbered(0), {}, 3), 1);
    // some 4 kB each
    for (int number = 1; number < 600; ++number) {
        copiesIn(numbered(number), {}, 2);
    }
    QCOMPARE(copiesIn(numbered(599), {}, 1), 1);
    QCOMPARE(copiesIn(numbered(0), {}, 1), 0);
}

ADD_TEST(TestCaptionCopies, QApplication)
#include "tst_captioncopies.moc"
