// SPDX-License-Identifier: MIT
#include "mouse.h"
#include "movablewidget.h"
#include "testprogram.h"

#include <OlvMoveWidget>
#include <OlvPluginEventFilter>

#include <QTest>
#include <QtMath>

#include <limits>

namespace {

/** A widget that writes down which of its own handlers run. */
class Target : public QWidget
{
public:
    Target()
    {
        resize(300, 40);
        move(100, 100);
    }
    QStringList handled;

protected:
    void mousePressEvent(QMouseEvent * /*event*/) override
    {
        handled.append(QStringLiteral("press"));
    }
    void mouseMoveEvent(QMouseEvent * /*event*/) override
    {
        handled.append(QStringLiteral("move"));
    }
    void mouseReleaseEvent(QMouseEvent * /*event*/) override
    {
        handled.append(QStringLiteral("release"));
    }
};

int filterCount(const QObject &object)
{
    int count = 0;
    for (const QObject *child : object.children()) {
        count += dynamic_cast<const OlvPluginEventFilter *>(child) ? 1 : 0;
    }
    return count;
}

} // namespace

class TestMoveWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doesNothingBeforeItHasAnArea();
    void takesTheWidgetForAnAreaOfNoWidth_data();
    void takesTheWidgetForAnAreaOfNoWidth();
    void installsItsListenersOnce();
    void startsAMoveInsideTheArea_data();
    void startsAMoveInsideTheArea();
    void everyMouseButtonMoves();
    void followsThePointer();
    void roundsPositions();
    void stopsAtTheRelease();
    void keepsTheMouseFromTheWidget();
    void startsNoMoveOfAMaximisedWidget();
    void goesOnWithAMoveThatBeganBefore();
    void survivesMisuse();
    void survivesNumbersThatNoWidgetHas_data();
    void survivesNumbersThatNoWidgetHas();
    void ownsNothingOfTheTarget();
};

void TestMoveWidget::doesNothingBeforeItHasAnArea()
{
    Target target;
    const OlvMoveWidget mover(&target);
    QCOMPARE(mover.parent(), &target);
    QVERIFY(mover.dynamicPropertyNames().isEmpty());
    QCOMPARE(filterCount(target), 0);
    Mouse::press(&target, { 5, 5 });
    Mouse::move(&target, { 9, 9 });
    Mouse::release(&target);
    QCOMPARE(target.pos(), QPoint(100, 100));
    QCOMPARE(target.handled,
             QStringList(
                 { QStringLiteral("press"), QStringLiteral("move"), QStringLiteral("release") }));
}

void TestMoveWidget::takesTheWidgetForAnAreaOfNoWidth_data()
{
    QTest::addColumn<QRect>("given");
    QTest::addColumn<QRect>("area");
    QTest::newRow("default rectangle") << QRect() << QRect(0, 0, 300, 40);
    QTest::newRow("no width") << QRect(5, 5, 0, 20) << QRect(0, 0, 300, 40);
    QTest::newRow("no height stays") << QRect(5, 5, 20, 0) << QRect(5, 5, 20, 0);
    QTest::newRow("part") << QRect(5, 6, 7, 8) << QRect(5, 6, 7, 8);
    QTest::newRow("negative width stays") << QRect(50, 6, -7, 8) << QRect(50, 6, -7, 8);
}

void TestMoveWidget::takesTheWidgetForAnAreaOfNoWidth()
{
    QFETCH(QRect, given);
    QFETCH(QRect, area);
    Target target;
    OlvMoveWidget mover(&target);
    mover.setMoveArea(given);
    QCOMPARE(mover.property("MoveArea").userType(), int(QMetaType::QRect));
    QCOMPARE(mover.property("MoveArea").toRect(), area);
    target.resize(500, 90);
    QCOMPARE(mover.property("MoveArea").toRect(), area);
}

void TestMoveWidget::installsItsListenersOnce()
{
    Target target;
    OlvMoveWidget mover(&target);
    mover.setMoveArea(QRect());
    mover.setMoveArea(QRect(0, 0, 10, 10));
    mover.setMoveArea(QRect());
    QCOMPARE(filterCount(target), 1);
}

