// SPDX-License-Identifier: MIT
#include "foundation/caption_p.h"
#include "foundation/shape_p.h"
#include "pixels.h"

#include <OlvWidgets/foundation.h>

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

#include <functional>

namespace {

/** A pen that no caption is written with: while the painter has it, the caption was copied. */
const QPen untouched(QColor(1, 2, 3), 7, Qt::DotLine);
const QColor blue(64, 158, 255);
constexpr QSize buttonSize(120, 36);

QString family()
{
    return QStringLiteral("宋体");
}

/** A button's look: what is drawn, and how the same is drawn by QPainter alone. */
struct Scene
{
    Caption caption;
    QRect rect;
    int radius;
    QColor fill;
    int lineWidth;

    Shape shape() const
    {
        return Shape::roundedRect(rect, radius);
    }
};

Scene sceneOf(const QString &text, QSize size = buttonSize)
{
    return { { text, Qt::white, family(), 9 }, QRect(QPoint(), size), size.height() / 5, blue, 0 };
}

void drawGround(const Scene &scene, QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    scene.shape().fill(painter, scene.fill);
    if (scene.lineWidth > 0) {
        scene.shape().stroke(painter, QColor(179, 216, 255), scene.lineWidth);
    }
}

/** Returns whether the caption was copied. */
bool draw(const Scene &scene, QPainter &painter)
{
    drawGround(scene, painter);
    painter.setPen(untouched);
    scene.caption.draw(painter, { scene.shape(), scene.fill, scene.lineWidth });
    return painter.pen() == untouched;
}

void drawReference(const Scene &scene, QPainter &painter)
{
    drawGround(scene, painter);
    const Caption &caption = scene.caption;
    QFont font(caption.family, caption.pointSize);
    font.setPointSize(OlvGlobal::adaptDocumentToPointSize(caption.text, scene.rect.size(), font));
    painter.setFont(font);
    painter.setPen(caption.color);
    painter.drawText(scene.rect, Qt::AlignCenter, caption.text);
}

using Prepare = std::function<void(QWidget &)>;

/** Where and how a widget is drawn. */
struct Target
{
    QImage::Format format = QImage::Format_ARGB32_Premultiplied;
    QPoint offset = QPoint(0, 0);
    QRegion region = {};
    Prepare prepare = [](QWidget & /*widget*/) {
    };
    bool isPainted = false; ///< drawn by a painter that somebody else has opened on the image
};

QImage pictureOn(const Target &target, QSize size, const DrawnWidget::Draw &paint)
{
    DrawnWidget widget(size, paint);
    target.prepare(widget);
    QImage image(size + QSize(60, 60), target.format);
    image.fill(QColor(200, 180, 30));
    const QRegion region = target.region.isEmpty() ? QRegion(widget.rect()) : target.region;
    const QPoint place = QPoint(20, 25) + target.offset + region.boundingRect().topLeft();
    if (target.isPainted) {
        QPainter painter(&image);
        widget.render(&painter, place, region, QWidget::RenderFlags());
    } else {
        widget.render(&image, place, region, QWidget::RenderFlags());
    }
    return image;
}

/** How often the caption has been copied in @p pictures, which follow each other. */
int copiesIn(const Scene &scene, const Target &target, int pictures)
{
    int copies = 0;
    for (int i = 0; i < pictures; ++i) {
        pictureOn(target, scene.rect.size(),
                  [&](QPainter &painter) { copies += draw(scene, painter); });
    }
    return copies;
}

/** Draws @p scene until it may have been kept; whether it was copied then, as it should be. */
void comparePictures(const Scene &scene, const Target &target, bool *wasCopied)
{
    QImage actual;
    const QSize size = scene.rect.size();
    for (int round = 0; round < 3; ++round) {
        actual =
            pictureOn(target, size, [&](QPainter &painter) { *wasCopied = draw(scene, painter); });
    }
    const QImage expected =
        pictureOn(target, size, [&](QPainter &painter) { drawReference(scene, painter); });
    COMPARE_PICTURES(actual, expected);
}

/** Texts of every kind, of which those that are no wider than a button's middle are copied. */
QStringList texts()
{
    return { QStringLiteral("Get started"),
             QStringLiteral("W"),
             QStringLiteral("确定"),
             QStringLiteral("中文 and more"),
             QStringLiteral("שלום a b"),
             QStringLiteral("a\nb"),
             QStringLiteral("tab\there"),
             QStringLiteral("e\u0301\u0302 g\u0323"),
             QStringLiteral("fi ffi AVAT"),
             QStringLiteral("&amp & <b>"),
             QStringLiteral("ÄÖ|_gjq"),
             QStringLiteral("A caption that is much longer than what a button has room for"),
             QStringLiteral("wwwwwwwwwwwwwwwwwwwwwwwwwww"),
             QString(QChar(0xd800)) + QLatin1Char('x'),
             QStringLiteral("\U0001F600 ok") };
}

using Change = std::function<void(QPainter &, Scene &)>;

} // namespace

