// SPDX-License-Identifier: MIT
#include "mouse.h"

#include <OlvResizeItem>
#include <OlvResizeWidget>

#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QtMath>

#include <limits>

namespace {

struct Handles
{
    OlvResizeItem *right = nullptr;
    OlvResizeItem *bottom = nullptr;
    OlvResizeItem *corner = nullptr;
};

Handles handlesOf(const QWidget &target)
{
    Handles handles;
    for (QObject *child : target.children()) {
        auto *handle = dynamic_cast<OlvResizeItem *>(child);
        if (!handle) {
            continue;
        }
        switch (handle->type()) {
        case OlvResizeItem::RightEdge:
            handles.right = handle;
            break;
        case OlvResizeItem::BottomEdge:
            handles.bottom = handle;
            break;
        case OlvResizeItem::Corner:
            handles.corner = handle;
            break;
        }
    }
    return handles;
}

void drag(OlvResizeItem *handle, QPointF from, QPointF to)
{
    Mouse::press(handle, from);
    Mouse::move(handle, to);
}

} // namespace

class TestResizeWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void kindsHaveTheirNumbers();
    void placesThreeHandles_data();
    void placesThreeHandles();
    void handlesHaveTheirCursors();
    void handlesAreShownTogetherWithTheTarget();
    void handlesKnowEachOther();
    void keepsTheCornersAddress();
    void raisesTheHandlesFromTheEventLoop();
    void survivesAHandleThatDiesBeforeItIsRaised();
    void dragsResize_data();
    void dragsResize();
    void eachMoveCountsFromTheOneBefore();
    void sizeLimitsHold();
    void handlesFollowTheDrag();
    void pressIsTakenByTheHandle();
    void roundsPositions();
    void doesNothingToAMaximisedWidget();
    void consumesNothing();
    void handlesStayUntilReset();
    void withoutATargetNothingIsPlaced();
    void survivesMisuse();
    void survivesNumbersThatNoWidgetHas();
    void survivesAResetWhileAHandleIsDestroyed();
    void survivesATargetThatDeletesItsHandles();
};

void TestResizeWidget::cleanup()
{
    // what a handle has put off to the event loop is no leak once that has run
    QEventLoop loop;
    QTimer::singleShot(5, &loop, &QEventLoop::quit);
    loop.exec();
}

void TestResizeWidget::kindsHaveTheirNumbers()
{
    QCOMPARE(int(OlvResizeItem::RightEdge), 0);
    QCOMPARE(int(OlvResizeItem::BottomEdge), 1);
    QCOMPARE(int(OlvResizeItem::Corner), 2);
    QCOMPARE(OlvResizeWidget::staticMetaObject.className(), "QObject");
}

void TestResizeWidget::placesThreeHandles_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("thickness");
    QTest::addColumn<QRect>("right");
    QTest::addColumn<QRect>("bottom");
    QTest::addColumn<QRect>("corner");
    QTest::newRow("400 by 300, 5 thick") << QSize(400, 300) << 5 << QRect(395, 0, 5, 290)
                                         << QRect(0, 295, 390, 5) << QRect(390, 290, 10, 10);
    QTest::newRow("100 by 60, 3 thick")
        << QSize(100, 60) << 3 << QRect(97, 0, 3, 54) << QRect(0, 57, 94, 3) << QRect(94, 54, 6, 6);
}

void TestResizeWidget::placesThreeHandles()
{
    QFETCH(QSize, size);
    QFETCH(int, thickness);
    QFETCH(QRect, right);
    QFETCH(QRect, bottom);
    QFETCH(QRect, corner);
    QWidget target;
    target.resize(size);
    const OlvResizeWidget resizer(&target, thickness);
    QCOMPARE(resizer.parent(), &target);
    const Handles handles = handlesOf(target);
    QCOMPARE(handles.right->geometry(), right);
    QCOMPARE(handles.bottom->geometry(), bottom);
    QCOMPARE(handles.corner->geometry(), corner);
}

void TestResizeWidget::handlesHaveTheirCursors()
{
    QWidget target;
    const OlvResizeWidget resizer(&target, 5);
    const Handles handles = handlesOf(target);
    QCOMPARE(handles.right->cursor().shape(), Qt::SizeHorCursor);
    QCOMPARE(handles.bottom->cursor().shape(), Qt::SizeVerCursor);
    QCOMPARE(handles.corner->cursor().shape(), Qt::SizeFDiagCursor);
}

