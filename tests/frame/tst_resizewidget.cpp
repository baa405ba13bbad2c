// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "resizehandles.h"
#include "testprogram.h"

#include <OlvResizeWidget>

#include <QCursor>
#include <QTest>

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
    void handlesStayUntilReset();
    void withoutATargetNothingIsPlaced();
    void survivesMisuse();
    void survivesAResetWhileAHandleIsDestroyed();
};

void TestResizeWidget::cleanup()
{
    runDeferred();
}

void TestResizeWidget::kindsHaveTheirNumbers()
{
    QCOMPARE(int(OlvResizeItem::RightEdge), 0);
    QCOMPARE(int(OlvResizeItem::BottomEdge), 1);
    QCOMPARE(int(OlvResizeItem::Corner), 2);
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

    // nothing shows the handles of a target that is shown already
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
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), QCursor::pos(), Qt::NoButton, Qt::LeftButton,
                     {});
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

ADD_TEST(TestResizeWidget, QApplication)
#include "tst_resizewidget.moc"
