// SPDX-License-Identifier: MIT
#include "mouse.h"
#include "paintwatch.h"
#include "pixels.h"
#include "testprogram.h"

#include <OlvFlexWidget>
#include <OlvMoveWidget>
#include <OlvResizeItem>
#include <OlvResizeWidget>

#include <QElapsedTimer>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

template <typename Child> Child *childOf(const QObject &parent)
{
    for (QObject *child : parent.children()) {
        if (auto *found = dynamic_cast<Child *>(child)) {
            return found;
        }
    }
    return nullptr;
}

QTimer *timerOf(const OlvFlexWidget &panel)
{
    return reinterpret_cast<QTimer *>(panel.property("resizeTimer").toULongLong());
}

constexpr Qt::WindowFlags hints = Qt::WindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                                                  | Qt::WindowStaysOnBottomHint);

} // namespace

class TestFlexWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumeratorsHaveTheirNumbers();
    void startsPlainWithItsHelpers();
    void keepsItsSignalSilent();
    void isNotSmallerThanItMayBe();
    void staysWhereItIsTold();
    void stayingAgainChangesNothing();
    void togglesTool_data();
    void togglesTool();
    void takesAHeader_data();
    void takesAHeader();
    void ignoresWaysThatAreNone();
    void headerRepaintsNothing();
    void draws_data();
    void draws();
    void drawsSquareWhenMaximised_data();
    void drawsSquareWhenMaximised();
    void movesByTheNewAreaTwoSecondsAfterAResize();
    void eachResizeStartsTheTimeAnew();
    void resizesByItsCorner();
    void survivesMisuse();
};

void TestFlexWidget::enumeratorsHaveTheirNumbers()
{
    QCOMPARE(int(OlvFlexWidget::StayNormal), 0);
    QCOMPARE(int(OlvFlexWidget::StayTop), 1);
    QCOMPARE(int(OlvFlexWidget::StayBottom), -1);
    QCOMPARE(int(OlvFlexWidget::HeaderTop), 1);
    QCOMPARE(int(OlvFlexWidget::HeaderLeft), 2);
    QCOMPARE(int(OlvFlexWidget::HeaderBottom), 3);
    QCOMPARE(int(OlvFlexWidget::HeaderRight), 4);
}

