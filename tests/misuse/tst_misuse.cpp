// SPDX-License-Identifier: MIT
#include "fakeshortcut.h"
#include "gridscene.h"
#include "mouse.h"
#include "movablewidget.h"
#include "sizedswitch.h"
#include "testprogram.h"

#include <OlvWidgets>

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class TestMisuse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetsWithoutAParentAreWindows();
    void helpersWithoutAWidgetDoNothing();
    void animationWithAnotherTimerIdGoesOn_data();
    void animationWithAnotherTimerIdGoesOn();
    void areaThatIsNoneMovesNothing_data();
    void areaThatIsNoneMovesNothing();
    void pressPositionThatIsNoneCountsAsTheCorner();
    void anothersShortcutIsNotShown();
    void shortcutHandedToTwoFieldsIsDeletedOnce_data();
    void shortcutHandedToTwoFieldsIsDeletedOnce();
    void shortcutThatDestroysItselfInPlaceOfAnother();
};

void TestMisuse::widgetsWithoutAParentAreWindows()
{
    OlvButton button;
    OlvIconButton tile(nullptr);
    OlvIconButton glyph(QLatin1Char('x'), QString(), QString(), nullptr, 0, 0);
    OlvSimpleIconButton star(QString(), QFont(), nullptr);
    OlvLineEdit line;
    OlvShortcutEdit field(nullptr, nullptr);
    OlvSwitch toggle;
    OlvSlider slider;
    SwitchRound disc;
    SliderRound knob(nullptr);
    OlvControlBar bar({}, nullptr);
    OlvDragWidget drag(nullptr, nullptr, nullptr, QPoint());
    OlvGridLayout grid;
    OlvFlexWidget panel(0, 0, nullptr);
    const QList<QWidget *> widgets{ &button, &tile, &star, &line, &field, &toggle, &slider,
                                    &disc,   &knob, &bar,  &drag, &grid,  &panel };
    for (QWidget *widget : widgets) {
        QVERIFY(widget->isWindow());
        widget->resize(70, 30);
        QVERIFY(!widget->grab().isNull());
    }
    QVERIFY(!isChecked(nullptr));
    QCOMPARE(field.shortcut(), nullptr);

    // the knob can be dragged all the same, and has nowhere to go
    QCOMPARE(knob.maxX(), 0);
    Mouse::press(&knob, { 5, 5 });
    Mouse::move(&knob, { 25, 5 });
    QCOMPARE(knob.pos(), QPoint(0, 0));

    // the grid reflows, and does nothing else
    grid.resize(300, 20);
    QWidget *tileInGrid = makeTile(&grid, 50);
    grid.addWidget(tileInGrid);
    QCOMPARE(tileInGrid->pos(), QPoint(15, 15));
    QCOMPARE(grid.size(), QSize(300, 50));
    grid.resized();
    QTRY_VERIFY(!timerOf(grid)->isActive());
    wheel(grid, QPoint(0, -120));
    QCOMPARE(grid.size(), QSize(300, 50));
}

void TestMisuse::helpersWithoutAWidgetDoNothing()
{
    OlvMoveWidget mover(nullptr);
    mover.setMoveArea(QRect(0, 0, 10, 10));
    QVERIFY(!mover.property("MoveArea").isValid());

    QObject watched;
    int events = 0;
    OlvPluginEventFilter filter(nullptr);
    filter.addEventListener(QEvent::User, [&](QEvent *) { ++events; });
    filter.addObject(nullptr);
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&watched, &event);
    QCOMPARE(events, 0);
    filter.addObject(&watched);
    QCoreApplication::sendEvent(&watched, &event);
    QCOMPARE(events, 1);
}

void TestMisuse::animationWithAnotherTimerIdGoesOn_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("none") << QVariant();
    QTest::newRow("text") << QVariant(QStringLiteral("x"));
    QTest::newRow("0") << QVariant(0);
    QTest::newRow("another number") << QVariant(123456);
}

void TestMisuse::animationWithAnotherTimerIdGoesOn()
{
    QFETCH(QVariant, value);
    SizedSwitch toggle;
    QSignalSpy changed(&toggle, &OlvSwitch::changed);
    toggle.setValue(true);
    toggle.setProperty("timerId", value);
    if (value.toInt() != 0) {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^QObject::killTimer")));
    }
    runAnimation(toggle);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(toggle.getValue(), QVariant(true));
}

