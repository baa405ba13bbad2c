// SPDX-License-Identifier: MIT
#include "testprogram.h"
#include "wrappedslowly.h"

#include <OlvGlobal>

#include <QFontInfo>
#include <QFontMetrics>
#include <QTest>

#include <ctime>

namespace {

/** Every character of this font is equally wide, so that tables can count in characters. */
QFont fixedFont()
{
    return QFont(QStringLiteral("DejaVu Sans Mono"), 10);
}

int characterWidth()
{
    return QFontMetrics(fixedFont()).horizontalAdvance(QLatin1Char('m'));
}

/** The smallest width that fits so many characters of the fixed font. */
int widthFor(int characters)
{
    return characters * characterWidth() + 1;
}

} // namespace

class TestTextFitting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void countsTheRunThatTheNextCharacterContinues_data();
    void countsTheRunThatTheNextCharacterContinues();
    void takesOnlyAsciiLettersAndDigitsForRuns();
    void fitsCharactersBelowTheWidth_data();
    void fitsCharactersBelowTheWidth();
    void measuresSingleCharactersWithoutKerning();
    void measuresCharactersAtTheEdgeOfLatin1();
    void addsUpTheWidthsOfLines_data();
    void addsUpTheWidthsOfLines();
    void measuresLinesWithKerning();
    void countsWrappedLines_data();
    void countsWrappedLines();
    void multipliesLinesByTheLineSpacing();
    void keepsThePointSizeOfATextThatFits();
    void shrinksToTheLargestSizeThatFits();
    void stopsAtOnePoint_data();
    void stopsAtOnePoint();
    void endsForFontsSizedInPixels();
    void isQuickFromHugeSizes_data();
    void isQuickFromHugeSizes();
    void handlesAMegabyteOfText();
};

void TestTextFitting::initTestCase()
{
    QVERIFY(QFontInfo(fixedFont()).fixedPitch());
}

void TestTextFitting::countsTheRunThatTheNextCharacterContinues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("next");
    QTest::addColumn<int>("run");
    const auto row = [](const char *name, const char *text, char next, int run) {
        QTest::newRow(name) << QString::fromLatin1(text) << QChar(QLatin1Char(next)) << run;
    };
    row("digits before a digit", "abc12", '3', 2);
    row("digits before a letter", "abc12", 'x', 0);
    row("letters of both cases", "12abC", 'x', 3);
    row("letters before an upper case letter", "12abC", 'X', 3);
    row("hyphen", "abc", '-', 0);
    row("space", "abc", ' ', 0);
    row("empty", "", 'a', 0);
    row("all letters", "Wholly", 'y', 6);
    row("all digits", "0123456789", '0', 10);
    row("letter behind a space", "abc ", 'd', 0);
    row("around the digits", "/", '0', 0);
    row("behind the digits", ":", '0', 0);
    row("before upper case", "@", 'A', 0);
    row("behind upper case", "[", 'A', 0);
    row("before lower case", "`", 'a', 0);
    row("behind lower case", "{", 'a', 0);
    row("next is before the digits", "1", '/', 0);
    row("next is behind the digits", "1", ':', 0);
    row("next is before upper case", "a", '@', 0);
    row("next is behind upper case", "a", '[', 0);
    row("next is before lower case", "a", '`', 0);
    row("next is behind lower case", "a", '{', 0);
    row("limits of letters", "AZaz", 'm', 4);
    row("underscore is no letter", "a_b", 'c', 1);
}

void TestTextFitting::countsTheRunThatTheNextCharacterContinues()
{
    QFETCH(QString, text);
    QFETCH(QChar, next);
    QFETCH(int, run);
    QCOMPARE(OlvGlobal::rightDocumentLine(text, next), run);
}

void TestTextFitting::takesOnlyAsciiLettersAndDigitsForRuns()
{
    QCOMPARE(OlvGlobal::rightDocumentLine(QStringLiteral("abc"), QChar(u'é')), 0);
    QCOMPARE(OlvGlobal::rightDocumentLine(QStringLiteral("abé"), QChar(u'c')), 0);
    QCOMPARE(OlvGlobal::rightDocumentLine(QStringLiteral("éab"), QChar(u'c')), 2);
    QCOMPARE(OlvGlobal::rightDocumentLine(QStringLiteral("12"), QChar(u'٣')), 0);
    QCOMPARE(OlvGlobal::rightDocumentLine(QStringLiteral("中文"), QChar(u'字')), 0);
}

void TestTextFitting::fitsCharactersBelowTheWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("fitting");
    const int one = characterWidth();
    QTest::newRow("empty") << QString() << 100 << 0;
    QTest::newRow("empty, no width") << QString() << 0 << 0;
    QTest::newRow("no width") << QStringLiteral("abc") << 0 << 0;
    QTest::newRow("negative width") << QStringLiteral("abc") << -50 << 0;
    QTest::newRow("exactly three do not fit") << QStringLiteral("abcde") << 3 * one << 2;
    QTest::newRow("a pixel more") << QStringLiteral("abcde") << 3 * one + 1 << 3;
    QTest::newRow("all reach it exactly") << QStringLiteral("abcde") << 5 * one << 4;
    QTest::newRow("all") << QStringLiteral("abcde") << 5 * one + 1 << 5;
    QTest::newRow("one that does not fit") << QStringLiteral("a") << one << 0;
}