void TestFlexWidget::startsPlainWithItsHelpers()
{
    QWidget parent;
    OlvFlexWidget panel(300, 200, &parent);
    QCOMPARE(panel.parentWidget(), &parent);
    QCOMPARE(panel.size(), QSize(300, 200));
    QCOMPARE(panel.minimumSize(), QSize(50, 50));
    QCOMPARE(panel.windowFlags(), Qt::FramelessWindowHint);
    QVERIFY(panel.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(panel.property("stay"), QVariant(0));
    QCOMPARE(panel.property("stay").userType(), int(QMetaType::Int));
    QCOMPARE(panel.property("headerWay"), QVariant(0));
    QCOMPARE(panel.property("headerWay").userType(), int(QMetaType::Int));
    QVERIFY(!panel.property("headerWayColor").isValid());
    QCOMPARE(panel.property("resizeTimer").userType(), int(QMetaType::ULongLong));

    QVERIFY(childOf<OlvResizeWidget>(panel));
    QCOMPARE(childOf<OlvMoveWidget>(panel)->property("MoveArea").toRect(), QRect(0, 0, 300, 200));
    QCOMPARE(timerOf(panel)->parent(), &panel);
    QCOMPARE(timerOf(panel)->interval(), 2000);
    QVERIFY(!timerOf(panel)->isSingleShot());
    int handles = 0;
    for (const QObject *child : panel.children()) {
        if (const auto *handle = dynamic_cast<const OlvResizeItem *>(child)) {
            ++handles;
            if (handle->type() == OlvResizeItem::Corner) {
                QCOMPARE(handle->geometry(), QRect(294, 194, 6, 6));
            }
        }
    }
    QCOMPARE(handles, 3);
}

void TestFlexWidget::keepsItsSignalSilent()
{
    OlvFlexWidget panel(100, 100);
    QSignalSpy clicked(&panel, &OlvFlexWidget::clicked);
    QTest::mouseClick(&panel, Qt::LeftButton, {}, { 50, 50 });
    QCOMPARE(clicked.count(), 0);
}

void TestFlexWidget::isNotSmallerThanItMayBe()
{
    OlvFlexWidget panel(10, 2);
    QCOMPARE(panel.size(), QSize(50, 50));
    panel.resize(20, 500);
    QCOMPARE(panel.size(), QSize(50, 500));
}

void TestFlexWidget::staysWhereItIsTold()
{
    OlvFlexWidget panel(100, 100);
    const Qt::WindowFlags plain = panel.windowFlags();
    panel.stay(OlvFlexWidget::StayTop);
    QCOMPARE(panel.windowFlags() & hints, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QCOMPARE(panel.property("stay"), QVariant(1));
    QVERIFY(panel.isVisible());
    panel.stay(OlvFlexWidget::StayBottom);
    QCOMPARE(panel.windowFlags() & hints, Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint);
    QCOMPARE(panel.property("stay"), QVariant(-1));
    panel.stay(OlvFlexWidget::StayNormal);
    QCOMPARE(panel.windowFlags(), plain);
    QCOMPARE(panel.property("stay"), QVariant(0));
    QVERIFY(panel.isVisible());

    // the hint before is toggled, not taken away
    panel.setWindowFlags(plain);
    panel.setProperty("stay", 1);
    panel.stay(OlvFlexWidget::StayNormal);
    QVERIFY(panel.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

void TestFlexWidget::stayingAgainChangesNothing()
{
    OlvFlexWidget panel(100, 100);
    panel.stay(OlvFlexWidget::StayNormal);
    QVERIFY(!panel.isVisible());
    panel.stay(OlvFlexWidget::StayBottom);
    panel.hide();
    const Qt::WindowFlags flags = panel.windowFlags();
    panel.stay(OlvFlexWidget::StayBottom);
    QVERIFY(!panel.isVisible());
    QCOMPARE(panel.windowFlags(), flags);
}

void TestFlexWidget::togglesTool_data()
{
    QTest::addColumn<bool>("inParent");
    QTest::newRow("top level") << false;
    QTest::newRow("in a parent") << true;
}

void TestFlexWidget::togglesTool()
{
    QFETCH(bool, inParent);
    QWidget parent;
    OlvFlexWidget panel(100, 100, inParent ? &parent : nullptr);
    parent.show();
    const Qt::WindowFlags plain = panel.windowFlags();
    for (int i = 0; i < 2; ++i) {
        // Qt raises tool windows above their windows, which its offscreen platform cannot do
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        panel.toggleTool();
        QCOMPARE(panel.windowFlags() & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Tool));
        QVERIFY(panel.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(panel.isVisible());
        panel.toggleTool();
        QCOMPARE(panel.windowFlags(), plain);
        QVERIFY(panel.isVisible());
    }
}

void TestFlexWidget::takesAHeader_data()
{
    QTest::addColumn<int>("way");
    for (int way = 1; way <= 4; ++way) {
        QTest::addRow("way %d", way) << way;
    }
}

void TestFlexWidget::takesAHeader()
{
    QFETCH(int, way);
    OlvFlexWidget panel(100, 100);
    panel.setHeaderWay(OlvFlexWidget::HeaderWay(way), QColor(0x12, 0x34, 0x56, 0x78));
    QCOMPARE(panel.property("headerWay"), QVariant(way));
    QCOMPARE(panel.property("headerWay").userType(), int(QMetaType::Int));
    QCOMPARE(panel.property("headerWayColor").userType(), int(QMetaType::UInt));
    QCOMPARE(panel.property("headerWayColor").toUInt(), 0x78123456U);
}

void TestFlexWidget::ignoresWaysThatAreNone()
{
    OlvFlexWidget panel(100, 100);
    for (const int way : { 0, 5, 7 }) {
        panel.setHeaderWay(OlvFlexWidget::HeaderWay(way), Qt::red);
        QCOMPARE(panel.property("headerWay"), QVariant(0));
        QVERIFY(!panel.property("headerWayColor").isValid());
    }
}

void TestFlexWidget::headerRepaintsNothing()
{
    OlvFlexWidget panel(200, 100);
    PaintWatch watch(panel);
    QVERIFY(watch.showWindow());
    panel.setHeaderWay(OlvFlexWidget::HeaderTop, Qt::red);
    QCOMPARE(watch.take(), {});
}

void TestFlexWidget::draws_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("way");
    QTest::addColumn<QRectF>("band");
    QTest::newRow("no header") << QSize(300, 200) << 0 << QRectF();
    QTest::newRow("top") << QSize(300, 200) << 1 << QRectF(0, 0, 300, 10);
    QTest::newRow("left") << QSize(300, 200) << 2 << QRectF(0, 0, 10, 200);
    QTest::newRow("bottom") << QSize(300, 200) << 3 << QRectF(190, 0, 300, 10);
    QTest::newRow("right") << QSize(300, 200) << 4 << QRectF(290, 0, 10, 200);
    QTest::newRow("bottom, odd") << QSize(151, 77) << 3 << QRectF(67, 0, 151, 10);
    QTest::newRow("right, odd") << QSize(151, 77) << 4 << QRectF(141, 0, 10, 77);
}

void TestFlexWidget::draws()
{
    QFETCH(QSize, size);
    QFETCH(int, way);
    QFETCH(QRectF, band);
    OlvFlexWidget panel(size.width(), size.height());
    panel.setHeaderWay(OlvFlexWidget::HeaderWay(way), QColor(200, 100, 50, 100));
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(207, 207, 207));
        painter.setBrush(QColor(245, 245, 245));
        painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), 5, 5, Qt::AbsoluteSize);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(200, 100, 50));
        if (way != 0) {
            painter.drawRoundedRect(band, 5, 5, Qt::AbsoluteSize);
        }
    });
    expected.setAttribute(Qt::WA_TranslucentBackground);
    for (const qreal ratio : { 1.0, 2.0 }) {
        COMPARE_PICTURES(pictureOf(panel, ratio), pictureOf(expected, ratio));
    }
}

