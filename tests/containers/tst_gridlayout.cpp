// SPDX-License-Identifier: MIT
#include <OlvGridLayout>

#include <QLabel>
#include <QPointer>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <memory>

namespace {

QWidget *makeTile(QWidget *parent, int width, int height = 20)
{
    auto *tile = new QWidget(parent);
    tile->resize(width, height);
    return tile;
}

QLabel *labelOf(const OlvGridLayout &grid)
{
    return grid.findChild<QLabel *>();
}

QScrollBar *barOf(const OlvGridLayout &grid)
{
    return reinterpret_cast<QScrollBar *>(grid.property("ScrollBar").toULongLong());
}

/** A grid in a viewport, which is a child of a window, or in the window itself. */
struct Scene
{
    explicit Scene(bool embedded, QSize size = { 300, 200 })
        : viewport(embedded ? new QWidget(&window) : &window)
    {
        viewport->resize(size);
        grid = new OlvGridLayout(viewport);
        grid->resize(size.width(), grid->height());
    }
    QWidget window;
    QWidget *viewport;
    OlvGridLayout *grid;
};

void wheel(OlvGridLayout &grid, QPoint angle)
{
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&grid, &event);
}

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
    void hasAMetaObjectOfItsNameAlone();
    void choosesItsModeFromItsParent_data();
    void choosesItsModeFromItsParent();
    void startsInAViewport();
    void startsInAWindow();
    void showsItIsEmpty_data();
    void showsItIsEmpty();
    void placesWidgets_data();
    void placesWidgets();
    void growsWithItsRows();
    void placesRandomWidgetsAsWorkedOut_data();
    void placesRandomWidgetsAsWorkedOut();
    void spacingChangesNothing();
    void insertsInFrontOfAnother();
    void deletesAndRemoves();
    void resizesItsWindow();
    void scrollsByTheRestOfTheHeight_data();
    void scrollsByTheRestOfTheHeight();
    void barMovesTheGrid();
    void wheelScrolls_data();
    void wheelScrolls();
    void wheelReadsTheTurnAsQtDid();
    void wheelDoesNothingInAWindow();
    void aBurstOfResizesGivesOneReflow_data();
    void aBurstOfResizesGivesOneReflow();
    void settlesInAWindowThatItResizes();
    void filterConsumesNothing();
    void forgetsWidgetsThatDie();
    void survivesEitherOrderOfDestruction();
    void survivesMisuse();
};

void TestGridLayout::hasAMetaObjectOfItsNameAlone()
{
    const QMetaObject &meta = OlvGridLayout::staticMetaObject;
    QCOMPARE(meta.className(), "OlvGridLayout");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

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

    auto *timer = reinterpret_cast<QTimer *>(grid.property("ResizeTimer").toULongLong());
    QCOMPARE(timer->parent(), &grid);
    QCOMPARE(timer->interval(), 300);
    QVERIFY(!timer->isActive());
}

