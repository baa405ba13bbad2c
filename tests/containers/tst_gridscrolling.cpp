// SPDX-License-Identifier: MIT
#include "gridscene.h"
#include "testprogram.h"

#include <QTest>

class TestGridScrolling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scrollsByTheRestOfTheHeight_data();
    void scrollsByTheRestOfTheHeight();
    void barMovesTheGrid();
    void wheelScrolls_data();
    void wheelScrolls();
    void wheelDoesNothingInAWindow();
    void wheelStaysWithTheGrid_data();
    void wheelStaysWithTheGrid();
    void barFollowsTheHeightOfTheViewport();
    void keepsItsPlaceWhenItIsEmptiedWhileScrolled();
    void ensuresThatATileIsVisible_data();
    void ensuresThatATileIsVisible();
    void ensuresThatTheLastPixelsAreVisible();
    void ensuresThatTheInsideOfATileIsVisible();
    void ensuresNothingElse();
    void ensuresWhatADueReflowMoves();
    void ensuresNothingForWhatIsHidden();
    void ensuresWhatIsNotYetShown();
    void reachesTheLastPixelsOfWhatIsLeft();
};

void TestGridScrolling::scrollsByTheRestOfTheHeight_data()
{
    QTest::addColumn<int>("tileHeight");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("shown");
    QTest::newRow("fits") << 100 << 0 << false;
    QTest::newRow("fits exactly") << 170 << 0 << false;
    QTest::newRow("a pixel more") << 171 << 0 << true;
    QTest::newRow("24 more") << 194 << 0 << true;
    QTest::newRow("25 more") << 195 << 1 << true;
    QTest::newRow("60 more, 10 out of reach") << 230 << 2 << true;
    QTest::newRow("500 more") << 670 << 20 << true;
}

void TestGridScrolling::scrollsByTheRestOfTheHeight()
{
    QFETCH(int, tileHeight);
    QFETCH(int, maximum);
    QFETCH(bool, shown);
    GridScene scene(true);
    barOf(*scene.grid)->setMaximum(0);
    scene.grid->addWidget(makeTile(scene.grid, 50, tileHeight));
    QCOMPARE(!barOf(*scene.grid)->isHidden(), shown);
    QCOMPARE(barOf(*scene.grid)->maximum(), maximum);
    QCOMPARE(barOf(*scene.grid)->minimum(), 0);
}

void TestGridScrolling::barMovesTheGrid()
{
    GridScene scene(true);
    auto *tile = makeTile(scene.grid, 50, 1170); // 1000 pixels more than fit
    scene.grid->addWidget(tile);
    barOf(*scene.grid)->setValue(7);
    QCOMPARE(scene.grid->pos(), QPoint(0, -175));
    barOf(*scene.grid)->setValue(40);
    QCOMPARE(scene.grid->pos(), QPoint(0, -1000));

    // a reflow leaves the place; a smaller maximum brings it along
    scene.grid->reUi();
    QCOMPARE(scene.grid->pos(), QPoint(0, -1000));
    tile->resize(50, 670);
    scene.grid->reUi();
    QCOMPARE(barOf(*scene.grid)->value(), 20);
    QCOMPARE(scene.grid->pos(), QPoint(0, -500));
}

void TestGridScrolling::wheelScrolls_data()
{
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("value");
    QTest::newRow("down") << QPoint(0, -120) << 0 << 20;
    QTest::newRow("down twice as far is one notch") << QPoint(0, -240) << 0 << 20;
    QTest::newRow("up") << QPoint(0, 120) << 35 << 15;
    QTest::newRow("up, clamped") << QPoint(0, 120) << 7 << 0;
    QTest::newRow("down, clamped") << QPoint(0, -120) << 30 << 40;
    QTest::newRow("down by the least there is") << QPoint(0, -1) << 0 << 20;
    QTest::newRow("up by the least there is") << QPoint(0, 1) << 35 << 15;
    QTest::newRow("nothing goes up") << QPoint(0, 0) << 35 << 15;
    QTest::newRow("right turn of a horizontal wheel") << QPoint(-120, 0) << 0 << 20;
    QTest::newRow("left turn of a horizontal wheel") << QPoint(120, 0) << 35 << 15;
    QTest::newRow("more down than left") << QPoint(60, -120) << 0 << 20;
    QTest::newRow("more left than down") << QPoint(120, -60) << 35 << 15;
    QTest::newRow("as much of both goes by the vertical") << QPoint(120, -120) << 0 << 20;
}

void TestGridScrolling::wheelScrolls()
{
    QFETCH(QPoint, angle);
    QFETCH(int, start);
    QFETCH(int, value);
    GridScene scene(true);
    scene.grid->addWidget(makeTile(scene.grid, 50, 1170)); // a maximum of 40
    barOf(*scene.grid)->setValue(start);
    wheel(*scene.grid, angle);
    QCOMPARE(barOf(*scene.grid)->value(), value);
}

