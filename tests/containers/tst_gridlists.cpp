// SPDX-License-Identifier: MIT
#include "gridscene.h"
#include "onevent.h"
#include "testprogram.h"

#include <QPointer>
#include <QTest>

namespace {

using Tiles = QList<QWidget *>;

Tiles makeTiles(QWidget *parent, int count)
{
    Tiles tiles;
    for (int i = 0; i < count; ++i) {
        tiles.append(makeTile(parent, 50));
    }
    return tiles;
}

/** Counts the moves of a tile, which each reflow that finds another place for it makes once. */
class MoveCount : public QObject
{
public:
    explicit MoveCount(QWidget *tile)
    {
        tile->installEventFilter(this); // clazy:exclude=install-event-filter
    }

    int moves = 0;

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        moves += event->type() == QEvent::Move ? 1 : 0;
        return false;
    }
};

} // namespace

class TestGridLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCountedAndFound();
    void insertsAListInItsOrder();
    void insertsNothingBeforeAStranger();
    void deletesAList();
    void reflowsOnceForAList();
    void takesAWidgetOutAlive();
    void takesAWidgetOfAnotherParent();
    void takesOnlyWhatItHas();
    void forgetsAWidgetThatWasTaken();
    void isCleared();
    void isClearedWhileItIsScrolled();
    void keepsTheBarForWhatIsAddedWhileItIsCleared();
    void leavesConnectionsOfTheApplication();
    void survivesDeletionsInAList();
    void survivesItsOwnDeletion();
};

void TestGridLists::isCountedAndFound()
{
    GridScene scene(true);
    QCOMPARE(scene.grid->count(), 0);
    QCOMPARE(scene.grid->widgetAt(0), nullptr);
    const Tiles tiles = makeTiles(scene.grid, 3);
    tiles.at(1)->hide();
    scene.grid->addWidget(tiles);
    QCOMPARE(scene.grid->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(scene.grid->widgetAt(i), tiles.at(i));
        QCOMPARE(scene.grid->indexOf(tiles.at(i)), i);
    }
    QCOMPARE(scene.grid->widgetAt(-1), nullptr);
    QCOMPARE(scene.grid->widgetAt(3), nullptr);
    QCOMPARE(scene.grid->indexOf(nullptr), -1);
    QCOMPARE(scene.grid->indexOf(scene.viewport), -1);

    delete tiles.at(0);
    QCOMPARE(scene.grid->count(), 2);
    QCOMPARE(scene.grid->widgetAt(0), tiles.at(1));
}

void TestGridLists::insertsAListInItsOrder()
{
    GridScene scene(true);
    const Tiles tiles = makeTiles(scene.grid, 5);
    scene.grid->addWidget({ tiles.at(0), tiles.at(4) });
    QVERIFY(scene.grid->insWidget({ tiles.at(1), nullptr, tiles.at(2), tiles.at(3) }, tiles.at(4)));
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(scene.grid->widgetAt(i), tiles.at(i));
    }
    // 285 pixels have room for four
    QCOMPARE(tiles.at(3)->pos(), QPoint(210, 15));
    QCOMPARE(tiles.at(4)->pos(), QPoint(15, 50));
}

void TestGridLists::insertsNothingBeforeAStranger()
{
    GridScene scene(true);
    const Tiles tiles = makeTiles(scene.grid, 3);
    scene.grid->addWidget(tiles.at(0));
    QVERIFY(!scene.grid->insWidget({ tiles.at(1), tiles.at(2) }, nullptr));
    QVERIFY(!scene.grid->insWidget({ tiles.at(1), tiles.at(2) }, scene.viewport));
    QCOMPARE(scene.grid->count(), 1);
}

