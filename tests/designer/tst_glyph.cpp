// SPDX-License-Identifier: MIT
#include "glyph.h"
#include "testprogram.h"

#include <QTest>

class TestGlyph : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesACharacterOrItsCode_data();
    void takesACharacterOrItsCode();
    void refusesWhatIsNeither_data();
    void refusesWhatIsNeither();
    void writesCodesThatItTakes();
    void leavesTextsOfOtherLengthsAlone();
};

void TestGlyph::takesACharacterOrItsCode_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("code");
    QTest::newRow("the character") << QString(QChar(0xf005)) << 0xf005;
    QTest::newRow("a letter, though it is a digit of codes") << QStringLiteral("f") << int('f');
    QTest::newRow("a digit") << QStringLiteral("5") << int('5');
    QTest::newRow("a code") << QStringLiteral("f005") << 0xf005;
    QTest::newRow("in capitals") << QStringLiteral("F0AB") << 0xf0ab;
    QTest::newRow("of three digits") << QStringLiteral("3b1") << 0x3b1;
    QTest::newRow("of two digits") << QStringLiteral("40") << int('@');
    QTest::newRow("U+") << QStringLiteral("U+F005") << 0xf005;
    QTest::newRow("as in C") << QStringLiteral("0xf005") << 0xf005;
    QTest::newRow("as in strings") << QStringLiteral("\\uf005") << 0xf005;
    QTest::newRow("as in HTML") << QStringLiteral("&#xf005;") << 0xf005;
    QTest::newRow("with blanks around") << QStringLiteral(" f005 ") << 0xf005;
}

void TestGlyph::takesACharacterOrItsCode()
{
    QFETCH(QString, typed);
    QFETCH(int, code);
    QCOMPARE(glyphFrom(typed), QString(QChar(code)));
}

void TestGlyph::refusesWhatIsNeither_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("nothing") << QString();
    QTest::newRow("blanks") << QStringLiteral("  ");
    QTest::newRow("a word") << QStringLiteral("star");
    QTest::newRow("two characters") << QStringLiteral("@@");
    QTest::newRow("more than a QChar holds") << QStringLiteral("1f600");
    QTest::newRow("a character that is two QChars") << QString::fromUtf8("😀");
    QTest::newRow("half of such a one") << QStringLiteral("d83d");
    QTest::newRow("no character") << QStringLiteral("0000");
    QTest::newRow("a control character") << QStringLiteral("001b");
    QTest::newRow("none that Unicode will ever have") << QStringLiteral("ffff");
}

void TestGlyph::refusesWhatIsNeither()
{
    QFETCH(QString, typed);
    QCOMPARE(glyphFrom(typed), QString());
}

void TestGlyph::writesCodesThatItTakes()
{
    QCOMPARE(glyphCode(QString(QChar(0xf005))), QStringLiteral("f005"));
    QCOMPARE(glyphCode(QStringLiteral("@")), QStringLiteral("0040"));
    QCOMPARE(glyphFrom(glyphCode(QStringLiteral("@"))), QStringLiteral("@"));
}

void TestGlyph::leavesTextsOfOtherLengthsAlone()
{
    QCOMPARE(glyphCode(QString()), QString());
    QCOMPARE(glyphCode(QStringLiteral("abc")), QStringLiteral("abc"));
}

ADD_TEST(TestGlyph, QApplication)
#include "tst_glyph.moc"
