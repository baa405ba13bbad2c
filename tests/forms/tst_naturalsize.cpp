// SPDX-License-Identifier: MIT
// OlvFormSupport::naturalSize(): in exact figures, from the metrics of fonts.
#include "deferred.h"
#include "testprogram.h"

#include <OlvWidgets/OlvWidgets>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <limits>

namespace {

/** A caption gets smaller where it does not fit into its button; this is what it has at first. */
constexpr int captionPointSize = 9;

QFont sans(int pointSize)
{
    return QFont(QStringLiteral("Sans"), pointSize);
}

QFontMetrics metricsOfCaption(bool isBold)
{
    QFont font(QStringLiteral("宋体"), captionPointSize);
    font.setBold(isBold);
    return QFontMetrics(font);
}

QString lines(int count)
{
    return QString(count - 1, QLatin1Char('\n'));
}

} // namespace

class TestNaturalSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        runDeferred();
    }
    void ofAButton_data();
    void ofAButton();
    void ofAButtonEndsWhereCaptionsGetSmaller();
    void ofALongTextIsThatOfItsBeginning();
    void ofATile_data();
    void ofATile();
    void ofAGlyph_data();
    void ofAGlyph();
    void ofEdits_data();
    void ofEdits();
    void ofALineEditHasTheRoomThatItsGlyphTakes();
    void ofASwitchAndASlider_data();
    void ofASwitchAndASlider();
    void ofABarIsThatOfItsLayout();
    void ofContainersIsFixed();
    void isEnoughToBeHitUnderASmallFont();
    void isUnknownOfOtherWidgets();
};

void TestNaturalSize::ofAButton_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("isBold");
    for (const bool isBold : { false, true }) {
        for (const char *caption :
             { "", "i", "Save", "Save all and leave", "Save\nall",
               "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW" }) {
            QTest::addRow("\"%.20s\"%s", caption, isBold ? ", bold" : "")
                << QString::fromLatin1(caption) << isBold;
        }
    }
}

void TestNaturalSize::ofAButton()
{
    QFETCH(QString, caption);
    QFETCH(bool, isBold);
    OlvButton button(caption, nullptr);
    QFont font = sans(30); // of which the button takes neither the family nor the size
    font.setBold(isBold);
    button.setFont(font);
    const QFontMetrics metrics = metricsOfCaption(isBold);
    const int line = metrics.height();
    int width = 0;
    const QStringList all = caption.split(QLatin1Char('\n'));
    for (const QString &one : all) {
        width = qMax(width, metrics.horizontalAdvance(one));
    }
    const int lines = int(all.size());
    const int height = lines * line + (lines - 1) * metrics.leading() + line + 2;
    QCOMPARE(OlvFormSupport::naturalSize(&button),
             QSize(qMin(qMax(width + 40, 6 * line), 20 * line), height));
}

void TestNaturalSize::ofAButtonEndsWhereCaptionsGetSmaller()
{
    OlvButton button(QString(100, QLatin1Char('W')), nullptr);
    const QSize size = OlvFormSupport::naturalSize(&button);
    QVERIFY(size.width() <= 400);
    button.setText(QString(1000000, QLatin1Char('W')));
    QCOMPARE(OlvFormSupport::naturalSize(&button), size);
}

void TestNaturalSize::ofALongTextIsThatOfItsBeginning()
{
    OlvButton button(lines(1000), nullptr);
    OlvSimpleIconButton glyph(lines(1000), sans(10));
    const QSize ofLong = OlvFormSupport::naturalSize(&button);
    const QSize ofLongGlyph = OlvFormSupport::naturalSize(&glyph);
    const int line = metricsOfCaption(false).lineSpacing();
    for (const int more : { 0, 1 }) {
        button.setText(lines(256 + more));
        glyph.setText(lines(256 + more));
        const int missing = 1 - more;
        QCOMPARE(OlvFormSupport::naturalSize(&button), ofLong - QSize(0, missing * line));
        // Qt 6 rounds the height of all lines, and not that of each
        const QSize off = OlvFormSupport::naturalSize(&glyph)
            - (ofLongGlyph - QSize(0, missing * QFontMetrics(sans(10)).lineSpacing()));
        QCOMPARE(off.width(), 0);
        QVERIFY(qAbs(off.height()) <= (QT_VERSION >= QT_VERSION_CHECK(6, 0, 0) ? 1 : 0));
    }
}

void TestNaturalSize::ofATile_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<int>("side");
    QTest::newRow("none") << 0 << 80;
    QTest::newRow("negative") << -7 << 80;
    QTest::newRow("least") << 1 << 20;
    QTest::newRow("tiny") << 5 << 20;
    QTest::newRow("small") << 6 << 24;
    QTest::newRow("usual") << 20 << 80;
    QTest::newRow("large") << 249 << 996;
    QTest::newRow("huge") << std::numeric_limits<int>::max() << 1000;
}

void TestNaturalSize::ofATile()
{
    QFETCH(int, part);
    QFETCH(int, side);
    OlvIconButton tile;
    tile.setProperty("partSize", part);
    QCOMPARE(OlvFormSupport::naturalSize(&tile), QSize(side, side));
}

void TestNaturalSize::ofAGlyph_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("pointSize");
    QTest::newRow("none") << QString() << 10;
    QTest::newRow("small") << QStringLiteral("x") << 10;
    QTest::newRow("wide") << QStringLiteral("wide one") << 10;
    QTest::newRow("high") << QStringLiteral("i") << 40;
    QTest::newRow("large") << QStringLiteral("WW") << 40;
}