void TestResizeWidget::handlesAreShownTogetherWithTheTarget()
{
    QWidget target;
    const OlvResizeWidget before(&target, 5);
    const Handles handles = handlesOf(target);
    for (const OlvResizeItem *handle : { handles.right, handles.bottom, handles.corner }) {
        QVERIFY(!handle->testAttribute(Qt::WA_WState_ExplicitShowHide));
    }
    target.show();
    QVERIFY(handles.right->isVisible() && handles.bottom->isVisible()
            && handles.corner->isVisible());

    // nobody shows those of a target that is shown already
    QWidget shown;
    shown.show();
    const OlvResizeWidget after(&shown, 5);
    auto *last = new QWidget(&shown);
    QTRY_VERIFY(shown.children().indexOf(last) < shown.children().indexOf(handlesOf(shown).corner));
    QVERIFY(!handlesOf(shown).right->isVisible());
    QVERIFY(!handlesOf(shown).corner->isVisible());
}

void TestResizeWidget::handlesKnowEachOther()
{
    QWidget target;
    const OlvResizeWidget resizer(&target, 5);
    const Handles handles = handlesOf(target);
    QCOMPARE(handles.right->firstPartner(), handles.bottom);
    QCOMPARE(handles.right->secondPartner(), handles.corner);
    QCOMPARE(handles.bottom->firstPartner(), handles.right);
    QCOMPARE(handles.bottom->secondPartner(), handles.corner);
    QCOMPARE(handles.corner->firstPartner(), handles.right);
    QCOMPARE(handles.corner->secondPartner(), handles.bottom);
}

void TestResizeWidget::keepsTheCornersAddress()
{
    QWidget target;
    const OlvResizeWidget resizer(&target, 5);
    QCOMPARE(resizer.dynamicPropertyNames(), QList<QByteArray>({ "LeftBottom" }));
    QCOMPARE(resizer.property("LeftBottom").userType(), int(QMetaType::ULongLong));
    QCOMPARE(resizer.property("LeftBottom").toULongLong(),
             reinterpret_cast<qulonglong>(handlesOf(target).corner));
}

void TestResizeWidget::raisesTheHandlesFromTheEventLoop()
{
    QWidget target;
    const OlvResizeWidget resizer(&target, 5);
    auto *later = new QWidget(&target);
    QCOMPARE(target.children().last(), later);
    QTRY_VERIFY(target.children().indexOf(later)
                < target.children().indexOf(handlesOf(target).right));
    const Handles handles = handlesOf(target);
    QTRY_COMPARE(target.children().mid(target.children().size() - 3),
                 QObjectList({ handles.right, handles.bottom, handles.corner }));
}

void TestResizeWidget::survivesAHandleThatDiesBeforeItIsRaised()
{
    auto *target = new QWidget;
    new OlvResizeWidget(target, 5);
    delete handlesOf(*target).bottom;
    delete target;
    QTest::qWait(20);
}

void TestResizeWidget::dragsResize_data()
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

void TestResizeWidget::dragsResize()
{
    QFETCH(int, type);
    QFETCH(QPointF, moved);
    QFETCH(QSize, size);
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    const Handles handles = handlesOf(target);
    OlvResizeItem *handle = type == OlvResizeItem::RightEdge ? handles.right
        : type == OlvResizeItem::BottomEdge                  ? handles.bottom
                                                             : handles.corner;
    drag(handle, { 2, 3 }, QPointF(2, 3) + moved);
    QCOMPARE(target.size(), size);
}

void TestResizeWidget::eachMoveCountsFromTheOneBefore()
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

void TestResizeWidget::sizeLimitsHold()
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

void TestResizeWidget::handlesFollowTheDrag()
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

void TestResizeWidget::pressIsTakenByTheHandle()
{
    QWidget target;
    const OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *right = handlesOf(target).right;
    QCOMPARE(right->pressPosition(), QPoint(0, 0));
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 2), Qt::RightButton, Qt::RightButton,
                      {});
    QCoreApplication::sendEvent(right, &press);
    QVERIFY(press.isAccepted());
    QCOMPARE(right->pressPosition(), QPoint(1, 2));
}

void TestResizeWidget::roundsPositions()
{
    QWidget target;
    target.resize(400, 300);
    const OlvResizeWidget resizer(&target, 5);
    drag(handlesOf(target).corner, { 1.5, 1.4 }, { 11.5, 11.4 });
    QCOMPARE(target.size(), QSize(410, 310));
}