void TestGridLayout::startsInAWindow()
{
    QWidget window;
    OlvGridLayout grid(&window);
    QCOMPARE(grid.pos(), QPoint(1, 1));
    QVERIFY(window.findChildren<QScrollBar *>().isEmpty());
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
    Scene scene(embedded);
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
        Scene scene(embedded);
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

void TestGridLayout::growsWithItsRows()
{
    Scene scene(true);
    scene.grid->addWidget(makeTile(scene.grid, 200, 40));
    QCOMPARE(scene.grid->height(), 15 + 40 + 15);
    scene.grid->addWidget(makeTile(scene.grid, 200, 30));
    QCOMPARE(scene.grid->height(), 15 + 40 + 15 + 30 + 15);
    QCOMPARE(scene.grid->width(), 300);
    QCOMPARE(labelOf(*scene.grid)->size(), scene.grid->size());
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
    Scene scene(random.bounded(2) == 0, { width, 200 });
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
    QCOMPARE(scene.grid->height(), height);
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
    Scene scene(true);
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
    Scene scene(true);
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
}

void TestGridLayout::deletesAndRemoves()
{
    Scene scene(true);
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
    Scene scene(false);
    scene.grid->addWidget(makeTile(scene.grid, 100, 333));
    QCOMPARE(scene.grid->height(), 363);
    QCOMPARE(scene.window.size(), QSize(300, 365));
    QCOMPARE(scene.grid->pos(), QPoint(1, 1));
}

void TestGridLayout::scrollsByTheRestOfTheHeight_data()
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

void TestGridLayout::scrollsByTheRestOfTheHeight()
{
    QFETCH(int, tileHeight);
    QFETCH(int, maximum);
    QFETCH(bool, shown);
    Scene scene(true);
    barOf(*scene.grid)->setMaximum(0);
    scene.grid->addWidget(makeTile(scene.grid, 50, tileHeight));
    QCOMPARE(!barOf(*scene.grid)->isHidden(), shown);
    QCOMPARE(barOf(*scene.grid)->maximum(), maximum);
    QCOMPARE(barOf(*scene.grid)->minimum(), 0);
}

void TestGridLayout::barMovesTheGrid()
{
    Scene scene(true);
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

void TestGridLayout::wheelScrolls_data()
{
    QTest::addColumn<QPoint>("angle");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("value");
    QTest::newRow("down") << QPoint(0, -120) << 0 << 20;
    QTest::newRow("down twice as far is one notch") << QPoint(0, -240) << 0 << 20;
    QTest::newRow("up") << QPoint(0, 120) << 35 << 15;
    QTest::newRow("up, clamped") << QPoint(0, 120) << 7 << 0;
    QTest::newRow("down, clamped") << QPoint(0, -120) << 30 << 40;
    QTest::newRow("nothing goes up") << QPoint(0, 0) << 35 << 15;
    QTest::newRow("right turn of a horizontal wheel") << QPoint(-120, 0) << 0 << 20;
    QTest::newRow("left turn of a horizontal wheel") << QPoint(120, 0) << 35 << 15;
    QTest::newRow("more down than left") << QPoint(60, -120) << 0 << 20;
    QTest::newRow("more left than down") << QPoint(120, -60) << 35 << 15;
    QTest::newRow("as much of both goes by the vertical") << QPoint(120, -120) << 0 << 20;
}

void TestGridLayout::wheelScrolls()
{
    QFETCH(QPoint, angle);
    QFETCH(int, start);
    QFETCH(int, value);
    Scene scene(true);
    scene.grid->addWidget(makeTile(scene.grid, 50, 1170)); // a maximum of 40
    barOf(*scene.grid)->setValue(start);
    wheel(*scene.grid, angle);
    QCOMPARE(barOf(*scene.grid)->value(), value);
}

void TestGridLayout::wheelReadsTheTurnAsQtDid()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    for (int x = -240; x <= 240; x += 60) {
        for (int y = -240; y <= 240; y += 60) {
            const QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(x, y),
                                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            Scene scene(true);
            scene.grid->addWidget(makeTile(scene.grid, 50, 1170));
            barOf(*scene.grid)->setValue(20);
            wheel(*scene.grid, QPoint(x, y));
            QCOMPARE(barOf(*scene.grid)->value(), event.delta() < 0 ? 40 : 0);
        }
    }
    QT_WARNING_POP
}

void TestGridLayout::wheelDoesNothingInAWindow()
{
    Scene scene(false);
    scene.grid->addWidget(makeTile(scene.grid, 50, 900));
    wheel(*scene.grid, QPoint(0, -120));
    QCOMPARE(scene.grid->pos(), QPoint(1, 1));
}

void TestGridLayout::aBurstOfResizesGivesOneReflow_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::newRow("in a viewport") << true;
    QTest::newRow("in a window") << false;
}

void TestGridLayout::aBurstOfResizesGivesOneReflow()
{
    QFETCH(bool, embedded);
    /** Counts how often it is placed, by a place that every reflow has to put right. */
    class Counter : public QWidget
    {
    public:
        using QWidget::QWidget;
        int moves = 0;

    protected:
        void moveEvent(QMoveEvent * /*event*/) override
        {
            ++moves;
        }
    };
    Scene scene(embedded);
    auto *counter = new Counter(scene.grid);
    counter->resize(50, 30);
    scene.grid->addWidget({ makeTile(scene.grid, 200), counter });
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    QTest::qWait(350);
    counter->move(1, 1);
    counter->moves = 0;
    for (int i = 1; i <= 10; ++i) {
        scene.viewport->resize(300 + i, 200);
        QTest::qWait(15);
        QCOMPARE(counter->moves, 0);
    }
    QTRY_COMPARE(counter->moves, 1);
    QCOMPARE(scene.grid->width(), embedded ? 310 : 308);
    if (embedded) {
        QCOMPARE(barOf(*scene.grid)->geometry(), QRect(297, 0, 10, 200));
    }
    // in a window the reflow resizes the parent, which asks for one more
    QTest::qWait(embedded ? 0 : 700);
    counter->move(1, 1);
    QTest::qWait(700);
    QCOMPARE(counter->pos(), QPoint(1, 1));
}

void TestGridLayout::settlesInAWindowThatItResizes()
{
    Scene scene(false);
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    scene.grid->addWidget({ makeTile(scene.grid, 200, 77), makeTile(scene.grid, 200, 55) });
    scene.window.resize(460, 500);
    QTRY_COMPARE(scene.window.size(), QSize(460, 15 + 77 + 15 + 2));
    QCOMPARE(scene.grid->size(), QSize(458, 15 + 77 + 15));
    auto *timer = reinterpret_cast<QTimer *>(scene.grid->property("ResizeTimer").toULongLong());
    QTRY_VERIFY(!timer->isActive());
    QTest::qWait(400);
    QVERIFY(!timer->isActive());
}

void TestGridLayout::filterConsumesNothing()
{
    Scene scene(true);
    QResizeEvent resize({ 1, 1 }, { 2, 2 });
    QVERIFY(!scene.grid->eventFilter(scene.viewport, &resize));
    QEvent other(QEvent::Show);
    QVERIFY(!scene.grid->eventFilter(scene.viewport, &other));
}

void TestGridLayout::forgetsWidgetsThatDie()
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

void TestGridLayout::survivesEitherOrderOfDestruction()
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

void TestGridLayout::survivesMisuse()
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

QTEST_MAIN(TestGridLayout)
#include "tst_gridlayout.moc"
