// SPDX-License-Identifier: MIT
#include "gridscene.h"
#include "testprogram.h"

#include <QTest>

#include <utility>

namespace {

using Tiles = QList<QWidget *>;

/** Counts the reflows, each of which has to put it into its place: it does not stay there. */
class ReflowCounter : public QWidget
{
public:
    explicit ReflowCounter(QWidget *parent)
        : QWidget(parent)
    {
        setGeometry(elsewhere.x(), elsewhere.y(), 50, 30);
    }
    int reflows() const
    {
        return m_reflows;
    }
    int take()
    {
        return std::exchange(m_reflows, 0);
    }

protected:
    void moveEvent(QMoveEvent *event) override
    {
        if (event->pos() != elsewhere) {
            ++m_reflows;
            move(elsewhere);
        }
    }

private:
    static constexpr QPoint elsewhere{ 1, 1 };
    int m_reflows = 0;
};

/** Counts the reflows of an empty grid, each of which makes it as high as its viewport again. */
class EmptyReflowCounter : public QObject
{
public:
    explicit EmptyReflowCounter(OlvGridLayout *grid)
        : m_grid(grid)
    {
        grid->installEventFilter(this); // clazy:exclude=install-event-filter
    }
    int reflows() const
    {
        return m_reflows;
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Resize && m_grid->height() != otherHeight) {
            ++m_reflows;
            m_grid->resize(m_grid->width(), otherHeight);
        }
        return false;
    }

private:
    static constexpr int otherHeight = 77;
    OlvGridLayout *m_grid;
    int m_reflows = 0;
};

/** What a program does to a grid, or to the second of its widgets. */
using Change = void (*)(OlvGridLayout *grid, QWidget *tile);

} // namespace

Q_DECLARE_METATYPE(Change)

class TestGridReflow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makingAGridReflowsNothing_data();
    void makingAGridReflowsNothing();
    void changesReflowOnce_data();
    void changesReflowOnce();
    void clearReflowsOnce();
    void aBurstOfResizesGivesOneReflow_data();
    void aBurstOfResizesGivesOneReflow();
    void settlesInAWindowThatItResizes();
    void filterConsumesNothing();
};

void TestGridReflow::makingAGridReflowsNothing_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::newRow("in a viewport") << true;
    QTest::newRow("in a window") << false;
}

void TestGridReflow::makingAGridReflowsNothing()
{
    QFETCH(bool, embedded);
    QWidget window;
    QWidget *viewport = embedded ? new QWidget(&window) : &window;
    viewport->resize(300, 200);
    const OlvGridLayout grid(viewport);
    // a reflow makes an empty grid as high as its viewport, or 50 pixels
    QCOMPARE(grid.size(), QSize(100, 30));
    QCOMPARE(labelOf(grid)->size(), QSize(100, 30));
    QVERIFY(!timerOf(grid)->isActive());
    QCOMPARE(viewport->size(), QSize(300, 200));
}

void TestGridReflow::changesReflowOnce_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("reflows");
    const auto row = [](const char *name, int reflows, Change change) {
        QTest::newRow(name) << change << reflows;
    };
    row("addWidget", 1,
        [](OlvGridLayout *grid, QWidget *) { grid->addWidget(makeTile(grid, 30)); });
    row("addWidget with null", 1,
        [](OlvGridLayout *grid, QWidget *) { grid->addWidget(static_cast<QWidget *>(nullptr)); });
    row("addWidget with a list", 1, [](OlvGridLayout *grid, QWidget *) {
        grid->addWidget({ makeTile(grid, 30), makeTile(grid, 30), makeTile(grid, 30) });
    });
    row("insWidget", 1,
        [](OlvGridLayout *grid, QWidget *tile) { grid->insWidget(makeTile(grid, 30), tile); });
    row("insWidget before none", 0,
        [](OlvGridLayout *grid, QWidget *) { grid->insWidget(makeTile(grid, 30), grid); });
    row("delWidget", 1, [](OlvGridLayout *grid, QWidget *tile) { grid->delWidget(tile); });
    row("delWidget of none", 0, [](OlvGridLayout *grid, QWidget *) { grid->delWidget(grid); });
    row("insWidget with a list", 1, [](OlvGridLayout *grid, QWidget *tile) {
        grid->insWidget({ makeTile(grid, 30), nullptr, makeTile(grid, 30) }, tile);
    });
    row("insWidget with an empty list", 1,
        [](OlvGridLayout *grid, QWidget *tile) { grid->insWidget(Tiles(), tile); });
    row("insWidget with a list before none", 0,
        [](OlvGridLayout *grid, QWidget *) { grid->insWidget({ makeTile(grid, 30) }, grid); });
    row("delWidget with a list", 1, [](OlvGridLayout *grid, QWidget *tile) {
        auto *another = makeTile(grid, 30);
        grid->addWidget(another);
        static_cast<ReflowCounter *>(grid->widgetAt(0))->take();
        grid->delWidget({ another, grid, tile });
    });
    row("delWidget with a list of none", 0, [](OlvGridLayout *grid, QWidget *) {
        grid->delWidget({ grid, nullptr });
    });
    row("takeWidget", 1, [](OlvGridLayout *grid, QWidget *tile) { delete grid->takeWidget(tile); });
    row("takeWidget of none", 0,
        [](OlvGridLayout *grid, QWidget *) { QVERIFY(!grid->takeWidget(grid)); });
    row("setRetainSizeWhenHidden", 1,
        [](OlvGridLayout *grid, QWidget *) { grid->setRetainSizeWhenHidden(false); });
    row("setRetainSizeWhenHidden to the same", 0,
        [](OlvGridLayout *grid, QWidget *) { grid->setRetainSizeWhenHidden(true); });
    row("ensureVisible", 0, [](OlvGridLayout *grid, QWidget *tile) { grid->ensureVisible(tile); });
    row("setMargin", 1, [](OlvGridLayout *grid, QWidget *) { grid->setMargin(20); });
    row("setSpacing", 1, [](OlvGridLayout *grid, QWidget *) { grid->setSpacing(20); });
    row("reUi", 1, [](OlvGridLayout *grid, QWidget *) { grid->reUi(); });
    row("resized", 0, [](OlvGridLayout *grid, QWidget *) { grid->resized(); });
    row("death of a widget", 0, [](OlvGridLayout *, QWidget *tile) { delete tile; });
}