void TestFlexWidget::drawsSquareWhenMaximised_data()
{
    QTest::addColumn<int>("way");
    for (int way = 0; way <= 4; ++way) {
        QTest::addRow("way %d", way) << way;
    }
}

void TestFlexWidget::drawsSquareWhenMaximised()
{
    QFETCH(int, way);
    OlvFlexWidget panel(300, 200);
    panel.setHeaderWay(OlvFlexWidget::HeaderWay(way), QColor(200, 100, 50, 100));
    panel.setWindowState(Qt::WindowMaximized);
    const QSize size = panel.size();
    const QVector<QRectF> bands{ {},
                                 QRectF(0, 0, size.width(), 10),
                                 QRectF(0, 0, 10, size.height()),
                                 QRectF(size.height() - 10, 0, size.width(), 10),
                                 QRectF(size.width() - 10, 0, 10, size.height()) };
    DrawnWidget expected(size, [=](QPainter &painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(207, 207, 207));
        painter.setBrush(QColor(245, 245, 245));
        painter.drawRect(QRectF(0, 0, size.width(), size.height()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(200, 100, 50));
        if (way != 0) {
            painter.drawRect(bands.at(way));
        }
    });
    expected.setAttribute(Qt::WA_TranslucentBackground);
    COMPARE_PICTURES(pictureOf(panel), pictureOf(expected));
}

void TestFlexWidget::movesByTheNewAreaTwoSecondsAfterAResize()
{
    OlvFlexWidget panel(300, 200);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QTRY_VERIFY(!timerOf(panel)->isActive() || timerOf(panel)->remainingTime() < 2000);
    auto *mover = childOf<OlvMoveWidget>(panel);
    const auto startsMove = [&] {
        Mouse::press(&panel, { 350, 20 });
        const bool starts = mover->property("CanMove").toBool();
        Mouse::release(&panel);
        return starts;
    };
    QElapsedTimer clock;
    clock.start();
    panel.resize(400, 300);
    QVERIFY(timerOf(panel)->isActive());
    QVERIFY(!startsMove());
    QTest::qWait(1000);
    QVERIFY(!startsMove());
    QTRY_VERIFY(startsMove());
    // coarse timers may be five in a hundred early
    QVERIFY2(clock.elapsed() >= 1890, QByteArray::number(clock.elapsed()).constData());
    QCOMPARE(mover->property("MoveArea").toRect(), QRect(0, 0, 400, 300));
    QCOMPARE(childOf<OlvResizeItem>(panel)->geometry(), QRect(397, 0, 3, 294));
    QVERIFY(!timerOf(panel)->isActive());
}

void TestFlexWidget::eachResizeStartsTheTimeAnew()
{
    OlvFlexWidget panel(300, 200);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    panel.resize(310, 210);
    QTest::qWait(300);
    QVERIFY(timerOf(panel)->remainingTime() < 1850);
    panel.resize(320, 220);
    QVERIFY(timerOf(panel)->remainingTime() > 1850);
}

void TestFlexWidget::resizesByItsCorner()
{
    OlvFlexWidget panel(300, 200);
    OlvResizeItem *corner = nullptr;
    for (QObject *child : panel.children()) {
        auto *handle = dynamic_cast<OlvResizeItem *>(child);
        if (handle && handle->type() == OlvResizeItem::Corner) {
            corner = handle;
        }
    }
    Mouse::press(corner, { 2, 2 });
    Mouse::move(corner, { 12, 22 });
    QCOMPARE(panel.size(), QSize(310, 220));
    QCOMPARE(corner->pos(), QPoint(304, 214));
    Mouse::move(corner, { -900, -900 });
    QCOMPARE(panel.size(), QSize(50, 50));
}

void TestFlexWidget::survivesMisuse()
{
    OlvFlexWidget panel(300, 200);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    for (const char *name : { "stay", "headerWay", "headerWayColor", "resizeTimer" }) {
        for (const QVariant &value :
             { QVariant(), QVariant(0xdeadbeefULL), QVariant(QStringLiteral("x")), QVariant(-3) }) {
            panel.setProperty(name, value);
            panel.resize(panel.width() + 1, panel.height());
            QVERIFY(!panel.grab().isNull());
            panel.stay(OlvFlexWidget::StayTop);
            panel.stay(OlvFlexWidget::OlvStayType(-2));
        }
    }
    OlvFlexWidget bare(100, 100);
    QTimer *timer = timerOf(bare);
    delete childOf<OlvMoveWidget>(bare);
    delete childOf<OlvResizeWidget>(bare);
    timer->start(1);
    QTRY_VERIFY(!timer->isActive());
    delete timer;
    bare.resize(200, 200);
}

ADD_TEST(TestFlexWidget, QApplication)
#include "tst_flexwidget.moc"
