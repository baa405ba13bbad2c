// SPDX-License-Identifier: MIT
#include "gridscene.h"
#include "onevent.h"
#include "testprogram.h"

#include <QPointer>
#include <QTest>

namespace {

using Tiles = QList<QWidget *>;

/** A grid of @p count tiles, which leave no gap when they are hidden; shown. */
struct HidingScene : GridScene
{
    explicit HidingScene(int count, bool embedded = true)
        : GridScene(embedded)
    {
        for (int i = 0; i < count; ++i) {
            tiles.append(makeTile(grid, 50));
        }
        grid->setRetainSizeWhenHidden(false);
        grid->addWidget(tiles);
        window.show();
        QCoreApplication::processEvents();
    }

    Tiles tiles;
};

} // namespace

/** Tiles that are hidden, and take no place then. */
class TestGridHiding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsThePlacesAtFirst();
    void closesTheGapsAtOnceWhenItIsTold();
    void followsWhatIsHiddenAndShown();
    void reflowsOnceHoweverManyChange();
    void followsAtLastWhatChangedWhileItWasHidden();
    void leavesOutWhatWasNeverShown();
    void scrollsBackToWhatIsLeft();
    void showsThatNothingIsLeft_data();
    void showsThatNothingIsLeft();
    void survivesItsDeletion_data();
    void survivesItsDeletion();
    void survivesDeletionsBeforeItScrolls_data();
    void survivesDeletionsBeforeItScrolls();
};

void TestGridHiding::keepsThePlacesAtFirst()
{
    GridScene scene(true);
    QVERIFY(scene.grid->retainSizeWhenHidden());
    const Tiles tiles{ makeTile(scene.grid, 50), makeTile(scene.grid, 50) };
    scene.grid->addWidget(tiles);
    scene.window.show();
    tiles.at(0)->hide();
    QCoreApplication::processEvents();
    scene.grid->reUi();
    QCOMPARE(tiles.at(1)->pos(), QPoint(80, 15));
}

void TestGridHiding::closesTheGapsAtOnceWhenItIsTold()
{
    GridScene scene(true);
    const Tiles tiles{ makeTile(scene.grid, 50), makeTile(scene.grid, 50) };
    scene.grid->addWidget(tiles);
    tiles.at(0)->hide();
    scene.grid->setRetainSizeWhenHidden(false);
    QVERIFY(!scene.grid->retainSizeWhenHidden());
    QCOMPARE(tiles.at(1)->pos(), QPoint(15, 15));
    scene.grid->setRetainSizeWhenHidden(true);
    QCOMPARE(tiles.at(1)->pos(), QPoint(80, 15));
}

void TestGridHiding::followsWhatIsHiddenAndShown()
{
    HidingScene scene(3);
    scene.tiles.at(1)->hide();
    QCOMPARE(scene.tiles.at(2)->pos(), QPoint(145, 15));
    QCoreApplication::processEvents();
    QCOMPARE(scene.tiles.at(2)->pos(), QPoint(80, 15));
    scene.tiles.at(1)->show();
    QCoreApplication::processEvents();
    QCOMPARE(scene.tiles.at(1)->pos(), QPoint(80, 15));
    QCOMPARE(scene.tiles.at(2)->pos(), QPoint(145, 15));
}

void TestGridHiding::reflowsOnceHoweverManyChange()
{
    HidingScene scene(40);
    // the last tile moves by each reflow that closes another gap
    class MoveCount : public QObject
    {
    public:
        using QObject::QObject;
        int moves = 0;
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            moves += event->type() == QEvent::Move ? 1 : 0;
            return false;
        }
    } count;
    scene.tiles.last()->installEventFilter(&count);
    for (int i = 0; i < 30; ++i) {
        scene.tiles.at(i)->hide();
    }
    QCOMPARE(count.moves, 0);
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::processEvents();
    }
    QCOMPARE(count.moves, 1);
    // ten are left, four in a row
    QCOMPARE(scene.tiles.last()->pos(), QPoint(80, 15 + 2 * 35));
    QCOMPARE(scene.grid->height(), 15 + 3 * 35);
}

void TestGridHiding::followsAtLastWhatChangedWhileItWasHidden()
{
    HidingScene scene(3);
    scene.window.hide();
    scene.tiles.at(0)->hide();
    scene.window.show();
    QCOMPARE(scene.tiles.at(1)->pos(), QPoint(15, 15));
}

