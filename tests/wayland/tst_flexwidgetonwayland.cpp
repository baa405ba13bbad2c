// SPDX-License-Identifier: MIT
#include "compositor.h"
#include "deferred.h"
#include "testprogram.h"

#include <OlvFlexWidget>

#include <QTest>

namespace {

constexpr QRgb fillColor = qRgb(245, 245, 245);

} // namespace

/** A panel that is a window. */
class TestFlexWidgetOnWayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void isMovedResizedAndStaysWhereItIs();
    void childBecomesAWindowAndAChildAgain();
};

void TestFlexWidgetOnWayland::cleanup()
{
    runDeferred();
}

void TestFlexWidgetOnWayland::isMovedResizedAndStaysWhereItIs()
{
    Compositor compositor;
    OlvFlexWidget panel(240, 180);
    panel.show();
    QRect area = compositor.waitFor(panel, fillColor, { 1, 1 });
    QVERIFY(!area.isNull());
    const QPoint distance = QPoint(200, 150) - area.topLeft();
    compositor.drag(panel, area.topLeft() + QPoint(100, 100), distance);
    area.translate(distance);
    QTRY_COMPARE(compositor.areaOf(fillColor), area);

    // by its corner
    const QPoint corner = area.bottomRight() - QPoint(2, 2);
    compositor.point(panel, corner);
    QTest::qWait(50);
    compositor.input.press();
    QTest::qWait(50);
    compositor.input.moveTo(corner + QPoint(60, 40));
    QTRY_COMPARE(panel.size(), QSize(300, 220));
    compositor.input.release();
    area.setSize(area.size() + QSize(60, 40));
    QTRY_COMPARE(compositor.areaOf(fillColor), area);

    // No program stacks its windows, and one that is hidden and shown would be put elsewhere.
    const EventCount hidings(&panel, { QEvent::Hide, QEvent::Show });
    panel.stay(OlvFlexWidget::StayTop);
    QCOMPARE(panel.property("stay").toInt(), int(OlvFlexWidget::StayTop));
    QVERIFY(panel.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    panel.stay(OlvFlexWidget::StayBottom);
    QVERIFY(panel.windowFlags().testFlag(Qt::WindowStaysOnBottomHint));
    QVERIFY(!panel.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    // Tool windows are as any others.
    const Qt::WindowFlags flags = panel.windowFlags();
    QVERIFY(panel.testAttribute(Qt::WA_QuitOnClose));
    panel.toggleTool();
    QCOMPARE(panel.windowFlags(), flags | Qt::Tool);
    QVERIFY(!panel.testAttribute(Qt::WA_QuitOnClose));
    panel.toggleTool();
    QCOMPARE(panel.windowFlags(), flags);
    QTest::qWait(100);
    QCOMPARE(hidings.count, 0);
    QVERIFY(panel.isVisible() && panel.isWindow());
    QCOMPARE(compositor.areaOf(fillColor), area);

    // One that is hidden is shown.
    panel.hide();
    panel.stay(OlvFlexWidget::StayNormal);
    QVERIFY(panel.isVisible());
    QTRY_COMPARE(compositor.areaOf(fillColor).size(), area.size());
    panel.hide();
    panel.toggleTool();
    QVERIFY(panel.isVisible());
    QCOMPARE(panel.windowType(), Qt::Tool);
    QTRY_COMPARE(compositor.areaOf(fillColor).size(), area.size());
}

void TestFlexWidgetOnWayland::childBecomesAWindowAndAChildAgain()
{
    QWidget window;
    OlvFlexWidget panel(&window);
    window.show();
    panel.toggleTool();
    QVERIFY(panel.isWindow());
    QVERIFY(panel.isVisible());
    panel.toggleTool();
    QVERIFY(!panel.isWindow());
    QVERIFY(panel.isVisible());
}

ADD_TEST(TestFlexWidgetOnWayland, QApplication)
#include "tst_flexwidgetonwayland.moc"
