// SPDX-License-Identifier: MIT
#include "gridscene.h"
#include "testprogram.h"

#include <QPointer>
#include <QRandomGenerator>
#include <QTest>

namespace {

/** The places of widgets in rows, worked out row by row. */
QList<QPoint> expectedPlaces(const QList<QSize> &sizes, int width, int margin, int *height)
{
    QList<QPoint> places;
    int edge = 0;
    int y = margin;
    int tallest = 0;
    for (const QSize &size : sizes) {
        if (edge + margin + size.width() > width - margin) {
            y += tallest + margin;
            tallest = 0;
            edge = 0;
        }
        places.append(QPoint(edge + margin, y));
        edge += margin + size.width();
        tallest = std::max(tallest, size.height());
    }
    *height = y + tallest + margin;
    return places;
}

} // namespace

class TestGridLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesItsModeFromItsParent_data();
    void choosesItsModeFromItsParent();
    void startsInAViewport();
    void showsItIsEmpty_data();
    void showsItIsEmpty();
    void placesWidgets_data();
    void placesWidgets();
    void placesRandomWidgetsAsWorkedOut_data();
    void placesRandomWidgetsAsWorkedOut();
    void spacingChangesNothing();
    void insertsInFrontOfAnother();
    void deletesAndRemoves();
    void resizesItsWindow();
};

void TestGridLayout::choosesItsModeFromItsParent_data()
{
    QTest::addColumn<bool>("hasGrandparent");
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("isSubWindow");
    QTest::newRow("child") << true << int(Qt::Widget) << false;
    QTest::newRow("frameless child") << true << int(Qt::FramelessWindowHint) << false;
    QTest::newRow("window in a window") << true << int(Qt::Window) << true;
    QTest::newRow("dialog in a window") << true << int(Qt::Dialog) << true;
    QTest::newRow("tool in a window") << true << int(Qt::Tool) << true;
    QTest::newRow("top level") << false << int(Qt::Widget) << true;
}

void TestGridLayout::choosesItsModeFromItsParent()
{
    QFETCH(bool, hasGrandparent);
    QFETCH(int, flags);
    QFETCH(bool, isSubWindow);
    QWidget window;
    QWidget parent(hasGrandparent ? &window : nullptr, Qt::WindowFlags(flags));
    OlvGridLayout grid(&parent);
    QCOMPARE(grid.property("isSubWindow"), QVariant(isSubWindow));
    QCOMPARE(grid.property("isSubWindow").userType(), int(QMetaType::Bool));
    QCOMPARE(grid.property("ScrollBar").isValid(), !isSubWindow);
    QCOMPARE(parent.findChildren<QScrollBar *>().isEmpty(), isSubWindow);
    QCOMPARE(grid.pos(), isSubWindow ? QPoint(1, 1) : QPoint(0, 0));
}

void TestGridLayout::startsInAViewport()
{
    QWidget window;
    auto *viewport = new QWidget(&window);
    viewport->resize(300, 200);
    OlvGridLayout grid(viewport);
    QScrollBar *bar = barOf(grid);
    QCOMPARE(grid.property("ScrollBar").userType(), int(QMetaType::ULongLong));
    QCOMPARE(bar->parent(), viewport);
    QCOMPARE(bar->orientation(), Qt::Vertical);
    QCOMPARE(bar->geometry(), QRect(grid.width() - 13, 0, 10, 200));
    QVERIFY(bar->isHidden());
    QCOMPARE(bar->styleSheet(),
             QStringLiteral(
                 "QScrollBar{width:10px;background:rgba(0,0,0,10%);border-radius:5px}QScrollBar::"
                 "handle{background:rgba(0,0,0,25%);border-radius:5px}QScrollBar::handle:hover{"
                 "background:rgba(0,0,0,50%)}QScrollBar::add-line,QScrollBar::sub-line{border:none}"
                 "QScrollBar::sub-page,QScrollBar::add-page{background:rgba(0,0,0,0)}"));

    const QLabel *label = labelOf(grid);
    QCOMPARE(label->text(), QStringLiteral("空"));
    QCOMPARE(label->size(), grid.size());
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QCOMPARE(label->styleSheet(), QStringLiteral("color: rgb(33, 33, 33);"));
    QCOMPARE(label->font().family(), QStringLiteral("楷体"));
    QCOMPARE(label->font().pointSize(), 16);

    auto *timer = timerOf(grid);
    QCOMPARE(timer->parent(), &grid);
    QCOMPARE(timer->interval(), 300);
    QVERIFY(!timer->isActive());
}

