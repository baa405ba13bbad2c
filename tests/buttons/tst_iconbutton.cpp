// SPDX-License-Identifier: MIT
#include "pixels.h"
#include "pointer.h"

#include <OlvIconButton>

#include <QElapsedTimer>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <limits>

namespace {

QTimer *timerOf(const OlvIconButton &button)
{
    return reinterpret_cast<QTimer *>(button.property("clickTimer").toULongLong());
}

/** A tile as an application makes it. */
class Tile : public OlvIconButton
{
public:
    explicit Tile(QSize size = { 100, 100 }, const QString &text = QStringLiteral("邮件"))
        : OlvIconButton(QChar(0xf0e0), text, QStringLiteral("FontAwesome"), nullptr, size.width(),
                        size.height())
    { }
};

} // namespace

class TestIconButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutAGlyph();
    void derivesItsSizesFromItsWidth_data();
    void derivesItsSizesFromItsWidth();
    void setsTheRestOfItsPropertiesInTheirTypes();
    void hasTwoSignalsInOrder();
    void settersStoreAndRepaintNothing();
    void checkableUnchecksWhateverTheArgument();
    void freeFunctionNeedsBothFlags();
    void valueIsKeptAsItStands();
    void followsTheMouse_data();
    void followsTheMouse();
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
    void survivesHostileProperties_data();
    void survivesHostileProperties();
    void draws_data();
    void draws();
    void hoverInvertsTheRedOfTheAccent_data();
    void hoverInvertsTheRedOfTheAccent();
    void drawsOnlyTheFrameWithoutAGlyph();
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

void TestIconButton::hasTwoSignalsInOrder()
{
    const QMetaObject &meta = OlvIconButton::staticMetaObject;
    QCOMPARE(meta.className(), "OlvIconButton");
    QCOMPARE(meta.superClass(), &OlvWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("clicked()"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(), QByteArray("dClicked()"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodType(), QMetaMethod::Signal);
}

void TestIconButton::settersStoreAndRepaintNothing()
{
    class Painted : public Tile
    {
    public:
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent *event) override
        {
            ++paints;
            Tile::paintEvent(event);
        }
    } tile;
    tile.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tile));
    QTest::qWait(20);
    const int before = tile.paints;
    tile.setFontFamily(QStringLiteral("other"));
    tile.setIcon(QLatin1Char('y'));
    tile.setText(QStringLiteral("else"));
    tile.setColor(QColor(1, 2, 3, 4));
    tile.setCheckable(true);
    tile.setValue(12);
    QTest::qWait(20);
    QCOMPARE(tile.paints, before);
    QCOMPARE(tile.property("family"), QVariant(QStringLiteral("other")));
    QCOMPARE(tile.icon(), QChar(QLatin1Char('y')));
    QCOMPARE(tile.property("text"), QVariant(QStringLiteral("else")));
    QCOMPARE(tile.property("color").toUInt(), 0x04010203U);
    QCOMPARE(tile.property("isCheckable"), QVariant(true));
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

void TestIconButton::followsTheMouse_data()
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

void TestIconButton::followsTheMouse()
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

void TestIconButton::everyMouseButtonCounts()
{
    Tile tile;
    Pointer::click(tile, Qt::RightButton);
    Pointer::click(tile, Qt::MiddleButton);
    QCOMPARE(tile.property("clickNumber"), QVariant(2));
}

void TestIconButton::oneClickIsReportedAfterTheInterval()
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

void TestIconButton::twoReleasesAreADoubleClick()
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

void TestIconButton::threeReleasesAreOneDoubleClick()
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

void TestIconButton::slowReleasesAreTwoClicks()
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

void TestIconButton::releaseOutsideCountsNothing()
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

void TestIconButton::flipsCheckedWithoutBeingCheckable()
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

void TestIconButton::zeroReleasesReportADoubleClick()
{
    Tile tile;
    QSignalSpy dClicked(&tile, &OlvIconButton::dClicked);
    Pointer::click(tile);
    tile.setProperty("clickNumber", 0);
    QVERIFY(dClicked.wait());
}

