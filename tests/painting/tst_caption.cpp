// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testprogram.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

namespace {

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

/** Whether a text of texts() is narrower than a button's middle, where it is copied. */
bool isShort(const QString &text)
{
    return text.size() <= 12;
}

} // namespace

/** The pixels of captions, copied or not. */
class TestCaption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheVeryPixels_data();
    void writesTheVeryPixels();
    void writesTheVeryPixelsInEverySize();
    void smoothsAsTheFontsAreSetUp();
};

void TestCaption::writesTheVeryPixels_data()
{
    QTest::addColumn<Target>("target");
    QTest::addColumn<bool>("isCopied");
    for (const QImage::Format format :
         { QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32 }) {
        for (const QPoint offset : { QPoint(0, 0), QPoint(3, 7) }) {
            QTest::addRow("format %d, %d, %d further", int(format), offset.x(), offset.y())
                << Target{ format, offset } << true;
        }
        QTest::addRow("format %d, two parts", int(format))
            << Target{ format, {}, QRegion(0, 0, 41, 36) | QRegion(57, 12, 40, 9) } << true;
    }
    const auto addFont = [](const char *name, const std::function<void(QFont &)> &change) {
        const Target target{ QImage::Format_RGB32, {}, {}, [=](QWidget &widget) {
                                QFont font = widget.font();
                                change(font);
                                widget.setFont(font);
                            } };
        QTest::newRow(name) << target << true;
    };
    addFont("bold", [](QFont &font) { font.setBold(true); });
    addFont("italic", [](QFont &font) { font.setItalic(true); });
    addFont("underlined", [](QFont &font) { font.setUnderline(true); });
    addFont("struck out", [](QFont &font) { font.setStrikeOut(true); });
    addFont("spaced", [](QFont &font) { font.setLetterSpacing(QFont::AbsoluteSpacing, 1.3); });
    addFont("small capitals", [](QFont &font) { font.setCapitalization(QFont::SmallCaps); });
    addFont("stretched", [](QFont &font) { font.setStretch(120); });
    addFont("aliased", [](QFont &font) { font.setStyleStrategy(QFont::NoAntialias); });
    addFont("unhinted", [](QFont &font) { font.setHintingPreference(QFont::PreferNoHinting); });
    addFont("of another family",
            [](QFont &font) { font.setFamily(QStringLiteral("DejaVu Serif")); });

    Target target;
    target.prepare = [](QWidget &widget) {
        widget.setLayoutDirection(Qt::RightToLeft);
    };
    QTest::newRow("from right to left") << target << true;
    target = {};
    target.open = [](QPainter & /*painter*/) {
    };
    QTest::newRow("by another painter") << target << true;
    for (const double factor : { 1.25, 1.5, 1.75 }) {
        target = {};
        target.open = [=](QPainter &painter) {
            painter.scale(factor, factor);
        };
        QTest::addRow("by another painter, %g times as large", factor) << target << false;
        target = {};
        target.devicePixelRatio = factor;
        QTest::addRow("on a screen of %g pixels to a pixel", factor) << target << false;
    }
}

void TestCaption::writesTheVeryPixels()
{
    QFETCH(Target, target);
    QFETCH(bool, isCopied);
    const QStringList captions = texts();
    for (const QString &text : captions) {
        QList<Scene> scenes;
        for (const int lineWidth : { 0, 2 }) {
            for (const int radius : { 7, 18 }) {
                scenes << sceneOf(text);
                scenes.last().lineWidth = lineWidth;
                scenes.last().radius = radius;
            }
        }
        scenes << sceneOf(text);
        scenes.last().fill = QColor::fromHsvF(0.31F, 0.7F, 0.9F);
        scenes.last().caption.color = QColor::fromHsvF(0.77F, 0.9F, 0.3F, 0.61F);
        for (const Scene &scene : qAsConst(scenes)) {
            bool wasCopied = false;
            compareThirdPicture(scene, target, &wasCopied);
            QVERIFY2(wasCopied == isCopied || !isShort(text), qUtf8Printable(text));
        }
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
        compareThirdPicture(scene, { QImage::Format_RGB32 }, &wasCopied);
        copies += wasCopied;
    }
    QVERIFY2(copies > 300, QByteArray::number(copies).constData());
}

void TestCaption::smoothsAsTheFontsAreSetUp()
{
    Scene scene = sceneOf(QStringLiteral("Smooth"));
    scene.fill = Qt::white;
    scene.caption.color = Qt::black;
    for (int round = 0; round < 3; ++round) {
        const QImage picture = pictureOf(scene, { QImage::Format_RGB32 });
        const QImage middle = picture.copy(QRect(QPoint(40, 35), QSize(80, 16)));
        // a screen's pixel has parts in three colours, which a run of this program is told of
        QCOMPARE(!middle.allGray(), qgetenv("OLV_PIXEL_PARTS") == "rgb");
    }
}

ADD_TEST(TestCaption, QApplication)
#include "tst_caption.moc"