void TestTextFitting::fitsCharactersBelowTheWidth()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(int, fitting);
    QCOMPARE(OlvGlobal::accommodate(text, width, fixedFont()), fitting);
}

void TestTextFitting::measuresSingleCharactersWithoutKerning()
{
    const QFont font(QStringLiteral("DejaVu Sans"), 40);
    const QFontMetrics metrics(font);
    const QString text = QStringLiteral("AVAVAV");
    int single = 0;
    for (const QChar character : text) {
        single += metrics.horizontalAdvance(character);
    }
    QVERIFY2(metrics.horizontalAdvance(text) < single, "the font kerns these letters");
    QCOMPARE(OlvGlobal::accommodate(text, single, font), 5);
    QCOMPARE(OlvGlobal::accommodate(text, single + 1, font), 6);
}

void TestTextFitting::measuresCharactersAtTheEdgeOfLatin1()
{
    for (const QChar character : { QChar(0xfe), QChar(0xff), QChar(0x100), QChar(0x101) }) {
        const QString text(4, character);
        QCOMPARE(QFontMetrics(fixedFont()).horizontalAdvance(character), characterWidth());
        for (int characters = 0; characters <= 4; ++characters) {
            QCOMPARE(OlvGlobal::accommodate(text, widthFor(characters), fixedFont()), characters);
        }
    }
}

void TestTextFitting::addsUpTheWidthsOfLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("lines");
    const QFontMetrics metrics(fixedFont());
    const auto advance = [=](const char *line) {
        return metrics.horizontalAdvance(QLatin1String(line));
    };
    QTest::newRow("empty") << QString() << 0 << 1;
    QTest::newRow("one line") << QStringLiteral("abc") << advance("abc") << 1;
    QTest::newRow("two lines") << QStringLiteral("ab\ncd") << advance("ab") + advance("cd") << 2;
    QTest::newRow("an empty line between")
        << QStringLiteral("ab\n\nc") << advance("ab") + advance("c") << 3;
    QTest::newRow("newlines at both ends") << QStringLiteral("\nabcd\n") << advance("abcd") << 3;
}

void TestTextFitting::addsUpTheWidthsOfLines()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(int, lines);
    QCOMPARE(OlvGlobal::autoSize(text, fixedFont()),
             QSize(width, lines * QFontMetrics(fixedFont()).lineSpacing()));
}

void TestTextFitting::measuresLinesWithKerning()
{
    const QFont font(QStringLiteral("DejaVu Sans"), 40);
    const QFontMetrics metrics(font);
    QCOMPARE(OlvGlobal::autoSize(QStringLiteral("AVAV\nTo"), font),
             QSize(metrics.horizontalAdvance(QStringLiteral("AVAV"))
                       + metrics.horizontalAdvance(QStringLiteral("To")),
                   2 * metrics.lineSpacing()));
}

void TestTextFitting::countsWrappedLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("lines");
    const auto row = [](const char *name, const char *text, int width, int lines) {
        QTest::newRow(name) << QString::fromLatin1(text) << width << lines;
    };
    row("empty", "", widthFor(5), 0);
    row("fits", "abcde", widthFor(5), 1);
    row("word carried over whole", "ab cdef", widthFor(5), 2);
    row("space that does not fit starts the line", "abcde fghi", widthFor(5), 2);
    row("the carried space takes its place", "abcde fghij", widthFor(5), 3);
    row("letters do not keep digits", "abc12345", widthFor(5), 2);
    row("digits carried over whole", "ab-12345", widthFor(5), 2);
    row("run as long as a line is split", "abcdefgh", widthFor(5), 2);
    row("run of three lines", "abcdefghijklm", widthFor(5), 3);
    row("long run behind a word", "ab cdefghijk", widthFor(5), 3);
    row("other characters are not kept together", "-------", widthFor(5), 2);
    row("one character a line", "abc", widthFor(1), 3);
    row("no character fits", "abc", 1, 3);
    row("no width", "a b", 0, 3);
    row("negative width", "abc", -7, 3);
    row("newline", "ab\ncd", widthFor(5), 2);
    row("empty line counts as none", "a\n\nb", widthFor(5), 2);
    row("newlines at the ends", "\nab\n", widthFor(5), 1);
    row("newlines alone", "\n\n\n", widthFor(5), 0);
    row("lines are wrapped one by one", "abcdefg\nhijklmn", widthFor(5), 4);
}

void TestTextFitting::countsWrappedLines()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(int, lines);
    QCOMPARE(OlvGlobal::adaptDocumentOfLine(text, width, fixedFont()), lines);
    QCOMPARE(Slowly::lines(text, width, QFontMetrics(fixedFont())), lines);
}

