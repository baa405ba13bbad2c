// SPDX-License-Identifier: MIT
#include "painting/contrast_p.h"
#include "testprogram.h"

#include <QTest>

#include <cmath>

namespace {

bool isNear(double one, double other)
{
    return std::abs(one - other) < 0.005;
}

} // namespace

/** The contrast of colours, and colours of a given contrast. */
class TestContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isThatOfTheGuidelines_data();
    void isThatOfTheGuidelines();
    void mixesWhatIsTranslucent();
    void keepsAColorThatIsReadable();
    void changesAColorAsLittleAsItTakes_data();
    void changesAColorAsLittleAsItTakes();
    void endsAtBlackOrWhite();
};

void TestContrast::isThatOfTheGuidelines_data()
{
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("ratio");
    const auto row = [](const char *name, QRgb one, QRgb other, double ratio) {
        QTest::newRow(name) << QColor(one) << QColor(other) << ratio;
    };
    // as known from the guidelines and from their checkers
    row("black on white", 0x000000, 0xffffff, 21.0);
    row("equal", 0x123456, 0x123456, 1.0);
    row("the lightest grey that is readable on white", 0x767676, 0xffffff, 4.542);
    row("one lighter", 0x777777, 0xffffff, 4.478);
    row("red on white", 0xff0000, 0xffffff, 3.998);
    row("green on white", 0x00ff00, 0xffffff, 1.372);
    row("blue on white", 0x0000ff, 0xffffff, 8.592);
    row("of a channel in the straight part", 0x0a0a0a, 0x000000, 1.061);
}

void TestContrast::isThatOfTheGuidelines()
{
    QFETCH(QColor, one);
    QFETCH(QColor, other);
    QFETCH(double, ratio);
    QVERIFY2(isNear(Contrast::ratio(one, other), ratio),
             qPrintable(QString::number(Contrast::ratio(one, other))));
    QCOMPARE(Contrast::ratio(other, one), Contrast::ratio(one, other));
}

void TestContrast::mixesWhatIsTranslucent()
{
    QCOMPARE(Contrast::seen(QColor(0, 0, 0, 255), Qt::white), QColor(0, 0, 0));
    QCOMPARE(Contrast::seen(QColor(0, 0, 0, 0), Qt::white), QColor(255, 255, 255));
    QCOMPARE(Contrast::seen(QColor(10, 110, 210, 51), QColor(60, 60, 60)), QColor(50, 70, 90));
}

void TestContrast::keepsAColorThatIsReadable()
{
    for (const QRgb rgb : { 0x767676U, 0x0000ffU, 0x000000U }) {
        QCOMPARE(Contrast::atLeast(Contrast::readable, QColor(rgb), Qt::white), QColor(rgb));
    }
}

void TestContrast::changesAColorAsLittleAsItTakes_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("ground");
    QTest::newRow("grey on white") << QColor(0x77, 0x77, 0x77) << QColor(Qt::white);
    QTest::newRow("white on white") << QColor(Qt::white) << QColor(Qt::white);
    QTest::newRow("black on black") << QColor(Qt::black) << QColor(Qt::black);
    QTest::newRow("red on dark blue") << QColor(200, 0, 0) << QColor(0, 0, 80);
    QTest::newRow("translucent on white") << QColor(0, 0, 0, 60) << QColor(Qt::white);
}

void TestContrast::changesAColorAsLittleAsItTakes()
{
    QFETCH(QColor, color);
    QFETCH(QColor, ground);
    const QColor found = Contrast::atLeast(Contrast::readable, color, ground);
    const double ratio = Contrast::ratio(found, ground);
    QVERIFY(ratio >= Contrast::readable);
    // a step further, at most two levels of a channel, would be too little
    QVERIFY2(ratio < Contrast::readable * 1.05, qPrintable(QString::number(ratio)));
}

void TestContrast::endsAtBlackOrWhite()
{
    QCOMPARE(Contrast::atLeast(21.0, Qt::red, Qt::white), QColor(Qt::black));
    QCOMPARE(Contrast::atLeast(22.0, Qt::red, Qt::white), QColor(Qt::black));
    QCOMPARE(Contrast::atLeast(22.0, Qt::red, Qt::black), QColor(Qt::white));
    // mid-grey is told from black better than from white
    QCOMPARE(Contrast::atLeast(22.0, Qt::red, QColor(128, 128, 128)), QColor(Qt::black));
}

ADD_TEST(TestContrast, NoApplication)
#include "tst_contrast.moc"
