// SPDX-License-Identifier: MIT
#include "gridscene.h"
#include "onevent.h"

#include <QPointer>
#include <QTest>

#include <memory>

class TestGridSurvival : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forgetsWidgetsThatDie();
    void survivesEitherOrderOfDestruction();
    void survivesMisuse();
    void survivesAWidgetThatDeletesAnother_data();
    void survivesAWidgetThatDeletesAnother();
    void survivesItsOwnDeletion_data();
    void survivesItsOwnDeletion();
    void survivesTheLossOfItsBar_data();
    void survivesTheLossOfItsBar();
    void survivesTheLossOfItsLabel();
    void survivesNumbersThatNoWidgetHas();
    void survivesATileThatDeletesItWhenMoved_data();
    void survivesATileThatDeletesItWhenMoved();
    void readsTheMarginAfreshForEachWidget();
};

void TestGridSurvival::forgetsWidgetsThatDie()
{
    Scene scene(true);
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

void TestGridSurvival::survivesEitherOrderOfDestruction()
{
    for (const bool barFirst : { true, false }) {
        Scene scene(true);
        scene.grid->addWidget(makeTile(scene.grid, 50, 1170));
        QScrollBar *bar = barOf(*scene.grid);
        if (barFirst) {
            delete bar;
            wheel(*scene.grid, QPoint(0, -120));
            scene.viewport->resize(200, 100);
            scene.grid->addWidget(makeTile(scene.grid, 60));
            QCOMPARE(scene.grid->pos(), QPoint(0, 0));
        } else {
            delete scene.grid;
            bar->setValue(3);
            scene.viewport->resize(200, 100);
        }
    }
    // a widget of the grid that outlives it
    auto *outside = new QWidget;
    {
        Scene scene(true);
        scene.grid->addWidget(outside);
    }
    delete outside;
}

void TestGridSurvival::survivesMisuse()
{
    OlvGridLayout alone;
    alone.addWidget(makeTile(&alone, 50));
    alone.addWidget(static_cast<QWidget *>(nullptr));
    alone.addWidget(QList<QWidget *>({ nullptr, nullptr }));
    alone.resized();
    wheel(alone, QPoint(0, -120));
    QVERIFY(!alone.insWidget(nullptr, alone.findChild<QWidget *>()));

    Scene scene(true);
    auto *tile = makeTile(scene.grid, 50);
    scene.grid->addWidget(tile);
    for (const int margin : { -20, 0, 1 << 30, -(1 << 30) }) {
        scene.grid->setMargin(margin);
        scene.grid->setSpacing(margin);
    }
    scene.grid->setMargin(15);
    QCOMPARE(tile->pos(), QPoint(15, 15));
    for (const char *name : { "isSubWindow", "ScrollBar", "ResizeTimer" }) {
        for (const QVariant &value : { QVariant(), QVariant(0xdeadbeefULL),
                                       QVariant(QStringLiteral("x")), QVariant(true) }) {
            scene.grid->setProperty(name, value);
            scene.grid->reUi();
            scene.grid->resized();
            wheel(*scene.grid, QPoint(0, -120));
        }
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
    Scene scene(true);
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
    QTest::addColumn<QString>("moment");
    for (const char *moment :
         { "a widget moves", "the last widget moves", "the bar scrolls", "the bar is shown",
           "the bar is placed", "the view has settled", "the window is resized" }) {
        QTest::newRow(moment) << QString::fromLatin1(moment);
    }
}

void TestGridSurvival::survivesItsOwnDeletion()
{
    QFETCH(QString, moment);
    Scene scene(moment != QLatin1String("the window is resized"));
    const QPointer<OlvGridLayout> grid(scene.grid);
    // no children of the grid: they live on, and so does what is told of the event
    QList<QWidget *> tiles;
    for (int i = 0; i < 3; ++i) {
        tiles.append(makeTile(scene.viewport, 50, 1170));
    }
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    const auto destroy = [&] {
        delete grid;
    };
    const auto when = [&](QObject *object, QEvent::Type type) {
        return std::make_unique<OnEvent>(object, type, destroy);
    };
    std::unique_ptr<OnEvent> event;
    if (moment == QLatin1String("a widget moves")) {
        event = when(tiles.first(), QEvent::Move);
    } else if (moment == QLatin1String("the last widget moves")) {
        event = when(tiles.last(), QEvent::Move);
    } else if (moment == QLatin1String("the bar scrolls")) {
        scene.grid->addWidget(tiles);
        barOf(*scene.grid)->setValue(40);
        connect(barOf(*scene.grid), &QScrollBar::valueChanged, this, destroy);
        for (QWidget *tile : qAsConst(tiles)) {
            tile->resize(50, 300);
        }
    } else if (moment == QLatin1String("the bar is shown")) {
        event = when(barOf(*scene.grid), QEvent::Show);
    } else if (moment == QLatin1String("the bar is placed")) {
        event = when(barOf(*scene.grid), QEvent::Resize);
        scene.viewport->resize(310, 220);
    } else if (moment == QLatin1String("the view has settled")) {
        // the bar is shown already, so that it hears of its new place at once
        scene.grid->addWidget(tiles);
        event = when(barOf(*scene.grid), QEvent::Resize);
        scene.viewport->resize(310, 220);
    } else if (moment == QLatin1String("the window is resized")) {
        event = when(&scene.window, QEvent::Resize);
    }
    scene.grid->addWidget(tiles);
    QTRY_VERIFY(grid.isNull());
    // nothing of it is left that could be called
    scene.viewport->resize(400, 300);
    delete tiles.first();
}

void TestGridSurvival::survivesTheLossOfItsBar_data()
{
    QTest::addColumn<QString>("moment");
    for (const char *moment : { "a widget moves", "the bar scrolls", "the grid is resized" }) {
        QTest::newRow(moment) << QString::fromLatin1(moment);
    }
}

void TestGridSurvival::survivesTheLossOfItsBar()
{
    QFETCH(QString, moment);
    Scene scene(true);
    QWidget *tile = makeTile(scene.grid, 50, 1170);
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    const QPointer<QScrollBar> bar(barOf(*scene.grid));
    const auto destroy = [=] {
        delete bar;
    };
    const OnEvent onMove(tile, QEvent::Move, [&] {
        if (moment == QLatin1String("a widget moves")) {
            destroy();
        }
    });
    scene.grid->addWidget(tile);
    if (moment == QLatin1String("the bar scrolls")) {
        bar->setValue(40);
        connect(bar, &QScrollBar::valueChanged, this, destroy);
        tile->resize(50, 300);
        scene.grid->reUi();
    }
    const OnEvent onResize(scene.grid, QEvent::Resize, destroy);
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
    Scene scene(true);
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
    Scene scene(true);
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
}

void TestGridSurvival::survivesATileThatDeletesItWhenMoved_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("into the row") << 50;
    QTest::newRow("into a row of its own") << 5000;
}

void TestGridSurvival::survivesATileThatDeletesItWhenMoved()
{
    QFETCH(int, width);
    class Deleter : public QWidget
    {
    public:
        using QWidget::QWidget;

        QPointer<QWidget> deleted;

    protected:
        void moveEvent(QMoveEvent * /*event*/) override
        {
            delete deleted;
        }
    };
    Scene scene(true);
    const QPointer<OlvGridLayout> grid(scene.grid);
    // beside the grid, for it goes with the grid otherwise
    auto *tile = new Deleter(scene.viewport);
    tile->resize(width, 50);
    scene.window.show();
    tile->deleted = grid;
    grid->addWidget(QList<QWidget *>({ tile, makeTile(scene.viewport, 50) }));
    QVERIFY(grid.isNull());
    QCOMPARE(tile->x(), 15);
}

void TestGridSurvival::readsTheMarginAfreshForEachWidget()
{
    Scene scene(true);
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

QTEST_MAIN(TestGridSurvival)
#include "tst_gridsurvival.moc"