void TestTextFitting::multipliesLinesByTheLineSpacing()
{
    const int spacing = QFontMetrics(fixedFont()).lineSpacing();
    const auto height = [](const char *text) {
        return OlvGlobal::adaptDocumentHeight(QLatin1String(text), widthFor(5), fixedFont());
    };
    QCOMPARE(height(""), 0);
    QCOMPARE(height("abc"), spacing);
    QCOMPARE(height("a\n\nb"), 2 * spacing);
    QCOMPARE(height("ab cdefghijk"), 3 * spacing);
}

void TestTextFitting::keepsThePointSizeOfATextThatFits()
{
    const int spacing = QFontMetrics(fixedFont()).lineSpacing();
    const QString text = QStringLiteral("ab cdef");
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(text, { widthFor(7), spacing }, fixedFont()), 10);
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(text, { widthFor(5), 2 * spacing }, fixedFont()),
             10);
    QVERIFY(OlvGlobal::adaptDocumentToPointSize(text, { widthFor(5), 2 * spacing - 1 }, fixedFont())
            < 10);
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(QString(), { 0, 0 }, fixedFont()), 10);
}

void TestTextFitting::shrinksToTheLargestSizeThatFits()
{
    const QString text = QStringLiteral("A caption that has to shrink until it fits");
    const QSize box(120, 30);
    QFont font(QStringLiteral("DejaVu Sans"), 40);
    const int found = OlvGlobal::adaptDocumentToPointSize(text, box, font);
    QVERIFY(found > 1);
    QVERIFY(found < 40);
    for (int size = 40; size >= found; --size) {
        font.setPointSize(size);
        const bool fits = OlvGlobal::adaptDocumentHeight(text, box.width(), font) <= box.height();
        QCOMPARE(fits, size == found);
    }
}

void TestTextFitting::stopsAtOnePoint_data()
{
    QTest::addColumn<QSize>("box");
    QTest::newRow("no room") << QSize(0, 0);
    QTest::newRow("invalid") << QSize();
    QTest::newRow("no height") << QSize(1000, 0);
    QTest::newRow("negative height") << QSize(1000, -1);
    QTest::newRow("no width") << QSize(0, 10);
}

void TestTextFitting::stopsAtOnePoint()
{
    QFETCH(QSize, box);
    const QString text = QStringLiteral("some text that is quite a bit too long for such a box");
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(text, box, fixedFont()), 1);
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(text, box, QFont(QStringLiteral("x"), 1)), 1);
}

void TestTextFitting::endsForFontsSizedInPixels()
{
    QFont font = fixedFont();
    font.setPixelSize(30);
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(QStringLiteral("ab"), { 500, 500 }, font), -1);
    const int shrunk =
        OlvGlobal::adaptDocumentToPointSize(QStringLiteral("abcdef"), { 60, 20 }, font);
    QVERIFY(shrunk >= 1);
    QVERIFY(shrunk < QFontInfo(font).pointSize());
    font.setPointSize(shrunk);
    QVERIFY(OlvGlobal::adaptDocumentHeight(QStringLiteral("abcdef"), 60, font) <= 20);
    font.setPointSize(shrunk + 1);
    QVERIFY(OlvGlobal::adaptDocumentHeight(QStringLiteral("abcdef"), 60, font) > 20);
}

void TestTextFitting::isQuickFromHugeSizes_data()
{
    QTest::addColumn<QSize>("box");
    QTest::newRow("a caption's box") << QSize(120, 36);
    QTest::newRow("a high box") << QSize(120, 400);
    QTest::newRow("a wide box") << QSize(2000, 40);
    QTest::newRow("a box without room") << QSize(5, 5);
    QTest::newRow("a box without width") << QSize(0, 500);
    QTest::newRow("an invalid box") << QSize(-1, -1);
}

void TestTextFitting::isQuickFromHugeSizes()
{
    QFETCH(QSize, box);
    const QString text = QStringLiteral("A caption of 5 words");
    QFont font = fixedFont();
    // nothing larger than this fits any of the boxes
    font.setPointSize(400);
    const std::clock_t start = std::clock();
    const int expected = Slowly::pointSize(text, box, font);
    const std::clock_t timeOfSlowly = std::clock() - start;
    font.setPointSize(20000);
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(text, box, font), expected);
    font.setPixelSize(20000);
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(text, box, font), expected);
    // trying every size from 20000 points on takes about 50 times as long as from 400 points
    const std::clock_t time = std::clock() - start - timeOfSlowly;
    const double ratio = double(time) / double(timeOfSlowly);
    QVERIFY2(ratio < 10, QByteArray::number(ratio).constData());
}

void TestTextFitting::handlesAMegabyteOfText()
{
    const QString run(1 << 20, QLatin1Char('a'));
    QCOMPARE(OlvGlobal::adaptDocumentOfLine(run, widthFor(16), fixedFont()), (1 << 20) / 16);
    const QString words = QStringLiteral("word ").repeated(1 << 18);
    QVERIFY(OlvGlobal::adaptDocumentOfLine(words, widthFor(10), fixedFont()) >= (1 << 17));
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(words, { 100, 100 }, fixedFont()), 1);
}

ADD_TEST(TestTextFitting, QApplication)
#include "tst_textfitting.moc"