void TestGridHiding::leavesOutWhatWasNeverShown()
{
    HidingScene scene(2);
    auto *unseen = makeTile(scene.grid, 50);
    QVERIFY(scene.grid->insWidget(unseen, scene.tiles.at(0)));
    QCOMPARE(scene.tiles.at(0)->pos(), QPoint(15, 15));
    unseen->show();
    QCoreApplication::processEvents();
    QCOMPARE(unseen->pos(), QPoint(15, 15));
    QCOMPARE(scene.tiles.at(0)->pos(), QPoint(80, 15));
}

void TestGridHiding::scrollsBackToWhatIsLeft()
{
    HidingScene scene(400);
    QScrollBar *bar = barOf(*scene.grid);
    bar->setValue(bar->maximum());
    QVERIFY(scene.grid->y() < -3000);
    for (int i = 3; i < 400; ++i) {
        scene.tiles.at(i)->hide();
    }
    QCoreApplication::processEvents();
    QCOMPARE(scene.grid->pos(), QPoint(0, 0));
    QVERIFY(bar->isHidden());
    for (QWidget *tile : qAsConst(scene.tiles)) {
        tile->show();
    }
    QCoreApplication::processEvents();
    QVERIFY(!bar->isHidden());
    QCOMPARE(bar->maximum(), (15 + 100 * 35 - 200 + 24) / 25);
}

void TestGridHiding::showsThatNothingIsLeft_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::addColumn<int>("height");
    QTest::newRow("in a viewport") << true << 200;
    QTest::newRow("in a window") << false << 50;
}

void TestGridHiding::showsThatNothingIsLeft()
{
    QFETCH(bool, embedded);
    QFETCH(int, height);
    HidingScene scene(80, embedded);
    if (embedded) {
        barOf(*scene.grid)->setValue(9);
    }
    for (QWidget *tile : qAsConst(scene.tiles)) {
        tile->hide();
    }
    QCoreApplication::processEvents();
    QVERIFY(!labelOf(*scene.grid)->isHidden());
    QCOMPARE(scene.grid->height(), height);
    QCOMPARE(scene.grid->pos(), embedded ? QPoint(0, 0) : QPoint(1, 1));
    QCOMPARE(labelOf(*scene.grid)->size(), scene.grid->size());
    scene.tiles.at(5)->show();
    QCoreApplication::processEvents();
    QVERIFY(labelOf(*scene.grid)->isHidden());
    QCOMPARE(scene.tiles.at(5)->pos(), QPoint(15, 15));
}

void TestGridHiding::survivesItsDeletion_data()
{
    QTest::addColumn<bool>("byBar");
    QTest::newRow("by a tile that moves") << false;
    QTest::newRow("by the bar that scrolls back") << true;
}

void TestGridHiding::survivesItsDeletion()
{
    QFETCH(bool, byBar);
    HidingScene scene(100);
    const QPointer<OlvGridLayout> watched(scene.grid);
    QScrollBar *bar = barOf(*scene.grid);
    bar->setValue(20);
    // not a child of the grid: Qt goes on to use a tile that it moves
    QWidget *last = makeTile(scene.viewport, 50);
    last->show();
    scene.grid->addWidget(last);
    const OnEvent onMove(last, QEvent::Move, [&] {
        if (!byBar) {
            delete watched;
        }
    });
    connect(bar, &QScrollBar::valueChanged, this, [&] {
        if (byBar) {
            delete bar;
            delete watched;
        }
    });
    for (int i = 0; i < 98; ++i) {
        scene.tiles.at(i)->hide();
    }
    QCoreApplication::processEvents();
    QVERIFY(!watched);
}

void TestGridHiding::survivesDeletionsBeforeItScrolls_data()
{
    QTest::addColumn<bool>("ofGrid");
    QTest::newRow("of the widget to show") << false;
    QTest::newRow("of the grid") << true;
}

void TestGridHiding::survivesDeletionsBeforeItScrolls()
{
    QFETCH(bool, ofGrid);
    HidingScene scene(100);
    const QPointer<QWidget> grid(scene.grid);
    const QPointer<QWidget> wanted(scene.tiles.at(90));
    QScrollBar *bar = barOf(*scene.grid);
    // not a child of the grid: Qt goes on to use a tile that it moves
    QWidget *mover = makeTile(scene.viewport, 50);
    mover->show();
    scene.grid->insWidget(mover, scene.tiles.at(50));
    const OnEvent onMove(mover, QEvent::Move, [&] { delete (ofGrid ? grid : wanted); });
    // so that ensureVisible() has to reflow first
    scene.tiles.at(0)->hide();
    scene.grid->ensureVisible(wanted);
    QVERIFY(onMove.happened());
    QVERIFY(!wanted);
    QCOMPARE(grid.isNull(), ofGrid);
    QCOMPARE(bar->value(), 0);
}

ADD_TEST(TestGridHiding, QApplication)
#include "tst_gridhiding.moc"