void TestGridScrolling::wheelDoesNothingInAWindow()
{
    GridScene scene(false);
    scene.grid->addWidget(makeTile(scene.grid, 50, 900));
    wheel(*scene.grid, QPoint(0, -120));
    QCOMPARE(scene.grid->pos(), QPoint(1, 1));
}

void TestGridScrolling::wheelStaysWithTheGrid_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::newRow("in a viewport") << true;
    QTest::newRow("in a window") << false;
}

void TestGridScrolling::wheelStaysWithTheGrid()
{
    QFETCH(bool, embedded);
    class OpenGrid : public OlvGridLayout
    {
    public:
        using OlvGridLayout::OlvGridLayout;
        using OlvGridLayout::wheelEvent;
    };
    QWidget window;
    OpenGrid grid(embedded ? new QWidget(&window) : &window);
    grid.addWidget(makeTile(&grid, 50, 1170));
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    event.accept();
    grid.wheelEvent(&event);
    QVERIFY(event.isAccepted());
}

void TestGridScrolling::barFollowsTheHeightOfTheViewport()
{
    GridScene scene(true);
    scene.grid->addWidget(makeTile(scene.grid, 50, 670)); // 700 pixels high
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    QTRY_VERIFY(!timerOf(*scene.grid)->isActive());
    QScrollBar *bar = barOf(*scene.grid);
    QCOMPARE(bar->maximum(), 20);

    scene.viewport->resize(300, 100);
    // known from the moment when the size has settled
    scene.grid->reUi();
    QCOMPARE(bar->maximum(), 20);
    QCOMPARE(bar->height(), 200);
    QTRY_COMPARE(bar->maximum(), 24);
    QCOMPARE(bar->geometry(), QRect(287, 0, 10, 100));
    QVERIFY(bar->isVisible());
    bar->setValue(24);

    scene.viewport->resize(300, 699);
    QTRY_COMPARE(bar->maximum(), 0);
    QVERIFY(bar->isVisible());
    QCOMPARE(scene.grid->pos(), QPoint(0, 0));
    scene.viewport->resize(300, 700);
    QTRY_VERIFY(!bar->isVisible());
    QCOMPARE(bar->height(), 700);
}

void TestGridScrolling::keepsItsPlaceWhenItIsEmptiedWhileScrolled()
{
    GridScene scene(true);
    auto *tile = makeTile(scene.grid, 50, 1170);
    scene.grid->addWidget(tile);
    scene.window.show();
    QScrollBar *bar = barOf(*scene.grid);
    bar->setValue(30);
    QVERIFY(scene.grid->delWidget(tile));
    QCOMPARE(scene.grid->geometry(), QRect(0, -750, 300, 200));
    QCOMPARE(bar->value(), 30);
    QCOMPARE(bar->maximum(), 40);
    QVERIFY(bar->isVisible());
    QVERIFY(labelOf(*scene.grid)->isVisible());
}

void TestGridScrolling::ensuresThatATileIsVisible_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("value");
    // 50 tiles, each 20 high in a row of its own: tile i begins at 15 + 35 * i; 200 are visible
    QTest::newRow("visible already") << 4 << 4 << 4;
    QTest::newRow("the first of all") << 0 << 30 << 0;
    QTest::newRow("above: its margin begins at 245") << 7 << 30 << 9;
    QTest::newRow("below: its margin ends at 750") << 20 << 0 << 22;
    QTest::newRow("below: its margin ends at 785") << 21 << 0 << 24;
    QTest::newRow("cut off above") << 7 << 10 << 9;
    QTest::newRow("cut off below") << 20 << 21 << 22;
}

void TestGridScrolling::ensuresThatATileIsVisible()
{
    QFETCH(int, index);
    QFETCH(int, start);
    QFETCH(int, value);
    GridScene scene(true);
    for (int i = 0; i < 50; ++i) {
        scene.grid->addWidget(makeTile(scene.grid, 200));
    }
    barOf(*scene.grid)->setValue(start);
    scene.grid->ensureVisible(scene.grid->widgetAt(index));
    QCOMPARE(barOf(*scene.grid)->value(), value);
    const QRect shown(scene.grid->widgetAt(index)->mapTo(scene.viewport, QPoint(0, 0)),
                      QSize(200, 20));
    QVERIFY(scene.viewport->rect().contains(shown));
}

void TestGridScrolling::ensuresThatTheLastPixelsAreVisible()
{
    GridScene scene(true);
    scene.grid->addWidget({ makeTile(scene.grid, 200, 100), makeTile(scene.grid, 200, 109) });
    QCOMPARE(scene.grid->height(), 254);
    QScrollBar *bar = barOf(*scene.grid);
    QCOMPARE(bar->maximum(), 2);
    scene.grid->ensureVisible(scene.grid->widgetAt(1));
    QCOMPARE(bar->value(), 3);
    QCOMPARE(scene.grid->y(), -75);

    // the top of what is higher than the viewport
    scene.grid->widgetAt(1)->resize(200, 400);
    scene.grid->reUi();
    bar->setValue(0);
    scene.grid->ensureVisible(scene.grid->widgetAt(1));
    QCOMPARE(bar->value(), 4);
    bar->setValue(14);
    scene.grid->ensureVisible(scene.grid->widgetAt(1));
    QCOMPARE(bar->value(), 4);
}

