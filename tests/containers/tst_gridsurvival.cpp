// SPDX-License-Identifier: MIT
#include "gridscene.h"
#include "onevent.h"
#include "testprogram.h"

#include <QPointer>
#include <QTest>

#include <limits>
#include <utility>

namespace {

using Tiles = QList<QWidget *>;

/** Prepares a scene, and tells with which event its grid is deleted. */
using Moment = std::pair<QObject *, QEvent::Type> (*)(GridScene &scene, const Tiles &tiles);

} // namespace

Q_DECLARE_METATYPE(Moment)

class TestGridSurvival : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forgetsWidgetsThatDie();
    void survivesWhatOutlivesIt();
    void survivesMisuse();
    void survivesAWidgetThatDeletesAnother_data();
    void survivesAWidgetThatDeletesAnother();
    void survivesItsOwnDeletion_data();
    void survivesItsOwnDeletion();
    void survivesTheLossOfItsBar_data();
    void survivesTheLossOfItsBar();
    void survivesTheLossOfItsLabel();
    void survivesNumbersThatNoWidgetHas();
    void resizesNoGridAroundItBeyondTheLargestSize();
    void readsTheMarginAfreshForEachWidget();
};

void TestGridSurvival::forgetsWidgetsThatDie()
{
    GridScene scene(true);
    auto *first = makeTile(scene.grid, 50);
    auto *second = makeTile(scene.grid, 50);
    auto *outside = new QWidget;
    outside->resize(50, 20);
    scene.grid->addWidget({ first, outside, second, first });
    delete outside;
    scene.grid->reUi();
    QCOMPARE(second->x(), 80);
    delete first;
    scene.grid->reUi();
    QCOMPARE(second->x(), 15);
    delete second;
    scene.grid->reUi();
    QVERIFY(!labelOf(*scene.grid)->isHidden());
}

void TestGridSurvival::survivesWhatOutlivesIt()
{
    {
        GridScene scene(true);
        scene.grid->addWidget(makeTile(scene.grid, 50, 1170));
        QScrollBar *bar = barOf(*scene.grid);
        delete scene.grid;
        bar->setValue(3);
        scene.viewport->resize(200, 100);
    }
    // a widget of the grid that outlives it
    auto *outside = new QWidget;
    {
        GridScene scene(true);
        scene.grid->addWidget(outside);
    }
    delete outside;
}

void TestGridSurvival::survivesMisuse()
{
    GridScene scene(true);
    auto *tile = makeTile(scene.grid, 50);
    scene.grid->addWidget(QList<QWidget *>({ nullptr, tile, nullptr }));
    QVERIFY(!scene.grid->insWidget(nullptr, tile));
    for (const int margin : { -20, 0, 1 << 30, -(1 << 30) }) {
        scene.grid->setMargin(margin);
        scene.grid->setSpacing(margin);
    }
    scene.grid->setMargin(15);
    QCOMPARE(tile->pos(), QPoint(15, 15));
    for (const QVariant &value :
         { QVariant(), QVariant(0xdeadbeefULL), QVariant(QStringLiteral("x")), QVariant(true) }) {
        scene.grid->setProperty("isSubWindow", value);
        scene.grid->reUi();
        scene.grid->resized();
        wheel(*scene.grid, QPoint(0, -120));
    }
    // a tile that deletes its grid
    auto *grid = new OlvGridLayout(scene.viewport);
    const QPointer<OlvGridLayout> watched(grid);
    auto *last = makeTile(scene.viewport, 50);
    grid->addWidget(last);
    connect(last, &QObject::destroyed, this, [=] { delete watched; });
    QVERIFY(grid->delWidget(last));
    QVERIFY(watched.isNull());
}

void TestGridSurvival::survivesAWidgetThatDeletesAnother_data()
{
    QTest::addColumn<int>("victim");
    QTest::addColumn<int>("lastX");
    QTest::newRow("one that is placed") << 0 << 145;
    QTest::newRow("the next") << 2 << 80;
    QTest::newRow("the last") << 3 << -1;
}

void TestGridSurvival::survivesAWidgetThatDeletesAnother()
{
    QFETCH(int, victim);
    QFETCH(int, lastX);
    GridScene scene(true);
    QList<QWidget *> tiles;
    for (int i = 0; i < 4; ++i) {
        tiles.append(makeTile(scene.grid, 50));
    }
    // shown, so that they hear of their moves at once
    scene.window.show();
    const OnEvent onMove(tiles.at(1), QEvent::Move, [&] { delete tiles.at(victim); });
    scene.grid->addWidget(tiles);
    QVERIFY(onMove.happened());
    scene.grid->reUi();
    QCOMPARE(tiles.at(1)->x(), victim == 0 ? 15 : 80);
    if (lastX >= 0) {
        QCOMPARE(tiles.at(3)->x(), victim == 0 ? lastX : 145);
    }
    QCOMPARE(scene.grid->height(), 50);
}

void TestGridSurvival::survivesItsOwnDeletion_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::addColumn<Moment>("moment");
    const auto row = [](const char *name, bool embedded, Moment moment) {
        QTest::newRow(name) << embedded << moment;
    };
    row("a widget moves", true, [](GridScene &, const Tiles &tiles) {
        return std::make_pair<QObject *>(tiles.first(), QEvent::Move);
    });
    row("a widget moves into a row of its own", true, [](GridScene &, const Tiles &tiles) {
        tiles.first()->resize(5000, 50);
        return std::make_pair<QObject *>(tiles.first(), QEvent::Move);
    });
    row("the last widget moves", true, [](GridScene &, const Tiles &tiles) {
        return std::make_pair<QObject *>(tiles.last(), QEvent::Move);
    });
    row("the bar is shown", true, [](GridScene &scene, const Tiles &) {
        return std::make_pair<QObject *>(barOf(*scene.grid), QEvent::Show);
    });
    row("the bar is placed", true, [](GridScene &scene, const Tiles &) {
        scene.viewport->resize(310, 220);
        return std::make_pair<QObject *>(barOf(*scene.grid), QEvent::Resize);
    });
    row("the view has settled", true, [](GridScene &scene, const Tiles &tiles) {
        // the bar is shown already, so that it hears of its new place at once
        scene.grid->addWidget(tiles);
        scene.viewport->resize(310, 220);
        return std::make_pair<QObject *>(barOf(*scene.grid), QEvent::Resize);
    });
    row("the window is resized", false, [](GridScene &scene, const Tiles &) {
        return std::make_pair<QObject *>(&scene.window, QEvent::Resize);
    });
}