void TestGridReflow::changesReflowOnce()
{
    QFETCH(Change, change);
    QFETCH(int, reflows);
    GridScene scene(true);
    auto *counter = new ReflowCounter(scene.grid);
    auto *tile = makeTile(scene.grid, 40);
    scene.grid->addWidget({ counter, tile });
    timerOf(*scene.grid)->setInterval(1);
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    QTRY_VERIFY(!timerOf(*scene.grid)->isActive());
    counter->take();
    change(scene.grid, tile);
    QCOMPARE(counter->take(), reflows);
}

void TestGridReflow::clearReflowsOnce()
{
    GridScene scene(true);
    scene.grid->addWidget({ makeTile(scene.grid, 40), makeTile(scene.grid, 50) });
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    const EmptyReflowCounter counter(scene.grid);
    scene.grid->clear();
    QCOMPARE(counter.reflows(), 1);
    scene.grid->clear();
    QCOMPARE(counter.reflows(), 1);
    scene.grid->reUi();
    QCOMPARE(counter.reflows(), 2);
}

void TestGridReflow::aBurstOfResizesGivesOneReflow_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::newRow("in a viewport") << true;
    QTest::newRow("in a window") << false;
}

void TestGridReflow::aBurstOfResizesGivesOneReflow()
{
    QFETCH(bool, embedded);
    GridScene scene(embedded);
    auto *counter = new ReflowCounter(scene.grid);
    scene.grid->addWidget({ makeTile(scene.grid, 200), counter });
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    QTRY_VERIFY(!timerOf(*scene.grid)->isActive());
    counter->take();
    const QTimer *timer = timerOf(*scene.grid);
    for (int i = 1; i <= 3; ++i) {
        QTRY_VERIFY(timer->remainingTime() < 250);
        scene.viewport->resize(300 + i, 200 - i);
        QVERIFY(timer->remainingTime() > 250); // begun anew
    }
    QCOMPARE(counter->reflows(), 0);
    QTRY_COMPARE(counter->reflows(), 1);
    QCOMPARE(scene.grid->width(), embedded ? 303 : 301);
    if (embedded) {
        QVERIFY(!timer->isActive());
        QCOMPARE(barOf(*scene.grid)->geometry(), QRect(290, 0, 10, 197));
    }
}

void TestGridReflow::settlesInAWindowThatItResizes()
{
    GridScene scene(false);
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    scene.grid->addWidget({ makeTile(scene.grid, 200, 77), makeTile(scene.grid, 200, 55) });
    scene.window.resize(460, 500);
    QTRY_COMPARE(scene.window.size(), QSize(460, 15 + 77 + 15 + 2));
    QCOMPARE(scene.grid->size(), QSize(458, 15 + 77 + 15));
    auto *timer = timerOf(*scene.grid);
    QTRY_VERIFY(!timer->isActive());
    QTest::qWait(400);
    QVERIFY(!timer->isActive());
}

void TestGridReflow::filterConsumesNothing()
{
    GridScene scene(true);
    QResizeEvent resize({ 1, 1 }, { 2, 2 });
    QVERIFY(!scene.grid->eventFilter(scene.viewport, &resize));
    QEvent other(QEvent::Show);
    QVERIFY(!scene.grid->eventFilter(scene.viewport, &other));
}

ADD_TEST(TestGridReflow, QApplication)
#include "tst_gridreflow.moc"