void TestGridScrolling::ensuresThatTheInsideOfATileIsVisible()
{
    GridScene scene(true);
    auto *tile = makeTile(scene.grid, 200, 2000);
    auto *inside = makeTile(tile, 50);
    inside->move(10, 1500);
    scene.grid->addWidget(tile);
    scene.grid->ensureVisible(inside);
    // its margin ends at 1550
    QCOMPARE(barOf(*scene.grid)->value(), 54);
}

void TestGridScrolling::ensuresNothingElse()
{
    GridScene scene(true);
    QWidget *tile = makeTile(scene.grid, 200, 2000);
    scene.grid->addWidget(tile);
    barOf(*scene.grid)->setValue(9);
    for (QWidget *widget : { static_cast<QWidget *>(nullptr), scene.viewport, &scene.window,
                             static_cast<QWidget *>(scene.grid) }) {
        scene.grid->ensureVisible(widget);
    }
    QCOMPARE(barOf(*scene.grid)->value(), 9);

    // all of the content is visible
    tile->resize(200, 20);
    scene.grid->reUi();
    barOf(*scene.grid)->setValue(0);
    scene.grid->ensureVisible(tile);
    QCOMPARE(scene.grid->y(), 0);

    delete barOf(*scene.grid);
    tile->resize(200, 2000);
    scene.grid->reUi();
    scene.grid->ensureVisible(tile);
    QCOMPARE(scene.grid->y(), 0);

    GridScene window(false);
    QWidget *last = makeTile(window.grid, 200, 900);
    window.grid->addWidget(last);
    window.grid->ensureVisible(last);
    QCOMPARE(window.grid->pos(), QPoint(1, 1));
}

void TestGridScrolling::ensuresWhatADueReflowMoves()
{
    GridScene scene(true);
    for (int i = 0; i < 50; ++i) {
        scene.grid->addWidget(makeTile(scene.grid, 200));
    }
    scene.grid->setRetainSizeWhenHidden(false);
    scene.window.show();
    QCoreApplication::processEvents();
    for (int i = 0; i < 30; ++i) {
        scene.grid->widgetAt(i)->hide();
    }
    scene.grid->ensureVisible(scene.grid->widgetAt(40));
    QCOMPARE(scene.grid->widgetAt(40)->y(), 15 + 10 * 35);
    QCOMPARE(barOf(*scene.grid)->value(), 8); // its margin ends at 400
}

void TestGridScrolling::ensuresNothingForWhatIsHidden()
{
    GridScene scene(true);
    for (int i = 0; i < 60; ++i) {
        scene.grid->addWidget(makeTile(scene.grid, 200));
    }
    QWidget *last = scene.grid->widgetAt(59);
    auto *inside = makeTile(last, 10);
    for (int i = 30; i < 60; ++i) {
        scene.grid->widgetAt(i)->hide();
    }
    scene.grid->setRetainSizeWhenHidden(false);
    const int maximum = barOf(*scene.grid)->maximum();
    for (QWidget *hidden : { last, inside }) {
        scene.grid->ensureVisible(hidden);
        QCOMPARE(scene.grid->y(), 0);
        QCOMPARE(barOf(*scene.grid)->maximum(), maximum);
    }
    // where it keeps its place, that can be seen
    scene.grid->setRetainSizeWhenHidden(true);
    scene.grid->ensureVisible(last);
    QVERIFY(scene.grid->y() < 0);
}

void TestGridScrolling::ensuresWhatIsNotYetShown()
{
    GridScene scene(true);
    scene.grid->setRetainSizeWhenHidden(false);
    for (int i = 0; i < 60; ++i) {
        scene.grid->addWidget(makeTile(scene.grid, 200));
        scene.grid->widgetAt(i)->hide();
    }
    for (int i = 0; i < 60; ++i) {
        scene.grid->widgetAt(i)->show();
    }
    QWidget *tile = scene.grid->widgetAt(50);
    scene.grid->ensureVisible(tile);
    scene.window.show();
    const QRect shown(tile->mapTo(scene.viewport, QPoint(0, 0)), tile->size());
    QVERIFY(scene.viewport->rect().contains(shown));
}

void TestGridScrolling::reachesTheLastPixelsOfWhatIsLeft()
{
    GridScene scene(true);
    scene.grid->addWidget({ makeTile(scene.grid, 200, 100), makeTile(scene.grid, 200, 109) });
    QCOMPARE(barOf(*scene.grid)->maximum(), 2); // 54 pixels more than fit
    scene.grid->setRetainSizeWhenHidden(false);
    QCOMPARE(barOf(*scene.grid)->maximum(), 3);
}

ADD_TEST(TestGridScrolling, QApplication)
#include "tst_gridscrolling.moc"
