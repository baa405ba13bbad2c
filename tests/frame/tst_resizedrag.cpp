// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "onevent.h"
#include "resizehandles.h"
#include "testprogram.h"

#include <OlvResizeWidget>

#include <QCursor>
#include <QPointer>
#include <QTest>
#include <QtMath>

#include <limits>

/** Dragging the handles that an OlvResizeWidget has placed. */
class TestResizeDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void dragsResize_data();
    void dragsResize();
    void eachMoveCountsFromTheOneBefore();
    void sizeLimitsHold();
    void handlesFollowTheDrag();
    void pressIsTakenByTheHandle();
    void roundsPositions();
    void doesNothingToAMaximisedWidget();
    void consumesNothing();
    void survivesATargetThatDeletesItsHandles();
    void survivesAHandleThatDeletesTheOthers_data();
    void survivesAHandleThatDeletesTheOthers();
    void survivesNumbersThatNoWidgetHas();
};

void TestResizeDrag::cleanup()
{
    runDeferred();
}

void TestResizeDrag::dragsResize_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QPointF>("moved");
    QTest::addColumn<QSize>("size");
    QTest::newRow("right edge") << int(OlvResizeItem::RightEdge) << QPointF(10, 7)
                                << QSize(410, 300);
    QTest::newRow("bottom edge") << int(OlvResizeItem::BottomEdge) << QPointF(10, 7)
                                 << QSize(400, 307);
    QTest::newRow("corner") << int(OlvResizeItem::Corner) << QPointF(10, 7) << QSize(410, 307);
    QTest::newRow("corner, smaller")
        << int(OlvResizeItem::Corner) << QPointF(-100, -50) << QSize(300, 250);
    QTest::newRow("corner, to nothing")
        << int(OlvResizeItem::Corner) << QPointF(-900, -900) << QSize(0, 0);
}

void TestResizeDrag::dragsResize()
{
    QFETCH(int, type);
    QFETCH(QPointF, moved);
    QFETCH(QSize, size);
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *handle = handleOf(target, OlvResizeItem::ResizeType(type));
    drag(handle, { 2, 3 }, QPointF(2, 3) + moved);
    QCOMPARE(target.size(), size);
}

void TestResizeDrag::eachMoveCountsFromTheOneBefore()
{
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *corner = handlesOf(target).corner;
    Mouse::press(corner, { 4, 4 });
    // the handle moves along, so that its own coordinates start anew
    Mouse::move(corner, { 9, 4 });
    QCOMPARE(target.size(), QSize(405, 300));
    Mouse::move(corner, { 4, 4 });
    QCOMPARE(target.size(), QSize(405, 300));
    Mouse::move(corner, { 3, 6 });
    QCOMPARE(target.size(), QSize(404, 302));
    QCOMPARE(corner->pressPosition(), QPoint(4, 4));
}

void TestResizeDrag::sizeLimitsHold()
{
    QWidget target;
    target.setMinimumSize(350, 280);
    target.setMaximumSize(420, 310);
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *corner = handlesOf(target).corner;
    drag(corner, { 1, 1 }, { -200, -200 });
    QCOMPARE(target.size(), QSize(350, 280));
    QCOMPARE(corner->pos(), QPoint(340, 270));
    Mouse::move(corner, { 300, 300 });
    QCOMPARE(target.size(), QSize(420, 310));
}

void TestResizeDrag::handlesFollowTheDrag()
{
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    const Handles handles = handlesOf(target);
    drag(handles.bottom, { 100, 2 }, { 100, 52 });
    QCOMPARE(handles.right->geometry(), QRect(395, 0, 5, 340));
    QCOMPARE(handles.bottom->geometry(), QRect(0, 345, 390, 5));
    QCOMPARE(handles.corner->geometry(), QRect(390, 340, 10, 10));
}

void TestResizeDrag::pressIsTakenByTheHandle()
{
    QWidget target;
    const OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *right = handlesOf(target).right;
    QCOMPARE(right->pressPosition(), QPoint(0, 0));
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 2), QCursor::pos(), Qt::RightButton,
                      Qt::RightButton, {});
    QCoreApplication::sendEvent(right, &press);
    QVERIFY(press.isAccepted());
    QCOMPARE(right->pressPosition(), QPoint(1, 2));
}

