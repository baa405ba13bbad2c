// SPDX-License-Identifier: MIT
#include "pixels.h"
#include "pointer.h"
#include "testprogram.h"
#include "tile.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

class TestIconButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutAGlyph();
    void derivesItsSizesFromItsWidth_data();
    void derivesItsSizesFromItsWidth();
    void setsTheRestOfItsPropertiesInTheirTypes();
    void checkableUnchecksWhateverTheArgument();
    void freeFunctionNeedsBothFlags();
    void valueIsKeptAsItStands();
    void survivesHostileProperties_data();
    void survivesHostileProperties();
};

void TestIconButton::startsWithoutAGlyph()
{
    QWidget parent;
    OlvIconButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QCOMPARE(button.dynamicPropertyNames(),
             QList<QByteArray>({ "value", "state", "hovered", "clickNumber", "clickTimer" }));
    QCOMPARE(button.property("value"), QVariant(false));
    QCOMPARE(button.property("value").userType(), int(QMetaType::Bool));
    QCOMPARE(button.property("state"), QVariant(QStringLiteral("init")));
    QCOMPARE(button.property("hovered"), QVariant(false));
    QCOMPARE(button.property("clickNumber"), QVariant(0));
    QCOMPARE(button.property("clickNumber").userType(), int(QMetaType::Int));
    QCOMPARE(button.property("clickTimer").userType(), int(QMetaType::ULongLong));
    QCOMPARE(button.children(), QObjectList({ timerOf(button) }));
    QCOMPARE(timerOf(button)->interval(), 400);
    QVERIFY(!timerOf(button)->isSingleShot());
    QVERIFY(!timerOf(button)->isActive());
    QVERIFY(button.icon().isNull());
}

void TestIconButton::derivesItsSizesFromItsWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("part");
    QTest::addColumn<double>("icon");
    QTest::addColumn<double>("text");
    QTest::newRow("100") << 100 << 25 << 39.0 << 13.0;
    QTest::newRow("50") << 50 << 12 << 1.56 * 12 << 12 * 0.52;
    QTest::newRow("3") << 3 << 0 << 0.0 << 0.0;
    QTest::newRow("0") << 0 << 0 << 0.0 << 0.0;
}

void TestIconButton::derivesItsSizesFromItsWidth()
{
    QFETCH(int, width);
    QFETCH(int, part);
    QFETCH(double, icon);
    QFETCH(double, text);
    Tile tile({ width, 80 });
    QCOMPARE(tile.size(), QSize(width, 80));
    QCOMPARE(tile.property("partSize"), QVariant(part));
    QCOMPARE(tile.property("partSize").userType(), int(QMetaType::Int));
    QCOMPARE(tile.property("iconSize").userType(), int(QMetaType::Double));
    QCOMPARE(tile.property("iconSize").toDouble(), icon);
    QCOMPARE(tile.property("textSize").userType(), int(QMetaType::Double));
    QCOMPARE(tile.property("textSize").toDouble(), text);
    tile.resize(400, 400);
    QCOMPARE(tile.property("partSize"), QVariant(part));
}

void TestIconButton::setsTheRestOfItsPropertiesInTheirTypes()
{
    QWidget parent;
    OlvIconButton tile(QLatin1Char('x'), QStringLiteral("text"), QStringLiteral("family"), &parent,
                       40, 50);
    QCOMPARE(tile.parentWidget(), &parent);
    QCOMPARE(tile.property("family"), QVariant(QStringLiteral("family")));
    QCOMPARE(tile.property("icon").userType(), int(QMetaType::QChar));
    QCOMPARE(tile.icon(), QChar(QLatin1Char('x')));
    QCOMPARE(tile.property("text"), QVariant(QStringLiteral("text")));
    QCOMPARE(tile.property("color").userType(), int(QMetaType::UInt));
    QCOMPARE(tile.property("color").toUInt(), 0xff00ffffU);
    QCOMPARE(tile.dynamicPropertyNames().mid(5),
             QList<QByteArray>(
                 { "partSize", "iconSize", "textSize", "family", "icon", "text", "color" }));
}

void TestIconButton::checkableUnchecksWhateverTheArgument()
{
    Tile tile;
    for (const bool checkable : { true, false }) {
        tile.setProperty("isChecked", true);
        tile.setCheckable(checkable);
        QCOMPARE(tile.property("isCheckable"), QVariant(checkable));
        QCOMPARE(tile.property("isChecked"), QVariant(false));
    }
}

void TestIconButton::freeFunctionNeedsBothFlags()
{
    Tile tile;
    QVERIFY(!isChecked(&tile));
    tile.setProperty("isChecked", true);
    QVERIFY(!isChecked(&tile));
    tile.setProperty("isCheckable", true);
    QVERIFY(isChecked(&tile));
    tile.setProperty("isChecked", false);
    QVERIFY(!isChecked(&tile));
    QVERIFY(!isChecked(nullptr));
}

void TestIconButton::valueIsKeptAsItStands()
{
    Tile tile;
    QSignalSpy changed(&tile, &OlvWidget::valueChanged);
    for (const QVariant &value : { QVariant(5), QVariant(QStringLiteral("x")), QVariant() }) {
        tile.setValue(value);
        QCOMPARE(tile.getValue(), value);
    }
    // what converts to true becomes false at the next release
    tile.setValue(5);
    Pointer::click(tile);
    QCOMPARE(tile.getValue(), QVariant(false));
    QCOMPARE(changed.count(), 0);
}

void TestIconButton::survivesHostileProperties_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : { "value", "state", "hovered", "clickNumber", "clickTimer", "partSize",
                              "family", "icon", "text", "color", "isCheckable", "isChecked" }) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestIconButton::survivesHostileProperties()
{
    QFETCH(QByteArray, name);
    for (const QVariant &value :
         { QVariant(), QVariant(QStringLiteral("text")), QVariant(0xdeadbeefULL),
           QVariant(std::numeric_limits<int>::max()), QVariant(std::numeric_limits<int>::min()),
           QVariant(1e300), QVariant(QRect(1, 2, 3, 4)) }) {
        Tile tile;
        tile.setProperty(name.constData(), value);
        QVERIFY(!tile.grab().isNull());
        Pointer::click(tile);
        QVERIFY(!tile.grab().isNull());
        tile.icon();
    }
}

ADD_TEST(TestIconButton, QApplication)
#include "tst_iconbutton.moc"
