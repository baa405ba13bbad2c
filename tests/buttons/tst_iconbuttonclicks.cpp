// SPDX-License-Identifier: MIT
#include "pointer.h"
#include "propertyrecord.h"
#include "testprogram.h"
#include "tile.h"

#include <QTest>

namespace {

/** Has the reports of a tile written down as they come. */
void recordReports(const Tile &tile, QStringList &reports)
{
    QObject::connect(&tile, &OlvIconButton::clicked, &tile,
                     [&] { reports.append(QStringLiteral("clicked")); });
    QObject::connect(&tile, &OlvIconButton::dClicked, &tile,
                     [&] { reports.append(QStringLiteral("dClicked")); });
}

} // namespace

class TestIconButtonClicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheMouse_data();
    void followsTheMouse();
    void changesItsPropertiesInOrder();
    void everyMouseButtonCounts();
    void reportsABurstOnce_data();
    void reportsABurstOnce();
    void eachReleaseStartsTheIntervalAnew();
    void flipsCheckedWithoutBeingCheckable();
    void reportsOnceToASlotWithAnEventLoop();
};

void TestIconButtonClicks::followsTheMouse_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("count");
    const auto row = [](const char *events, const char *state, int count) {
        QTest::newRow(events) << QString::fromLatin1(events) << QString::fromLatin1(state) << count;
    };
    row("enter", "hover", 0);
    row("enter leave", "init", 0);
    row("enter press", "click", 0);
    row("enter press leave", "click", 0);
    row("enter press leave release", "init", 0);
    row("enter press leave enter", "hover", 0);
    row("enter press leave enter release", "hover", 1);
    row("enter press release", "hover", 1);
    row("enter press release leave", "init", 1);
    row("enter press release press release", "hover", 2);
    row("press release", "init", 0);
}

void TestIconButtonClicks::followsTheMouse()
{
    QFETCH(QString, events);
    QFETCH(QString, state);
    QFETCH(int, count);
    Tile tile;
    Pointer::play(tile, events);
    QCOMPARE(tile.property("state").toString(), state);
    QCOMPARE(tile.property("clickNumber"), QVariant(count));
    QCOMPARE(timerOf(tile)->isActive(), count > 0);
    const bool isOdd = count % 2 == 1;
    QCOMPARE(tile.getValue(), QVariant(isOdd));
    QCOMPARE(tile.property("isChecked"), count > 0 ? QVariant(isOdd) : QVariant());
}

void TestIconButtonClicks::changesItsPropertiesInOrder()
{
    Tile tile;
    Pointer::enter(tile);
    Pointer::press(tile);
    PropertyRecord record(&tile);
    Pointer::release(tile);
    QCOMPARE(record.lines,
             QStringList({ QStringLiteral("state hover"), QStringLiteral("clickNumber 1"),
                           QStringLiteral("value true"), QStringLiteral("isChecked true") }));
    record.lines.clear();
    QStringList atSignal;
    connect(&tile, &OlvIconButton::clicked, this, [&] { atSignal = record.lines; });
    QTRY_COMPARE(atSignal, QStringList({ QStringLiteral("clickNumber 0") }));
    QCOMPARE(record.lines, atSignal);
}

void TestIconButtonClicks::everyMouseButtonCounts()
{
    Tile tile;
    Pointer::click(tile, Qt::RightButton);
    Pointer::click(tile, Qt::MiddleButton);
    QCOMPARE(tile.property("clickNumber"), QVariant(2));
}

void TestIconButtonClicks::reportsABurstOnce_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("report");
    QTest::newRow("one release") << 1 << QStringLiteral("clicked");
    QTest::newRow("two") << 2 << QStringLiteral("dClicked");
    QTest::newRow("three") << 3 << QStringLiteral("dClicked");
    QTest::newRow("none, by a property that was overwritten") << 0 << QStringLiteral("dClicked");
}

void TestIconButtonClicks::reportsABurstOnce()
{
    QFETCH(int, count);
    QFETCH(QString, report);
    Tile tile;
    QStringList reports;
    recordReports(tile, reports);
    Pointer::click(tile);
    tile.setProperty("clickNumber", count);
    QVERIFY(reports.isEmpty());
    timerOf(tile)->setInterval(1);
    QTRY_COMPARE(reports, QStringList({ report }));
    QCOMPARE(tile.property("clickNumber"), QVariant(0));
    QVERIFY(!timerOf(tile)->isActive());
}

void TestIconButtonClicks::eachReleaseStartsTheIntervalAnew()
{
    Tile tile;
    Pointer::click(tile);
    QTRY_VERIFY(timerOf(tile)->remainingTime() < 300);
    Pointer::click(tile);
    QVERIFY(timerOf(tile)->remainingTime() > 300);
}

void TestIconButtonClicks::flipsCheckedWithoutBeingCheckable()
{
    Tile tile;
    Pointer::click(tile);
    QCOMPARE(tile.property("isChecked"), QVariant(true));
    QVERIFY(!isChecked(&tile));
    tile.setCheckable(true);
    QVERIFY(!isChecked(&tile));
    Pointer::click(tile);
    QVERIFY(isChecked(&tile));
}

void TestIconButtonClicks::reportsOnceToASlotWithAnEventLoop()
{
    Tile tile;
    QStringList reports;
    recordReports(tile, reports);
    connect(&tile, &OlvIconButton::clicked, this, [] { QTest::qWait(20); });
    Pointer::click(tile);
    timerOf(tile)->setInterval(1);
    QTRY_COMPARE(reports, QStringList({ QStringLiteral("clicked") }));
    QVERIFY(!timerOf(tile)->isActive());
}

ADD_TEST(TestIconButtonClicks, QApplication)
#include "tst_iconbuttonclicks.moc"
