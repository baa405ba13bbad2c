// SPDX-License-Identifier: MIT
#include "captionscene.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

namespace {

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

} // namespace

Q_DECLARE_METATYPE(Target)

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
            << Target{ format, {}, {}, nullptr, [](QPainter & /*painter*/) {
                      } };
        QTest::addRow("format %d, two parts", int(format))
            << Target{ format, {}, QRegion(0, 0, 41, 36) | QRegion(57, 12, 40, 9) };
    }
}

void TestCaption::writesTheVeryPixels()
{
    QFETCH(Target, target);
    const QStringList captions = texts();
    for (const QString &text : captions) {
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
    const QStringList captions = texts();
    for (const QString &text : captions) {
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
        QCOMPARE(!middle.allGray(), qgetenv("OLV_PIXEL_PARTS") == "rgb");
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
        shape.fill(Canvas(painter), Qt::red);
        if (lineWidth > 0) {
            shape.stroke(Canvas(painter), Qt::green, lineWidth);
        }
        QImage expected(part.size(), QImage::Format_RGB32);
        expected.fill(Qt::red);
        COMPARE_PICTURES(image.copy(part), expected);
    }
    QVERIFY2(plain > 200, QByteArray::number(plain).constData());
}

QTEST_MAIN(TestCaption)
#include "tst_caption.moc"