void TestMisuse::areaThatIsNoneMovesNothing_data()
{
    QTest::addColumn<QVariant>("area");
    QTest::addColumn<QPoint>("moved");
    QTest::newRow("none") << QVariant() << QPoint(0, 0);
    QTest::newRow("text") << QVariant(QStringLiteral("0,0,100,100")) << QPoint(0, 0);
    QTest::newRow("number") << QVariant(0xdeadbeefULL) << QPoint(0, 0);
    QTest::newRow("null") << QVariant(QRect()) << QPoint(0, 0);
    QTest::newRow("with fractions") << QVariant(QRectF(0, 0, 100, 100)) << QPoint(7, 8);
    QTest::newRow("huge") << QVariant(QRect(-1000000, -1000000, 2000000, 2000000)) << QPoint(7, 8);
}

void TestMisuse::areaThatIsNoneMovesNothing()
{
    QFETCH(QVariant, area);
    QFETCH(QPoint, moved);
    MovableWidget movable;
    QWidget *target = movable.target;
    movable.mover.setProperty("MoveArea", area);
    Mouse::press(target, { 10, 10 });
    Mouse::move(target, { 17, 18 });
    QCOMPARE(target->pos(), QPoint(20, 30) + moved);
    Mouse::release(target);
}

void TestMisuse::pressPositionThatIsNoneCountsAsTheCorner()
{
    for (const QVariant &value :
         { QVariant(), QVariant(QStringLiteral("x")), QVariant(5), QVariant(QRect(1, 2, 3, 4)) }) {
        MovableWidget movable;
        QWidget *target = movable.target;
        Mouse::press(target, { 10, 10 });
        movable.mover.setProperty("PressPos", value);
        Mouse::move(target, { 17, 18 });
        QCOMPARE(target->pos(), QPoint(37, 48));
    }
}

void TestMisuse::anothersShortcutIsNotShown()
{
    takeRecord();
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("own")));
    OlvShortcutEdit other(new FakeShortcut(QStringLiteral("other")));
    edit.setProperty("OlvShortcut", addressOf(other.shortcut()));
    QCOMPARE(edit.shortcut(), nullptr);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("nullptr")));
    takeRecord();
    edit.clear();
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("own deleted") }));
    QCOMPARE(other.getValue(), QVariant(QStringLiteral("other")));
}

void TestMisuse::shortcutHandedToTwoFieldsIsDeletedOnce_data()
{
    QTest::addColumn<bool>("firstGoesFirst");
    QTest::newRow("the first field goes first") << true;
    QTest::newRow("the second field goes first") << false;
}

void TestMisuse::shortcutHandedToTwoFieldsIsDeletedOnce()
{
    QFETCH(bool, firstGoesFirst);
    takeRecord();
    auto *first = new OlvShortcutEdit;
    auto *second = new OlvShortcutEdit;
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    QVERIFY(first->setShortcut(shortcut));
    QVERIFY(first->setShortcut(shortcut));
    QVERIFY(second->setShortcut(shortcut));
    OlvShortcutEdit *left = firstGoesFirst ? second : first;
    delete (firstGoesFirst ? first : second);
    QCOMPARE(left->shortcut(), nullptr);
    QCOMPARE(left->getValue(), QVariant(QStringLiteral("nullptr")));
    QVERIFY(!left->grab().isNull());
    QVERIFY(left->setShortcut(new FakeShortcut(QStringLiteral("two"))));
    delete left;
    const QStringList record = takeRecord();
    QCOMPARE(record.count(QStringLiteral("one deleted")), 1);
    QCOMPARE(record.count(QStringLiteral("two deleted")), 1);
}

void TestMisuse::shortcutThatDestroysItselfInPlaceOfAnother()
{
    takeRecord();
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("one")));
    auto *fleeting = new FakeShortcut(QStringLiteral("two"));
    fleeting->onActive = [=] {
        fleeting->deleteLater();
    };
    QVERIFY(edit.setShortcut(fleeting));
    QCoreApplication::sendPostedEvents(fleeting, QEvent::DeferredDelete);
    QCOMPARE(edit.shortcut(), nullptr);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("nullptr")));
    edit.clear();
    QCOMPARE(edit.property("HasOlvShortcut"), QVariant(false));
}

ADD_TEST(TestMisuse, QApplication)
#include "tst_misuse.moc"