void TestGridLayout::showsItIsEmpty_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::addColumn<int>("height");
    QTest::newRow("in a viewport") << true << 200;
    QTest::newRow("in a window") << false << 50;
}

void TestGridLayout::showsItIsEmpty()
{
    QFETCH(bool, embedded);
    QFETCH(int, height);
    GridScene scene(embedded);
    auto *tile = makeTile(scene.grid, 50);
    scene.grid->addWidget(tile);
    QVERIFY(labelOf(*scene.grid)->isHidden());
    QVERIFY(scene.grid->delWidget(tile));
    QVERIFY(!labelOf(*scene.grid)->isHidden());
    QCOMPARE(scene.grid->size(), QSize(300, height));
    QCOMPARE(labelOf(*scene.grid)->size(), scene.grid->size());
}

void TestGridLayout::placesWidgets_data()
{
    QTest::addColumn<QList<QSize>>("sizes");
    QTest::addColumn<QList<QPoint>>("places");
    QTest::newRow("three of 100 in 300") << QList<QSize>({ { 100, 40 }, { 100, 40 }, { 100, 40 } })
                                         << QList<QPoint>({ { 15, 15 }, { 130, 15 }, { 15, 70 } });
    QTest::newRow("to the last pixel")
        << QList<QSize>({ { 120, 20 }, { 135, 20 } }) << QList<QPoint>({ { 15, 15 }, { 150, 15 } });
    QTest::newRow("a pixel too wide")
        << QList<QSize>({ { 120, 20 }, { 136, 20 } }) << QList<QPoint>({ { 15, 15 }, { 15, 50 } });
    QTest::newRow("first one wider than the grid")
        << QList<QSize>({ { 400, 20 } }) << QList<QPoint>({ { 15, 30 } });
    QTest::newRow("each too wide has a row")
        << QList<QSize>({ { 50, 10 }, { 400, 20 }, { 50, 10 } })
        << QList<QPoint>({ { 15, 15 }, { 15, 40 }, { 15, 75 } });
    QTest::newRow("the tallest makes the row")
        << QList<QSize>({ { 80, 10 }, { 80, 60 }, { 80, 30 }, { 80, 10 } })
        << QList<QPoint>({ { 15, 15 }, { 110, 15 }, { 205, 15 }, { 15, 90 } });
}

void TestGridLayout::placesWidgets()
{
    QFETCH(QList<QSize>, sizes);
    QFETCH(QList<QPoint>, places);
    for (const bool embedded : { false, true }) {
        GridScene scene(embedded);
        QList<QWidget *> tiles;
        for (const QSize &size : qAsConst(sizes)) {
            tiles.append(makeTile(scene.grid, size.width(), size.height()));
        }
        scene.grid->addWidget(tiles);
        for (int i = 0; i < tiles.count(); ++i) {
            QCOMPARE(tiles.at(i)->geometry(), QRect(places.at(i), sizes.at(i)));
        }
    }
}