void TestNaturalSize::ofAGlyph()
{
    QFETCH(QString, text);
    QFETCH(int, pointSize);
    const OlvSimpleIconButton glyph(text, sans(pointSize));
    const QFontMetrics metrics(sans(pointSize));
    // a button of no text has no line either
    const int height = text.isEmpty() ? metrics.size(0, text).height() : metrics.height();
    QCOMPARE(OlvFormSupport::naturalSize(&glyph),
             QSize(qMax(metrics.horizontalAdvance(text) + 10, 30), qMax(height + 10, 30)));
}

void TestNaturalSize::ofEdits_data()
{
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<QString>("glyph");
    QTest::addColumn<bool>("isPassword");
    for (const int pointSize : { 5, 9, 24, 40 }) {
        for (const char *glyph : { "", "i", "mmm", "a glyph that is wider than its text" }) {
            for (const bool isPassword : { false, true }) {
                QTest::addRow("%d points, \"%s\"%s", pointSize, glyph,
                              isPassword ? ", password" : "")
                    << pointSize << QString::fromLatin1(glyph) << isPassword;
            }
        }
    }
}

void TestNaturalSize::ofEdits()
{
    QFETCH(int, pointSize);
    QFETCH(QString, glyph);
    QFETCH(bool, isPassword);
    QWidget form;
    form.setFont(sans(pointSize));
    OlvLineEdit edit(&form);
    edit.setFont(sans(3)); // the text gets its size from the height
    edit.setIcon(glyph);
    edit.setPassWord(isPassword);
    const QFontMetrics metrics(sans(pointSize));
    const int height = std::max({ 20, 2 * pointSize, metrics.height() + 6 });
    const int text = 12 * metrics.horizontalAdvance(QLatin1Char('x'));
    const int glyphWidth = QFontMetrics(sans(height / 2)).boundingRect(glyph).width();
    const int column = std::min(std::max(glyphWidth + 5, height), text);
    QCOMPARE(OlvFormSupport::naturalSize(&edit),
             QSize(column + text + (isPassword ? height : 0), height));

    OlvShortcutEdit shortcut(&form);
    QCOMPARE(OlvFormSupport::naturalSize(&shortcut), QSize(std::min(height, text) + text, height));
}

void TestNaturalSize::ofALineEditHasTheRoomThatItsGlyphTakes()
{
    OlvLineEdit edit;
    const QSize before = OlvFormSupport::naturalSize(&edit);
    edit.resize(before);
    edit.show();
    const int column = edit.lineEdit()->x();
    edit.setIcon(QStringLiteral("mmm"));
    QVERIFY(edit.lineEdit()->x() > column);
    const QSize after = OlvFormSupport::naturalSize(&edit);
    QCOMPARE(after.width() - before.width(), edit.lineEdit()->x() - column);
}

void TestNaturalSize::ofASwitchAndASlider_data()
{
    QTest::addColumn<int>("pointSize");
    for (const int pointSize : { 5, 9, 10, 24 }) {
        QTest::addRow("%d points", pointSize) << pointSize;
    }
}

void TestNaturalSize::ofASwitchAndASlider()
{
    QFETCH(int, pointSize);
    QWidget form;
    form.setFont(sans(pointSize));
    OlvSwitch toggle(&form);
    OlvSlider slider(&form);
    const int line = QFontMetrics(sans(pointSize)).height();
    const int height = qMax(20, line + 9);
    // the knob is as wide as the switch is high, and goes as far again
    QCOMPARE(OlvFormSupport::naturalSize(&toggle), QSize(height + height + 2, height));
    QCOMPARE(OlvFormSupport::naturalSize(&slider), QSize(qMax(100, 7 * line), 30));
}

void TestNaturalSize::ofABarIsThatOfItsLayout()
{
    OlvControlBar bar({}, nullptr);
    QCOMPARE(OlvFormSupport::naturalSize(&bar), bar.sizeHint());
    const auto *button = bar.findChild<QPushButton *>();
    QCOMPARE(OlvFormSupport::naturalSize(button), button->sizeHint());
}

void TestNaturalSize::ofContainersIsFixed()
{
    const OlvGridLayout grid;
    const OlvFlexWidget panel;
    const OlvDragWidget placeholder;
    QCOMPARE(OlvFormSupport::naturalSize(&grid), QSize(240, 160));
    QCOMPARE(OlvFormSupport::naturalSize(&panel), QSize(240, 180));
    QCOMPARE(OlvFormSupport::naturalSize(&placeholder), QSize(80, 80));
}

void TestNaturalSize::isEnoughToBeHitUnderASmallFont()
{
    QWidget window;
    window.setFont(sans(1));
    const QWidgetList widgets{
        new OlvLineEdit(&window), new OlvShortcutEdit(&window),     new OlvSwitch(&window),
        new OlvSlider(&window),   new OlvSimpleIconButton(&window), new OlvIconButton(&window),
        new OlvButton(&window)
    };
    for (const QWidget *widget : widgets) {
        const QSize size = OlvFormSupport::naturalSize(widget);
        QVERIFY2(size.width() >= 20 && size.height() >= 20, widget->metaObject()->className());
    }
}

void TestNaturalSize::isUnknownOfOtherWidgets()
{
    QVERIFY(!OlvFormSupport::naturalSize(nullptr).isValid());
    const QLabel label(QStringLiteral("Label"));
    QVERIFY(!OlvFormSupport::naturalSize(&label).isValid());
    const OlvLineEdit edit;
    QVERIFY(!OlvFormSupport::naturalSize(edit.lineEdit()).isValid());
}

ADD_TEST(TestNaturalSize, QApplication)
#include "tst_naturalsize.moc"