void TestGridLists::deletesAList()
{
    GridScene scene(true);
    const Tiles tiles = makeTiles(scene.grid, 4);
    const QPointer<QWidget> second(tiles.at(1));
    const QPointer<QWidget> third(tiles.at(2));
    scene.grid->addWidget(tiles);
    auto *stranger = makeTile(scene.grid, 50);
    QVERIFY(!scene.grid->delWidget({ stranger, nullptr }));
    QVERIFY(!scene.grid->delWidget(Tiles()));
    QCOMPARE(scene.grid->count(), 4);
    QVERIFY(scene.grid->delWidget({ tiles.at(1), stranger, tiles.at(2) }));
    QVERIFY(!second);
    QVERIFY(!third);
    QCOMPARE(scene.grid->count(), 2);
    QCOMPARE(tiles.at(3)->pos(), QPoint(80, 15));
}

void TestGridLists::reflowsOnceForAList()
{
    GridScene scene(true);
    const Tiles tiles = makeTiles(scene.grid, 4);
    scene.window.show();
    scene.grid->addWidget(tiles);
    const MoveCount last(tiles.at(3));
    const Tiles more = makeTiles(scene.grid, 3);
    QVERIFY(scene.grid->insWidget(more, tiles.at(0)));
    QCOMPARE(last.moves, 1);
    QVERIFY(scene.grid->delWidget(more));
    QCOMPARE(last.moves, 2);
    QCOMPARE(tiles.at(3)->pos(), QPoint(210, 15));
}

void TestGridLists::takesAWidgetOutAlive()
{
    GridScene scene(true);
    const Tiles tiles = makeTiles(scene.grid, 3);
    scene.grid->addWidget(tiles);
    scene.window.show();
    QVERIFY(tiles.at(0)->isVisible());
    std::unique_ptr<QWidget> taken(scene.grid->takeWidget(tiles.at(0)));
    QCOMPARE(taken.get(), tiles.at(0));
    QCOMPARE(taken->parent(), nullptr);
    QVERIFY(!taken->isVisible());
    QCOMPARE(scene.grid->count(), 2);
    QCOMPARE(tiles.at(1)->pos(), QPoint(15, 15));

    // into another grid
    auto *other = new OlvGridLayout(scene.viewport);
    taken->setParent(other);
    other->addWidget(taken.get());
    QCOMPARE(other->indexOf(taken.release()), 0);
}

void TestGridLists::takesAWidgetOfAnotherParent()
{
    GridScene scene(true);
    QWidget *outside = makeTile(&scene.window, 50);
    scene.grid->addWidget(outside);
    QCOMPARE(scene.grid->takeWidget(outside), outside);
    QCOMPARE(outside->parentWidget(), &scene.window);
    QCOMPARE(scene.grid->count(), 0);
    QVERIFY(!labelOf(*scene.grid)->isHidden());
}

void TestGridLists::takesOnlyWhatItHas()
{
    GridScene scene(true);
    QWidget *tile = makeTile(scene.grid, 50);
    QCOMPARE(scene.grid->takeWidget(nullptr), nullptr);
    QCOMPARE(scene.grid->takeWidget(tile), nullptr);
    QCOMPARE(tile->parentWidget(), scene.grid);
    scene.grid->addWidget({ tile, tile });
    const std::unique_ptr<QWidget> taken(scene.grid->takeWidget(tile));
    QCOMPARE(taken.get(), tile);
    QCOMPARE(scene.grid->count(), 0);
    QCOMPARE(scene.grid->takeWidget(tile), nullptr);
}

void TestGridLists::forgetsAWidgetThatWasTaken()
{
    GridScene scene(true);
    std::unique_ptr<QWidget> taken;
    {
        GridScene other(true);
        QWidget *tile = makeTile(other.grid, 50);
        other.grid->addWidget(tile);
        taken.reset(other.grid->takeWidget(tile));
        scene.grid->addWidget(taken.get());
        other.grid->addWidget(makeTile(other.grid, 50));
        taken.reset();
        QCOMPARE(other.grid->count(), 1);
        QCOMPARE(scene.grid->count(), 0);
    }
}