void TestMoveWidget::startsAMoveInsideTheArea_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<bool>("starts");
    QTest::newRow("inside") << QPointF(15, 15) << true;
    QTest::newRow("top left pixel") << QPointF(10, 10) << true;
    QTest::newRow("bottom right pixel") << QPointF(29, 19) << true;
    QTest::newRow("right of it") << QPointF(30, 15) << false;
    QTest::newRow("below it") << QPointF(15, 20) << false;
    QTest::newRow("left of it") << QPointF(9, 15) << false;
    QTest::newRow("rounded in") << QPointF(9.5, 15) << true;
    QTest::newRow("rounded out") << QPointF(29.5, 15) << false;
}

void TestMoveWidget::startsAMoveInsideTheArea()
{
    QFETCH(QPointF, place);
    QFETCH(bool, starts);
    Target target;
    OlvMoveWidget mover(&target);
    mover.setMoveArea(QRect(10, 10, 20, 10));
    Mouse::press(&target, place);
    QCOMPARE(mover.property("CanMove").toBool(), starts);
    QCOMPARE(mover.property("PressPos").isValid(), starts);
    if (starts) {
        QCOMPARE(mover.property("CanMove").userType(), int(QMetaType::Bool));
        QCOMPARE(mover.property("PressPos").userType(), int(QMetaType::QPoint));
        QCOMPARE(mover.property("PressPos").toPoint(), place.toPoint());
    }
}

void TestMoveWidget::everyMouseButtonMoves()
{
    for (const Qt::MouseButton button : { Qt::LeftButton, Qt::RightButton, Qt::MiddleButton }) {
        Target target;
        OlvMoveWidget mover(&target);
        mover.setMoveArea(QRect());
        Mouse::press(&target, { 5, 5 }, button);
        QVERIFY(mover.property("CanMove").toBool());
        Mouse::release(&target, {}, button);
        QVERIFY(!mover.property("CanMove").toBool());
    }
}

void TestMoveWidget::followsThePointer()
{
    MovableWidget movable({ 50, 60, 100, 40 });
    QWidget *target = movable.target;
    Mouse::press(target, { 10, 10 });
    // positions are relative to the widget, which moves along
    Mouse::move(target, { 13, 9 });
    QCOMPARE(target->pos(), QPoint(53, 59));
    Mouse::move(target, { 10, 10 });
    QCOMPARE(target->pos(), QPoint(53, 59));
    Mouse::move(target, { -90, 30 });
    QCOMPARE(target->pos(), QPoint(-47, 79));
}

void TestMoveWidget::roundsPositions()
{
    MovableWidget movable({ 50, 60, 100, 40 });
    QWidget *target = movable.target;
    Mouse::press(target, { 9.5, 9.4 });
    Mouse::move(target, { 12.5, 12.4 });
    QCOMPARE(target->pos(), QPoint(53, 63));
}

void TestMoveWidget::stopsAtTheRelease()
{
    MovableWidget movable({ 50, 60, 100, 40 });
    QWidget *target = movable.target;
    Mouse::move(target, { 20, 20 });
    QCOMPARE(target->pos(), QPoint(50, 60));
    Mouse::press(target, { 10, 10 });
    Mouse::release(target, { 20, 20 });
    Mouse::move(target, { 20, 20 });
    QCOMPARE(target->pos(), QPoint(50, 60));
}

void TestMoveWidget::keepsTheMouseFromTheWidget()
{
    Target target;
    OlvMoveWidget mover(&target);
    mover.setMoveArea(QRect(0, 0, 10, 10));
    for (const QPointF &place : { QPointF(5, 5), QPointF(200, 20) }) {
        Mouse::press(&target, place);
        Mouse::move(&target, place);
        Mouse::release(&target, place);
    }
    QCOMPARE(target.handled, QStringList());
}

void TestMoveWidget::startsNoMoveOfAMaximisedWidget()
{
    Target target;
    OlvMoveWidget mover(&target);
    mover.setMoveArea(QRect());
    target.setWindowState(Qt::WindowMaximized);
    Mouse::press(&target, { 5, 5 });
    QVERIFY(!mover.property("CanMove").isValid());
    target.setWindowState(Qt::WindowNoState);
    Mouse::press(&target, { 5, 5 });
    QVERIFY(mover.property("CanMove").toBool());
}