Q_DECLARE_METATYPE(Target)
Q_DECLARE_METATYPE(Change)

class TestCaption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheVeryPixels_data();
    void writesTheVeryPixels();
    void writesTheVeryPixelsInEverySize();
    void writesTheVeryPixelsInTheWidgetsFont_data();
    void writesTheVeryPixelsInTheWidgetsFont();
    void smoothsAsTheFontsAreSetUp();
    void copiesWhatIsPlainAlone();
    void writesDirectlyWhereCopyingIsNotProven_data();
    void writesDirectlyWhereCopyingIsNotProven();
    void writesDirectlyWhatComesOnce();
    void keepsNoneThatIsPartlyExposed();
    void writesSpaces();
    void noticesOtherFonts();
    void noticesASubstitute();
    void forgetsWhatIsOldest();
};

void TestCaption::writesTheVeryPixels_data()
{
    QTest::addColumn<Target>("target");
    for (const QImage::Format format :
         { QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32 }) {
        for (const QPoint offset :
             { QPoint(0, 0), QPoint(3, 7), QPoint(-31, -40), QPoint(35, 33) }) {
            QTest::addRow("format %d, %d, %d further", int(format), offset.x(), offset.y())
                << Target{ format, offset };
        }
        QTest::addRow("format %d, by another painter", int(format))
            << Target{ format, {}, {}, [](QWidget & /*widget*/) {}, true };
        QTest::addRow("format %d, two parts", int(format))
            << Target{ format, {}, QRegion(0, 0, 41, 36) | QRegion(57, 12, 40, 9) };
    }
}

void TestCaption::writesTheVeryPixels()
{
    QFETCH(Target, target);
    for (const QString &text : texts()) {
        for (const int lineWidth : { 0, 2 }) {
            for (const int radius : { 0, 7, 18 }) {
                Scene scene = sceneOf(text);
                scene.lineWidth = lineWidth;
                scene.radius = radius;
                bool wasCopied = false;
                comparePictures(scene, target, &wasCopied);
                QVERIFY2(wasCopied || text.size() > 12, qUtf8Printable(text));
            }
        }
        Scene scene = sceneOf(text);
        scene.fill = QColor::fromHsvF(0.31, 0.7, 0.9);
        scene.caption.color = QColor::fromHsvF(0.77, 0.9, 0.3, 0.61);
        scene.caption.pointSize = 12;
        bool wasCopied = false;
        comparePictures(scene, target, &wasCopied);
    }
}

void TestCaption::writesTheVeryPixelsInEverySize()
{
    QRandomGenerator random(7);
    int copies = 0;
    for (int i = 0; i < 1000; ++i) {
        const QSize size(random.bounded(1, 130), random.bounded(1, 50));
        Scene scene = sceneOf(texts().at(random.bounded(texts().size())), size);
        scene.radius = random.bounded(40);
        scene.lineWidth = random.bounded(2) * random.bounded(4);
        bool wasCopied = false;
        comparePictures(scene, { QImage::Format_RGB32 }, &wasCopied);
        copies += wasCopied;
    }
    QVERIFY2(copies > 300, QByteArray::number(copies).constData());
}

void TestCaption::writesTheVeryPixelsInTheWidgetsFont_data()
{
    QTest::addColumn<Target>("target");
    const auto addFont = [](const char *name, const std::function<void(QFont &)> &change) {
        QTest::newRow(name) << Target{ QImage::Format_RGB32, {}, {}, [=](QWidget &widget) {
                                          QFont font = widget.font();
                                          change(font);
                                          widget.setFont(font);
                                      } };
    };
    addFont("as it is", [](QFont & /*font*/) {});
    addFont("bold", [](QFont &font) { font.setBold(true); });
    addFont("italic", [](QFont &font) { font.setItalic(true); });
    addFont("underlined", [](QFont &font) { font.setUnderline(true); });
    addFont("struck out", [](QFont &font) { font.setStrikeOut(true); });
    addFont("spaced", [](QFont &font) { font.setLetterSpacing(QFont::AbsoluteSpacing, 1.3); });
    addFont("small capitals", [](QFont &font) { font.setCapitalization(QFont::SmallCaps); });
    addFont("stretched", [](QFont &font) { font.setStretch(140); });
    addFont("aliased", [](QFont &font) { font.setStyleStrategy(QFont::NoAntialias); });
    addFont("unhinted", [](QFont &font) { font.setHintingPreference(QFont::PreferNoHinting); });
    addFont("of another family",
            [](QFont &font) { font.setFamily(QStringLiteral("DejaVu Serif")); });
    QTest::newRow("from right to left")
        << Target{ QImage::Format_RGB32, {}, {}, [](QWidget &widget) {
                      widget.setLayoutDirection(Qt::RightToLeft);
                  } };
}