void TestGridSurvival::survivesItsOwnDeletion()
{
    QFETCH(bool, embedded);
    QFETCH(Moment, moment);
    GridScene scene(embedded);
    const QPointer<OlvGridLayout> grid(scene.grid);
    // no children of the grid: they live on, and so does what is told of the event
    Tiles tiles;
    for (int i = 0; i < 3; ++i) {
        tiles.append(makeTile(scene.viewport, 50, 1170));
    }
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    const auto event = moment(scene, tiles);
    const OnEvent deletion(event.first, event.second, [&] { delete grid; });
    grid->addWidget(tiles);
    QTRY_VERIFY(grid.isNull());
    // nothing of it is left that could be called
    scene.viewport->resize(400, 300);
    delete tiles.first();
}

void TestGridSurvival::survivesTheLossOfItsBar_data()
{
    QTest::addColumn<bool>("whileArranging");
    QTest::newRow("a widget moves") << true;
    QTest::newRow("the grid is resized") << false;
}

void TestGridSurvival::survivesTheLossOfItsBar()
{
    QFETCH(bool, whileArranging);
    GridScene scene(true);
    QWidget *tile = makeTile(scene.grid, 50, 1170);
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    const QPointer<QScrollBar> bar(barOf(*scene.grid));
    const OnEvent onMove(tile, QEvent::Move, [&] {
        if (whileArranging) {
            delete bar;
        }
    });
    scene.grid->addWidget(tile);
    const OnEvent onResize(scene.grid, QEvent::Resize, [&] { delete bar; });
    scene.viewport->resize(320, 220);
    QTRY_COMPARE(scene.grid->width(), 320);
    QVERIFY(bar.isNull());
    QCOMPARE(tile->pos(), QPoint(15, 15));
    wheel(*scene.grid, QPoint(0, -120));
    scene.grid->reUi();
    QCOMPARE(scene.grid->height(), tile->height() + 30);
}

void TestGridSurvival::survivesTheLossOfItsLabel()
{
    GridScene scene(true);
    delete labelOf(*scene.grid);
    scene.grid->reUi();
    QCOMPARE(scene.grid->height(), 200);
    QWidget *tile = makeTile(scene.grid, 50);
    scene.grid->addWidget(tile);
    QCOMPARE(tile->pos(), QPoint(15, 15));
    QCOMPARE(scene.grid->height(), 50);
}

void TestGridSurvival::survivesNumbersThatNoWidgetHas()
{
    GridScene scene(true);
    for (int i = 0; i < 5; ++i) {
        scene.grid->addWidget(makeTile(scene.grid, 50, 1170));
    }
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    for (const int margin : { least, most, most - 1 }) {
        scene.grid->setMargin(margin);
        QVERIFY(scene.grid->height() <= QWIDGETSIZE_MAX);
    }
    scene.grid->setMargin(15);
    barOf(*scene.grid)->setValue(0);
    // the least int turns further than any other
    wheel(*scene.grid, QPoint(120, least));
    QCOMPARE(barOf(*scene.grid)->value(), 20);
    wheel(*scene.grid, QPoint(most, 0));
    QCOMPARE(barOf(*scene.grid)->value(), 0);
    // a range of the application's
    QScrollBar *bar = barOf(*scene.grid);
    bar->setRange(least, most);
    bar->setValue(most);
    wheel(*scene.grid, QPoint(0, -120));
    QCOMPARE(bar->value(), most);
    bar->setValue(least);
    wheel(*scene.grid, QPoint(0, 120));
    QCOMPARE(bar->value(), 0);
    QVERIFY(qAbs(scene.grid->y()) <= QWIDGETSIZE_MAX);
}

void TestGridSurvival::resizesNoGridAroundItBeyondTheLargestSize()
{
    QWidget window;
    auto *inner = new OlvGridLayout(&window);
    inner->addWidget(makeTile(inner, 50));
    GridScene scene(true);
    scene.window.show(); // Qt bounds the size of a widget that has not been shown yet
    inner->setParent(scene.grid);
    inner->setMargin(QWIDGETSIZE_MAX);
    QCOMPARE(inner->height(), QWIDGETSIZE_MAX);
    QCOMPARE(scene.grid->height(), QWIDGETSIZE_MAX);
}

void TestGridSurvival::readsTheMarginAfreshForEachWidget()
{
    GridScene scene(true);
    auto *first = makeTile(scene.grid, 40);
    auto *second = makeTile(scene.grid, 40);
    scene.window.show();
    const OnEvent onMove(first, QEvent::Move, [&] { scene.grid->setMargin(5); });
    scene.grid->addWidget({ first, second });
    QVERIFY(onMove.happened());
    // the reflow within the move puts the first by the new margin; the one that moved it first, to
    // 15, goes on with the second: 15 + 40 + 5
    QCOMPARE(first->x(), 5);
    QCOMPARE(second->x(), 60);
}

ADD_TEST(TestGridSurvival, QApplication)
#include "tst_gridsurvival.moc"