void TestResizeDrag::roundsPositions()
{
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    drag(handlesOf(target).corner, { 1.5, 1.4 }, { 11.5, 11.4 });
    QCOMPARE(target.size(), QSize(410, 310));
}

void TestResizeDrag::doesNothingToAMaximisedWidget()
{
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    target.setWindowState(Qt::WindowMaximized);
    const QSize before = target.size();
    drag(handlesOf(target).corner, { 1, 1 }, { 40, 40 });
    QCOMPARE(target.size(), before);
    target.setWindowState(Qt::WindowNoState);
    Mouse::move(handlesOf(target).corner, { 11, 1 });
    QCOMPARE(target.size(), before + QSize(10, 0));
}

void TestResizeDrag::consumesNothing()
{
    QWidget target;
    target.resize(400, 300);
    OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *corner = handlesOf(target).corner;
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), QCursor::pos(), Qt::NoButton, Qt::LeftButton,
                     {});
    QVERIFY(!resizer.eventFilter(corner, &move));
    QEvent paint(QEvent::Paint);
    QVERIFY(!resizer.eventFilter(corner, &paint));
    QCOMPARE(target.size(), QSize(403, 303));
}

void TestResizeDrag::survivesATargetThatDeletesItsHandles()
{
    class Target : public QWidget
    {
    public:
        bool armed = false;

    protected:
        void resizeEvent(QResizeEvent * /*event*/) override
        {
            if (armed) {
                qDeleteAll(findChildren<QWidget *>());
            }
        }
    } target;
    target.resize(400, 300);
    OlvResizeWidget resizer(&target, 5);
    target.show();
    QVERIFY(QTest::qWaitForWindowExposed(&target));
    OlvResizeItem *corner = handlesOf(target).corner;
    const QPointer<OlvResizeItem> watched(corner);
    Mouse::press(corner, { 1, 1 });
    target.armed = true;
    // the filter keeps Qt from the handle, which is dead by then
    Mouse::move(corner, { 9, 9 });
    QVERIFY(watched.isNull());
    QCOMPARE(target.size(), QSize(408, 308));
    resizer.reset();
}

void TestResizeDrag::survivesAHandleThatDeletesTheOthers_data()
{
    QTest::addColumn<int>("victim");
    QTest::newRow("the dragged one") << int(OlvResizeItem::Corner);
    QTest::newRow("the bottom one") << int(OlvResizeItem::BottomEdge);
}

void TestResizeDrag::survivesAHandleThatDeletesTheOthers()
{
    QFETCH(int, victim);
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    target.show();
    QVERIFY(QTest::qWaitForWindowExposed(&target));
    const Handles handles = handlesOf(target);
    const QPointer<OlvResizeItem> bottom(handles.bottom);
    const QPointer<OlvResizeItem> corner(handles.corner);
    // the right one is placed after the dragged one, and before the bottom one
    const OnEvent onResize(handles.right, QEvent::Resize,
                           [&] { delete (victim == OlvResizeItem::Corner ? corner : bottom); });
    drag(handles.corner, { 1, 1 }, { 9, 9 });
    QVERIFY(onResize.happened());
    QCOMPARE(target.size(), QSize(408, 308));
    QCOMPARE(!corner, victim == OlvResizeItem::Corner);
    QCOMPARE(!bottom, victim == OlvResizeItem::BottomEdge);
    if (bottom) {
        QCOMPARE(bottom->geometry(), QRect(0, 303, 398, 5));
    }
}

void TestResizeDrag::survivesNumbersThatNoWidgetHas()
{
    QWidget target;
    target.setMaximumSize(2000, 2000);
    for (const int width : { std::numeric_limits<int>::min(), std::numeric_limits<int>::max() }) {
        target.resize(400, 300);
        OlvResizeWidget resizer(&target, width);
        resizer.reset();
    }
    const OlvResizeWidget resizer(&target, 5);
    const Handles handles = handlesOf(target);
    for (OlvResizeItem *handle : { handles.right, handles.bottom, handles.corner }) {
        drag(handle, { 1, 1 }, { qInf(), qInf() });
        drag(handle, { qInf(), -qInf() }, { -qInf(), qInf() });
        drag(handle, { qQNaN(), qQNaN() }, { 1e18, -1e18 });
    }
    QVERIFY(target.width() <= 2000 && target.height() <= 2000);
}

ADD_TEST(TestResizeDrag, QApplication)
#include "tst_resizedrag.moc"