void TestResizeWidget::doesNothingToAMaximisedWidget()
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

void TestResizeWidget::consumesNothing()
{
    QWidget target;
    target.resize(400, 300);
    OlvResizeWidget resizer(&target, 5);
    OlvResizeItem *corner = handlesOf(target).corner;
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), Qt::NoButton, Qt::LeftButton, {});
    QVERIFY(!resizer.eventFilter(corner, &move));
    QEvent paint(QEvent::Paint);
    QVERIFY(!resizer.eventFilter(corner, &paint));
    QCOMPARE(target.size(), QSize(403, 303));
}

void TestResizeWidget::handlesStayUntilReset()
{
    QWidget target;
    target.resize(400, 300);
    OlvResizeWidget resizer(&target, 5);
    const Handles handles = handlesOf(target);
    target.resize(200, 100);
    QCOMPARE(handles.right->geometry(), QRect(395, 0, 5, 290));
    resizer.reset();
    QCOMPARE(handles.right->geometry(), QRect(195, 0, 5, 90));
    QCOMPARE(handles.bottom->geometry(), QRect(0, 95, 190, 5));
    QCOMPARE(handles.corner->geometry(), QRect(190, 90, 10, 10));
}

void TestResizeWidget::withoutATargetNothingIsPlaced()
{
    OlvResizeItem handle(nullptr, nullptr, OlvResizeItem::Corner, 5, nullptr, nullptr);
    QCOMPARE(handle.geometry(), QRect(0, 0, 10, 10));
    handle.placeAll();
    QCOMPARE(handle.geometry(), QRect(0, 0, 10, 10));

    QWidget target;
    target.resize(400, 300);
    OlvResizeWidget resizer(&target, 5);
    const QRect placed = handlesOf(target).corner->geometry();
    resizer.setParent(nullptr);
    target.resize(200, 100);
    resizer.reset();
    QCOMPARE(handlesOf(target).corner->geometry(), placed);
}

void TestResizeWidget::survivesMisuse()
{
    QWidget target;
    target.resize(400, 300);
    OlvResizeWidget resizer(&target, 5);
    for (const QVariant &value :
         { QVariant(), QVariant(0xdeadbeefULL), QVariant(QStringLiteral("x")),
           QVariant(reinterpret_cast<qulonglong>(&target)) }) {
        resizer.setProperty("LeftBottom", value);
        resizer.reset();
    }
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), Qt::NoButton, Qt::LeftButton, {});
    QVERIFY(!resizer.eventFilter(&target, &move));
    QCOMPARE(target.size(), QSize(400, 300));

    const Handles handles = handlesOf(target);
    delete handles.right;
    drag(handles.corner, { 1, 1 }, { 11, 11 });
    QCOMPARE(target.size(), QSize(410, 310));
    delete handles.corner;
    resizer.reset();
    drag(handles.bottom, { 1, 1 }, { 1, 11 });
    QCOMPARE(target.size(), QSize(410, 320));

    // smaller than its handles
    target.resize(4, 4);
    OlvResizeWidget thick(&target, 5);
    thick.reset();
    QVERIFY(!target.grab().isNull());
}

void TestResizeWidget::survivesATargetThatDeletesItsHandles()
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
    // straight to the filter: Qt itself would go on to the dead handle
    QMouseEvent move(QEvent::MouseMove, QPointF(9, 9), Qt::NoButton, Qt::LeftButton, {});
    QVERIFY(!resizer.eventFilter(corner, &move));
    QVERIFY(watched.isNull());
    QCOMPARE(target.size(), QSize(408, 308));
}

void TestResizeWidget::survivesNumbersThatNoWidgetHas()
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

void TestResizeWidget::survivesAResetWhileAHandleIsDestroyed()
{
    QWidget target;
    target.resize(400, 300);
    OlvResizeWidget resizer(&target, 5);
    const Handles handles = handlesOf(target);
    OlvResizeItem *partner = handles.corner;
    // the slot of another's: what is left of the handle is a plain widget
    connect(handles.right, &QObject::destroyed, this, [&] {
        target.resize(200, 100);
        resizer.reset();
        partner = handles.corner->firstPartner();
    });
    delete handles.right;
    QCOMPARE(partner, nullptr);
    QCOMPARE(handles.corner->geometry(), QRect(190, 90, 10, 10));
    QCOMPARE(handles.bottom->geometry(), QRect(0, 95, 190, 5));
}

QTEST_MAIN(TestResizeWidget)
#include "tst_resizewidget.moc"
