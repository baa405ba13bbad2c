// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvInt>

#include <QTest>

#include <limits>
#include <type_traits>

namespace {
constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();
} // namespace

class TestInt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainValueOfThreeFields();
    void startsAtItsArgumentUnchecked();
    void incrementsWithinTheRange_data();
    void incrementsWithinTheRange();
    void takesTheMaximumFirstAndKeepsTheMinimumForZero();
    void setterReturnsTheObject();
    void assigningKeepsTheRange();
    void postfixReturnsTheObjectAsItWas();
    void staysAtAMinimumAboveTheMaximum();
};

void TestInt::isAPlainValueOfThreeFields()
{
    QCOMPARE(sizeof(OlvInt), 3 * sizeof(int));
    QVERIFY(std::is_trivially_copyable<OlvInt>::value);
    QVERIFY(std::is_standard_layout<OlvInt>::value);
    OlvInt number(7);
    number.setMin(3);
    number.setMax(9);
    int fields[3];
    memcpy(fields, &number, sizeof fields);
    QCOMPARE(fields[0], 7);
    QCOMPARE(fields[1], 3);
    QCOMPARE(fields[2], 9);
}

void TestInt::startsAtItsArgumentUnchecked()
{
    QCOMPARE(int(OlvInt(0)), 0);
    QCOMPARE(int(OlvInt(50)), 50);
    QCOMPARE(int(OlvInt(-50)), -50);
    const OlvInt constant(4);
    QCOMPARE(int(constant), 4);
}

void TestInt::incrementsWithinTheRange_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("next");
    QTest::newRow("inside") << 0 << 10 << 4 << 5;
    QTest::newRow("below the maximum") << 0 << 10 << 9 << 10;
    QTest::newRow("at the maximum") << 0 << 10 << 10 << 0;
    QTest::newRow("above the maximum") << 0 << 10 << 50 << 0;
    QTest::newRow("below the minimum") << 3 << 10 << -7 << -6;
    QTest::newRow("negative range") << -5 << -2 << -2 << -5;
    QTest::newRow("the largest int") << 0 << largest << largest << 0;
    QTest::newRow("before the largest int") << 0 << largest << largest - 1 << largest;
    QTest::newRow("the smallest maximum") << 0 << smallest << smallest << 0;
    QTest::newRow("the smallest value") << 0 << 10 << smallest << smallest + 1;
}

void TestInt::incrementsWithinTheRange()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, value);
    QFETCH(int, next);
    OlvInt number(0);
    number.setMin(min).setMax(max) = value;
    OlvInt &result = ++number;
    QCOMPARE(&result, &number);
    QCOMPARE(int(number), next);
}

void TestInt::takesTheMaximumFirstAndKeepsTheMinimumForZero()
{
    OlvInt kept(5);
    kept.setRange(5, 0);
    QCOMPARE(int(++kept), 0);

    OlvInt set(5);
    set.setRange(5, 2);
    QCOMPARE(int(++set), 2);
    set.setRange(7, 0) = 7;
    QCOMPARE(int(++set), 2);
    set.setMin(0) = 7;
    QCOMPARE(int(++set), 0);
}

void TestInt::setterReturnsTheObject()
{
    OlvInt number(1);
    QCOMPARE(&number.setRange(3, 1), &number);
    QCOMPARE(&number.setMin(1), &number);
    QCOMPARE(&number.setMax(1), &number);
    QCOMPARE(&(number = 1), &number);
}

void TestInt::assigningKeepsTheRange()
{
    OlvInt number(0);
    number.setRange(3, 1);
    number = 100;
    QCOMPARE(int(number), 100);
    QCOMPARE(int(++number), 1);
}

void TestInt::postfixReturnsTheObjectAsItWas()
{
    OlvInt number(3);
    number.setRange(3, 2);
    OlvInt before = number++;
    QCOMPARE(int(before), 3);
    QCOMPARE(int(number), 2);
    QCOMPARE(int(++before), 2);
}

void TestInt::staysAtAMinimumAboveTheMaximum()
{
    OlvInt number(4);
    number.setMax(5);
    number.setMin(8);
    QCOMPARE(int(++number), 5);
    QCOMPARE(int(++number), 8);
    QCOMPARE(int(++number), 8);
}

ADD_TEST(TestInt, NoApplication)
#include "tst_int.moc"