void TestGridLayout::placesRandomWidgetsAsWorkedOut_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 40; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestGridLayout::placesRandomWidgetsAsWorkedOut()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    const int width = random.bounded(20, 700);
    GridScene scene(random.bounded(2) == 0, { width, 200 });
    const int margin = random.bounded(40);
    scene.grid->setMargin(margin);
    QList<QSize> sizes;
    QList<QWidget *> tiles;
    const int count = 1 + random.bounded(60);
    for (int i = 0; i < count; ++i) {
        sizes.append(QSize(random.bounded(1, 250), random.bounded(1, 90)));
        tiles.append(makeTile(scene.grid, sizes.last().width(), sizes.last().height()));
    }
    scene.grid->addWidget(tiles);
    int height = 0;
    const QList<QPoint> places = expectedPlaces(sizes, width, margin, &height);
    for (int i = 0; i < count; ++i) {
        QCOMPARE(tiles.at(i)->pos(), places.at(i));
    }
    QCOMPARE(scene.grid->size(), QSize(width, height));
    QCOMPARE(labelOf(*scene.grid)->size(), scene.grid->size());
    // sizes that change behind the grid's back count at the next reflow
    for (int i = 0; i < count; ++i) {
        sizes[i] = QSize(random.bounded(1, 250), random.bounded(1, 90));
        tiles.at(i)->resize(sizes.at(i));
    }
    scene.grid->reUi();
    const QList<QPoint> later = expectedPlaces(sizes, width, margin, &height);
    for (int i = 0; i < count; ++i) {
        QCOMPARE(tiles.at(i)->pos(), later.at(i));
    }
}

void TestGridLayout::spacingChangesNothing()
{
    GridScene scene(true);
    auto *first = makeTile(scene.grid, 100);
    auto *second = makeTile(scene.grid, 100);
    scene.grid->addWidget({ first, second });
    const QRect before = second->geometry();
    scene.grid->setSpacing(90);
    QCOMPARE(second->geometry(), before);
    scene.grid->setMargin(5);
    QCOMPARE(first->pos(), QPoint(5, 5));
    QCOMPARE(second->pos(), QPoint(110, 5));
}

void TestGridLayout::insertsInFrontOfAnother()
{
    GridScene scene(true);
    auto *first = makeTile(scene.grid, 50);
    auto *second = makeTile(scene.grid, 50);
    auto *inserted = makeTile(scene.grid, 50);
    scene.grid->addWidget(first);
    QVERIFY(!scene.grid->insWidget(inserted, second));
    QVERIFY(!scene.grid->insWidget(inserted, nullptr));
    QCOMPARE(inserted->pos(), QPoint(0, 0));
    scene.grid->addWidget(second);
    QVERIFY(scene.grid->insWidget(inserted, second));
    QCOMPARE(first->x(), 15);
    QCOMPARE(inserted->x(), 80);
    QCOMPARE(second->x(), 145);
    auto *atTheFront = makeTile(scene.grid, 50);
    QVERIFY(scene.grid->insWidget(atTheFront, first));
    QCOMPARE(atTheFront->x(), 15);
    QCOMPARE(first->x(), 80);
}

void TestGridLayout::deletesAndRemoves()
{
    GridScene scene(true);
    const QPointer<QWidget> first(makeTile(scene.grid, 50));
    auto *second = makeTile(scene.grid, 50);
    scene.grid->addWidget({ first, second });
    QVERIFY(scene.grid->delWidget(first));
    QVERIFY(first.isNull());
    QCOMPARE(second->x(), 15);
    QVERIFY(!scene.grid->delWidget(nullptr));
    QWidget stranger;
    QVERIFY(!scene.grid->delWidget(&stranger));
}

void TestGridLayout::resizesItsWindow()
{
    GridScene scene(false);
    scene.grid->addWidget(makeTile(scene.grid, 100, 333));
    QCOMPARE(scene.grid->height(), 363);
    QCOMPARE(scene.window.size(), QSize(300, 365));
    QCOMPARE(scene.grid->pos(), QPoint(1, 1));
}

ADD_TEST(TestGridLayout, QApplication)
#include "tst_gridlayout.moc"