void TestIconButton::reportsOnceToASlotWithAnEventLoop()
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

void TestIconButton::survivesDeletionFromItsSignals_data()
{
    QTest::addColumn<int>("releases");
    QTest::newRow("clicked") << 1;
    QTest::newRow("dClicked") << 2;
}

void TestIconButton::survivesDeletionFromItsSignals()
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

void TestIconButton::draws_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("checked");
    for (const QSize size : { QSize(100, 100), QSize(50, 50), QSize(81, 120), QSize(3, 3) }) {
        for (const char *state : { "init", "hover", "click", "other" }) {
            for (int flags = 0; flags < 4; ++flags) {
                QTest::addRow("%d x %d %s %d", size.width(), size.height(), state, flags)
                    << size << QString::fromLatin1(state) << bool(flags & 1) << bool(flags & 2);
            }
        }
    }
}

void TestIconButton::draws()
{
    QFETCH(QSize, size);
    QFETCH(QString, state);
    QFETCH(bool, checkable);
    QFETCH(bool, checked);
    Tile tile(size);
    tile.setColor(QColor(200, 50, 100, 130));
    tile.setProperty("state", state);
    tile.setProperty("isCheckable", checkable);
    tile.setProperty("isChecked", checked);

    QColor pen(198, 198, 198);
    if (state == QLatin1String("click") || (checkable && checked)) {
        pen = QColor(200, 50, 100, 255);
    } else if (state == QLatin1String("hover")) {
        pen = QColor(0, 50, 100, 130);
    }
    const int part = size.width() / 4;
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.setFont(QFont(QStringLiteral("FontAwesome"), qRound(part * 1.56)));
        painter.drawText(QRect(0, 0, size.width(), 3 * part), Qt::AlignCenter,
                         QString(QChar(0xf0e0)));
        painter.setFont(QFont(QStringLiteral("新宋体"), qRound(part * 0.52)));
        painter.drawText(QRect(0, 3 * part, size.width(), part), Qt::AlignCenter,
                         QStringLiteral("邮件"));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), 10, 10,
                                Qt::AbsoluteSize);
    });
    for (const qreal ratio : { 1.0, 2.0 }) {
        COMPARE_PICTURES(pictureOf(tile, ratio), pictureOf(expected, ratio));
    }
}

void TestIconButton::hoverInvertsTheRedOfTheAccent_data()
{
    QTest::addColumn<QColor>("accent");
    QTest::addColumn<QColor>("pen");
    QTest::newRow("white") << QColor(255, 255, 255) << QColor(0, 255, 255);
    QTest::newRow("the default") << QColor(0, 255, 255) << QColor(127, 255, 255);
    QTest::newRow("127 stays") << QColor(127, 1, 2) << QColor(127, 1, 2);
    QTest::newRow("128") << QColor(128, 1, 2) << QColor(0, 1, 2);
    QTest::newRow("126") << QColor(126, 1, 2) << QColor(127, 1, 2);
}

void TestIconButton::hoverInvertsTheRedOfTheAccent()
{
    QFETCH(QColor, accent);
    QFETCH(QColor, pen);
    Tile tile;
    tile.setColor(accent);
    tile.setProperty("state", QStringLiteral("hover"));
    // the middle of the frame's top edge, where nothing else is drawn
    const QImage hovered = pictureOf(tile);
    DrawnWidget expected({ 100, 100 }, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.drawRoundedRect(QRectF(0, 0, 100, 100), 10, 10);
    });
    QCOMPARE(QColor::fromRgba(hovered.pixel(50, 0)),
             QColor::fromRgba(pictureOf(expected).pixel(50, 0)));
}

void TestIconButton::drawsOnlyTheFrameWithoutAGlyph()
{
    OlvIconButton button;
    button.resize(60, 60);
    DrawnWidget expected({ 60, 60 }, [](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(198, 198, 198));
        painter.drawRoundedRect(QRectF(0, 0, 60, 60), 10, 10);
    });
    COMPARE_PICTURES(pictureOf(button), pictureOf(expected));
}

QTEST_MAIN(TestIconButton)
#include "tst_iconbutton.moc"