void TestGridLists::isCleared()
{
    GridScene scene(false);
    const Tiles tiles = makeTiles(scene.grid, 9);
    const QPointer<QWidget> first(tiles.first());
    const QPointer<QWidget> last(tiles.last());
    scene.grid->addWidget(tiles);
    scene.grid->clear();
    QVERIFY(!first);
    QVERIFY(!last);
    QCOMPARE(scene.grid->count(), 0);
    QVERIFY(!labelOf(*scene.grid)->isHidden());
    QCOMPARE(scene.grid->height(), 50);
    scene.grid->clear();
    QCOMPARE(scene.grid->count(), 0);
}

void TestGridLists::isClearedWhileItIsScrolled()
{
    GridScene scene(true);
    scene.grid->addWidget(makeTile(scene.grid, 50, 1170));
    barOf(*scene.grid)->setValue(40);
    scene.grid->clear();
    QCOMPARE(scene.grid->pos(), QPoint(0, 0));
    QVERIFY(barOf(*scene.grid)->isHidden());
}

void TestGridLists::keepsTheBarForWhatIsAddedWhileItIsCleared()
{
    GridScene scene(true);
    QWidget *tile = makeTile(scene.grid, 50);
    scene.grid->addWidget(tile);
    connect(tile, &QObject::destroyed, scene.grid,
            [&] { scene.grid->addWidget(makeTile(scene.grid, 50, 1170)); });
    scene.grid->clear();
    QCOMPARE(scene.grid->count(), 1);
    QVERIFY(!barOf(*scene.grid)->isHidden());
    QCOMPARE(barOf(*scene.grid)->maximum(), 40);
}

void TestGridLists::leavesConnectionsOfTheApplication()
{
    GridScene scene(true);
    QWidget *tile = makeTile(scene.grid, 50);
    scene.grid->addWidget(tile);
    bool isTold = false;
    connect(tile, &QObject::destroyed, scene.grid, [&] { isTold = true; });
    delete scene.grid->takeWidget(tile);
    QVERIFY(isTold);
    QCOMPARE(scene.grid->count(), 0);
}

void TestGridLists::survivesDeletionsInAList()
{
    GridScene scene(true);
    const Tiles tiles = makeTiles(scene.grid, 4);
    scene.grid->addWidget(tiles);
    connect(tiles.at(0), &QObject::destroyed, tiles.at(2), [&] { delete tiles.at(2); });
    connect(tiles.at(1), &QObject::destroyed, scene.grid,
            [&] { scene.grid->addWidget(makeTile(scene.grid, 60)); });
    scene.grid->clear();
    // what was added meanwhile stays
    QCOMPARE(scene.grid->count(), 1);
    QCOMPARE(scene.grid->widgetAt(0)->width(), 60);
}

void TestGridLists::survivesItsOwnDeletion()
{
    const auto isDeletedBy = [](const std::function<void(OlvGridLayout *)> &act) {
        GridScene scene(true);
        const QPointer<OlvGridLayout> watched(scene.grid);
        // not children of the grid: Qt goes on to use a tile that it moves
        const Tiles tiles = makeTiles(scene.viewport, 3);
        scene.grid->addWidget(tiles);
        scene.window.show();
        const OnEvent onMove(tiles.at(2), QEvent::Move, [&] { delete watched; });
        act(scene.grid);
        return watched.isNull();
    };
    QVERIFY(isDeletedBy([](OlvGridLayout *grid) { grid->takeWidget(grid->widgetAt(0)); }));
    QVERIFY(isDeletedBy([](OlvGridLayout *grid) { grid->delWidget(Tiles{ grid->widgetAt(0) }); }));
    QVERIFY(isDeletedBy([](OlvGridLayout *grid) {
        grid->insWidget(Tiles{ grid->widgetAt(0) }, grid->widgetAt(0));
    }));
}

ADD_TEST(TestGridLists, QApplication)
#include "tst_gridlists.moc"
