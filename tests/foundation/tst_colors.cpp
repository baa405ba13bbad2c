// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvWidgets/foundation.h>

#include <QTest>

class TestColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesThreeDecimalChannels_data();
    void writesThreeDecimalChannels();
    void readsThreeDecimalChannels_data();
    void readsThreeDecimalChannels();
    void leavesChannelsOutOfRangeToQColor_data();
    void leavesChannelsOutOfRangeToQColor();
    void comesBackOpaqueAndOtherwiseTheSame();
    void packsChannelsAsQRgba_data();
    void packsChannelsAsQRgba();
};

void TestColors::writesThreeDecimalChannels_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("text");
    QTest::newRow("palette blue") << QColor(64, 158, 255) << QStringLiteral("64,158,255");
    QTest::newRow("no leading zeros") << QColor(5, 0, 50) << QStringLiteral("5,0,50");
    QTest::newRow("no alpha") << QColor(1, 2, 3, 4) << QStringLiteral("1,2,3");
    QTest::newRow("given as hue") << QColor::fromHsv(120, 255, 255) << QStringLiteral("0,255,0");
    QTest::newRow("invalid is black") << QColor() << QStringLiteral("0,0,0");
}

void TestColors::writesThreeDecimalChannels()
{
    QFETCH(QColor, color);
    QFETCH(QString, text);
    QCOMPARE(OlvColorToString(color), text);
}

void TestColors::readsThreeDecimalChannels_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("triple") << QStringLiteral("64,158,255") << QColor(64, 158, 255);
    QTest::newRow("no integer is 0") << QStringLiteral("1,2,x") << QColor(1, 2, 0);
    QTest::newRow("a real is 0") << QStringLiteral("1.5,2,3") << QColor(0, 2, 3);
    QTest::newRow("hexadecimal is 0") << QStringLiteral("0x10,2,3") << QColor(0, 2, 3);
    QTest::newRow("a fourth part is no alpha") << QStringLiteral("1,2,3,4") << QColor(1, 2, 3);
    QTest::newRow("white space") << QStringLiteral(" 1\t, 2 ,\n3 ") << QColor(1, 2, 3);
    QTest::newRow("sign and zeros") << QStringLiteral("+1,-0,003") << QColor(1, 0, 3);
    QTest::newRow("two parts") << QStringLiteral("7,8") << QColor(7, 8, 0);
    QTest::newRow("one part") << QStringLiteral("7") << QColor(7, 0, 0);
    QTest::newRow("name") << QStringLiteral("red") << QColor(0, 0, 0);
    QTest::newRow("empty") << QString() << QColor(0, 0, 0);
    QTest::newRow("empty parts are kept") << QStringLiteral(",,9") << QColor(0, 0, 9);
    QTest::newRow("commas alone") << QStringLiteral(",,") << QColor(0, 0, 0);
    QTest::newRow("too large for an int") << QStringLiteral("99999999999,2,3") << QColor(0, 2, 3);
}

void TestColors::readsThreeDecimalChannels()
{
    QFETCH(QString, text);
    QFETCH(QColor, color);
    const QColor read = OlvColorFromString(text);
    QVERIFY(read.isValid());
    QCOMPARE(read, color);
    QCOMPARE(read.alpha(), 255);
}

void TestColors::leavesChannelsOutOfRangeToQColor_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("red") << QStringLiteral("256,0,0");
    QTest::newRow("green") << QStringLiteral("0,-1,0");
    QTest::newRow("blue") << QStringLiteral("0,0,1000");
}

void TestColors::leavesChannelsOutOfRangeToQColor()
{
    QFETCH(QString, text);
    QTest::ignoreMessage(QtWarningMsg, "QColor::setRgb: RGB parameters out of range");
    QVERIFY(!OlvColorFromString(text).isValid());
}

void TestColors::comesBackOpaqueAndOtherwiseTheSame()
{
    for (int value = 0; value <= 255; ++value) {
        const QColor color(value, 255 - value, (value * 7) % 256, value);
        const QColor back = OlvColorFromString(OlvColorToString(color));
        QCOMPARE(back, QColor(color.red(), color.green(), color.blue(), 255));
    }
}

void TestColors::packsChannelsAsQRgba_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<uint>("packed");
    QTest::newRow("red") << QColor(255, 0, 0) << 0xffff0000U;
    QTest::newRow("each channel") << QColor(0x12, 0x34, 0x56, 0x78) << 0x78123456U;
    QTest::newRow("transparent") << QColor(0, 0, 0, 0) << 0U;
}

void TestColors::packsChannelsAsQRgba()
{
    QFETCH(QColor, color);
    QFETCH(uint, packed);
    QCOMPARE(OlvColorToRgb(color), packed);
    QCOMPARE(OlvColorToRgb(color), qRgba(color.red(), color.green(), color.blue(), color.alpha()));
}

ADD_TEST(TestColors, NoApplication)
#include "tst_colors.moc"