void TestCaption::writesTheVeryPixelsInTheWidgetsFont()
{
    QFETCH(Target, target);
    for (const QString &text : texts()) {
        bool wasCopied = false;
        comparePictures(sceneOf(text), target, &wasCopied);
        QVERIFY2(wasCopied || text.size() > 12, qUtf8Printable(text));
    }
}

void TestCaption::smoothsAsTheFontsAreSetUp()
{
    Scene scene = sceneOf(QStringLiteral("Smooth"));
    scene.fill = Qt::white;
    scene.caption.color = Qt::black;
    for (int round = 0; round < 3; ++round) {
        const QImage picture = pictureOn({ QImage::Format_RGB32 }, buttonSize,
                                         [&](QPainter &painter) { draw(scene, painter); });
        const QImage middle = picture.copy(QRect(QPoint(40, 35), QSize(80, 16)));
        // a screen's pixel has parts in three colours, which a run of this program is told of
        QCOMPARE(!middle.allGray(), qEnvironmentVariableIsSet("FONTCONFIG_FILE"));
    }
}

void TestCaption::copiesWhatIsPlainAlone()
{
    QRandomGenerator random(11);
    int plain = 0;
    for (int i = 0; i < 10000; ++i) {
        const QRect rect(2, 2, random.bounded(1, 60), random.bounded(1, 40));
        const int radius = random.bounded(30);
        const int lineWidth = random.bounded(4);
        const Shape shape =
            random.bounded(4) > 0 ? Shape::roundedRect(rect, radius) : Shape::ellipse(rect);
        const QRect part(rect.topLeft() + QPoint(random.bounded(-2, 20), random.bounded(-2, 20)),
                         QSize(random.bounded(1, 40), random.bounded(1, 20)));
        if (!shape.isPlain(part, lineWidth)) {
            continue;
        }
        ++plain;
        QImage image(70, 50, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        shape.fill(painter, Qt::red);
        if (lineWidth > 0) {
            shape.stroke(painter, Qt::green, lineWidth);
        }
        QImage expected(part.size(), QImage::Format_RGB32);
        expected.fill(Qt::red);
        COMPARE_PICTURES(image.copy(part), expected);
    }
    QVERIFY2(plain > 200, QByteArray::number(plain).constData());
}

void TestCaption::writesDirectlyWhereCopyingIsNotProven_data()
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

void TestCaption::writesDirectlyWhereCopyingIsNotProven()
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

void TestCaption::writesDirectlyWhatComesOnce()
{
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Once")), {}, 1), 0);
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Often")), {}, 5), 3);
    Scene other = sceneOf(QStringLiteral("Often"));
    other.caption.color = Qt::black;
    QCOMPARE(copiesIn(other, {}, 1), 0);
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Often"), buttonSize + QSize(1, 0)), {}, 1), 0);
    QCOMPARE(copiesIn(sceneOf(QStringLiteral("Often")), { QImage::Format_RGB32 }, 1), 0);
}

void TestCaption::keepsNoneThatIsPartlyExposed()
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

void TestCaption::writesSpaces()
{
    bool wasCopied = false;
    comparePictures(sceneOf(QStringLiteral("  ")), {}, &wasCopied);
    QVERIFY(wasCopied);
}

void TestCaption::noticesOtherFonts()
{
    const Scene scene = sceneOf(QStringLiteral("Fonts"));
    QCOMPARE(copiesIn(scene, {}, 3), 1);
    Q_EMIT qApp->fontDatabaseChanged();
    QCOMPARE(copiesIn(scene, {}, 1), 0);
    bool wasCopied = false;
    comparePictures(scene, {}, &wasCopied);
}

void TestCaption::noticesASubstitute()
{
    const Scene scene = sceneOf(QStringLiteral("Substitute"));
    QCOMPARE(copiesIn(scene, {}, 3), 1);
    QFont::insertSubstitution(family(), QStringLiteral("DejaVu Serif"));
    QCOMPARE(copiesIn(scene, {}, 1), 0);
    bool wasCopied = false;
    comparePictures(scene, {}, &wasCopied);
    QFont::removeSubstitutions(family());
    comparePictures(scene, {}, &wasCopied);
}

void TestCaption::forgetsWhatIsOldest()
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

QTEST_MAIN(TestCaption)
#include "tst_caption.moc"