void TestMoveWidget::goesOnWithAMoveThatBeganBefore()
{
    Target target;
    OlvMoveWidget mover(&target);
    mover.setMoveArea(QRect());
    Mouse::press(&target, { 5, 5 });
    target.setWindowState(Qt::WindowMaximized);
    const QPoint before = target.pos();
    Mouse::move(&target, { 8, 5 });
    QCOMPARE(target.pos(), before + QPoint(3, 0));
}

void TestMoveWidget::survivesMisuse()
{
    OlvMoveWidget alone;
    alone.setMoveArea(QRect(0, 0, 5, 5));
    QVERIFY(alone.dynamicPropertyNames().isEmpty());

    // destroyed before its target: the mouse stays with the filter, and nothing moves
    Target target;
    auto *mover = new OlvMoveWidget(&target);
    mover->setMoveArea(QRect());
    Mouse::press(&target, { 5, 5 });
    delete mover;
    Mouse::move(&target, { 50, 5 });
    Mouse::press(&target, { 5, 5 });
    Mouse::release(&target);
    QCOMPARE(target.pos(), QPoint(100, 100));
    QCOMPARE(target.handled, QStringList());

    // moved to another parent
    Target other;
    mover = new OlvMoveWidget(&target);
    mover->setMoveArea(QRect());
    mover->setParent(this);
    Mouse::press(&target, { 5, 5 });
    QVERIFY(!mover->property("CanMove").toBool());
    delete mover;

    // properties of other types
    OlvMoveWidget written(&other);
    written.setMoveArea(QRect());
    for (const char *name : { "MoveArea", "CanMove", "PressPos" }) {
        for (const QVariant &value : { QVariant(), QVariant(7), QVariant(QStringLiteral("x")) }) {
            written.setProperty(name, value);
            Mouse::press(&other, { 5, 5 });
            Mouse::move(&other, { 6, 6 });
            Mouse::release(&other);
        }
    }
    written.setMoveArea(QRect());
    Mouse::press(&other, { 5, 5 });
    QVERIFY(written.property("CanMove").toBool());
}

void TestMoveWidget::ownsNothingOfTheTarget()
{
    auto *target = new Target;
    const QPointer<OlvMoveWidget> mover(new OlvMoveWidget(target));
    mover->setMoveArea(QRect());
    delete target;
    QVERIFY(mover.isNull());
}

void TestMoveWidget::survivesNumbersThatNoWidgetHas_data()
{
    QTest::addColumn<QPoint>("pressed");
    QTest::addColumn<QPointF>("to");
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    QTest::newRow("least") << QPoint(least, least) << QPointF(9, 9);
    QTest::newRow("most") << QPoint(most, most) << QPointF(-9, -9);
    QTest::newRow("infinite") << QPoint(5, 5) << QPointF(qInf(), -qInf());
    QTest::newRow("no number") << QPoint(5, 5) << QPointF(qQNaN(), qQNaN());
}

void TestMoveWidget::survivesNumbersThatNoWidgetHas()
{
    QFETCH(QPoint, pressed);
    QFETCH(QPointF, to);
    Target target;
    OlvMoveWidget mover(&target);
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    mover.setMoveArea(QRect(QPoint(least, least), QPoint(most, most)));
    QVERIFY(mover.property("MoveArea").toRect().right() == most);
    Mouse::press(&target, to);
    Mouse::press(&target, { 5, 5 });
    QVERIFY(mover.property("CanMove").toBool());
    mover.setProperty("PressPos", pressed);
    Mouse::move(&target, to);
    // far off, but where there is room to go on
    QVERIFY(qAbs(qint64(target.x())) <= 1 << 29);
    QVERIFY(qAbs(qint64(target.y())) <= 1 << 29);
    Mouse::release(&target);
    QVERIFY(!mover.property("CanMove").toBool());
}

ADD_TEST(TestMoveWidget, QApplication)
#include "tst_movewidget.moc"
