// SPDX-License-Identifier: MIT
#include "pointer.h"
#include "tile.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

/** Writes down what an object's dynamic properties become, as they change. */
class PropertyRecord : public QObject
{
public:
    explicit PropertyRecord(QObject *object)
    {
        object->installEventFilter(this); // clazy:exclude=install-event-filter
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange) {
            const QByteArray name =
                static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName();
            lines.append(QLatin1String(name) + QLatin1Char(' ')
                         + watched->property(name.constData()).toString());
        }
        return QObject::eventFilter(watched, event);
    }
    QStringList lines;
};

} // namespace

class TestIconButtonClicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheMouse_data();
    void followsTheMouse();
    void changesItsPropertiesInOrder();
    void everyMouseButtonCounts();
    void oneClickIsReportedAfterTheInterval();
    void twoReleasesAreADoubleClick();
    void threeReleasesAreOneDoubleClick();
    void slowReleasesAreTwoClicks();
    void releaseOutsideCountsNothing();
    void flipsCheckedWithoutBeingCheckable();
    void zeroReleasesReportADoubleClick();
    void reportsOnceToASlotWithAnEventLoop();
    void survivesDeletionFromItsSignals_data();
    void survivesDeletionFromItsSignals();
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
    const QStringList names = events.split(QLatin1Char(' '));
    for (const QString &name : names) {
        if (name == QLatin1String("enter")) {
            Pointer::enter(tile);
        } else if (name == QLatin1String("leave")) {
            Pointer::leave(tile);
        } else if (name == QLatin1String("press")) {
            Pointer::press(tile);
        } else {
            Pointer::release(tile);
        }
    }
    QCOMPARE(tile.property("state").toString(), state);
    QCOMPARE(tile.property("clickNumber"), QVariant(count));
    QCOMPARE(timerOf(tile)->isActive(), count > 0);
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

void TestIconButtonClicks::oneClickIsReportedAfterTheInterval()
{
    Tile tile;
    QSignalSpy clicked(&tile, &OlvIconButton::clicked);
    QSignalSpy dClicked(&tile, &OlvIconButton::dClicked);
    QElapsedTimer clock;
    clock.start();
    Pointer::click(tile);
    QCOMPARE(tile.getValue(), QVariant(true));
    QCOMPARE(tile.property("isChecked"), QVariant(true));
    QCOMPARE(clicked.count(), 0);
    QVERIFY(clicked.wait());
    // coarse timers may be five in a hundred early
    QVERIFY2(clock.elapsed() >= 375, QByteArray::number(clock.elapsed()).constData());
    QCOMPARE(tile.property("clickNumber"), QVariant(0));
    QTest::qWait(500);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(dClicked.count(), 0);
    QVERIFY(!timerOf(tile)->isActive());
}

void TestIconButtonClicks::twoReleasesAreADoubleClick()
{
    Tile tile;
    QSignalSpy clicked(&tile, &OlvIconButton::clicked);
    QSignalSpy dClicked(&tile, &OlvIconButton::dClicked);
    Pointer::click(tile);
    QTest::qWait(250);
    QElapsedTimer clock;
    clock.start();
    Pointer::click(tile);
    QCOMPARE(tile.getValue(), QVariant(false));
    QCOMPARE(tile.property("isChecked"), QVariant(false));
    QVERIFY(dClicked.wait());
    // the interval begins anew at the second release
    QVERIFY2(clock.elapsed() >= 375, QByteArray::number(clock.elapsed()).constData());
    QCOMPARE(dClicked.count(), 1);
    QCOMPARE(clicked.count(), 0);
}

void TestIconButtonClicks::threeReleasesAreOneDoubleClick()
{
    Tile tile;
    QSignalSpy clicked(&tile, &OlvIconButton::clicked);
    QSignalSpy dClicked(&tile, &OlvIconButton::dClicked);
    for (int i = 0; i < 3; ++i) {
        Pointer::click(tile);
    }
    QVERIFY(dClicked.wait());
    QTest::qWait(450);
    QCOMPARE(dClicked.count(), 1);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(tile.getValue(), QVariant(true));
}

void TestIconButtonClicks::slowReleasesAreTwoClicks()
{
    Tile tile;
    QSignalSpy clicked(&tile, &OlvIconButton::clicked);
    QSignalSpy dClicked(&tile, &OlvIconButton::dClicked);
    Pointer::click(tile);
    QTest::qWait(450);
    Pointer::click(tile);
    QTRY_COMPARE(clicked.count(), 2);
    QCOMPARE(dClicked.count(), 0);
}

void TestIconButtonClicks::releaseOutsideCountsNothing()
{
    Tile tile;
    QSignalSpy clicked(&tile, &OlvIconButton::clicked);
    QSignalSpy dClicked(&tile, &OlvIconButton::dClicked);
    Pointer::enter(tile);
    Pointer::press(tile);
    Pointer::leave(tile);
    Pointer::release(tile);
    QCOMPARE(tile.getValue(), QVariant(false));
    QVERIFY(!tile.property("isChecked").isValid());
    QTest::qWait(450);
    QCOMPARE(clicked.count() + dClicked.count(), 0);
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

void TestIconButtonClicks::zeroReleasesReportADoubleClick()
{
    Tile tile;
    QSignalSpy dClicked(&tile, &OlvIconButton::dClicked);
    Pointer::click(tile);
    tile.setProperty("clickNumber", 0);
    QVERIFY(dClicked.wait());
}

void TestIconButtonClicks::reportsOnceToASlotWithAnEventLoop()
{
    Tile tile;
    int clicks = 0;
    int doubleClicks = 0;
    connect(&tile, &OlvIconButton::clicked, this, [&] {
        ++clicks;
        QTest::qWait(900);
    });
    connect(&tile, &OlvIconButton::dClicked, this, [&] { ++doubleClicks; });
    Pointer::click(tile);
    QTRY_COMPARE(clicks, 1);
    QTest::qWait(50);
    QCOMPARE(clicks, 1);
    QCOMPARE(doubleClicks, 0);
}

void TestIconButtonClicks::survivesDeletionFromItsSignals_data()
{
    QTest::addColumn<int>("releases");
    QTest::newRow("clicked") << 1;
    QTest::newRow("dClicked") << 2;
}

void TestIconButtonClicks::survivesDeletionFromItsSignals()
{
    QFETCH(int, releases);
    const QPointer<Tile> tile(new Tile);
    connect(tile, &OlvIconButton::clicked, this, [=] { delete tile; });
    connect(tile, &OlvIconButton::dClicked, this, [=] { delete tile; });
    for (int i = 0; i < releases; ++i) {
        Pointer::click(*tile);
    }
    QTRY_VERIFY(tile.isNull());
}

QTEST_MAIN(TestIconButtonClicks)
#include "tst_iconbuttonclicks.moc"
