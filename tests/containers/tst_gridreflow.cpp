// SPDX-License-Identifier: MIT
#include "gridscene.h"

#include <QTest>

#include <functional>
#include <utility>

namespace {

/** Counts the reflows, each of which has to put it into its place: it does not stay there. */
class ReflowCounter : public QWidget
{
public:
    explicit ReflowCounter(QWidget *parent)
        : QWidget(parent)
    {
        setGeometry(elsewhere.x(), elsewhere.y(), 50, 30);
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

} // namespace

class TestGridReflow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makingAGridReflowsNothing_data();
    void makingAGridReflowsNothing();
    void changesReflowOnce_data();
    void changesReflowOnce();
    void reflowsOnceAfterManyResizes();
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
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("reflows");
    QTest::newRow("addWidget") << QStringLiteral("addWidget") << 1;
    QTest::newRow("addWidget with null") << QStringLiteral("addWidget with null") << 1;
    QTest::newRow("addWidget with a list") << QStringLiteral("addWidget with a list") << 1;
    QTest::newRow("insWidget") << QStringLiteral("insWidget") << 1;
    QTest::newRow("insWidget before none") << QStringLiteral("insWidget before none") << 0;
    QTest::newRow("delWidget") << QStringLiteral("delWidget") << 1;
    QTest::newRow("delWidget of none") << QStringLiteral("delWidget of none") << 0;
    QTest::newRow("setMargin") << QStringLiteral("setMargin") << 1;
    QTest::newRow("setSpacing") << QStringLiteral("setSpacing") << 1;
    QTest::newRow("reUi") << QStringLiteral("reUi") << 1;
    QTest::newRow("resized") << QStringLiteral("resized") << 0;
    QTest::newRow("death of a widget") << QStringLiteral("death of a widget") << 0;
}

void TestGridReflow::changesReflowOnce()
{
    QFETCH(QString, change);
    QFETCH(int, reflows);
    Scene scene(true);
    OlvGridLayout *grid = scene.grid;
    auto *counter = new ReflowCounter(grid);
    auto *other = makeTile(grid, 40);
    grid->addWidget({ counter, other });
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    QTRY_VERIFY(!timerOf(*grid)->isActive());
    const QHash<QString, std::function<void()>> changes{
        { QStringLiteral("addWidget"),
          [&] {
              grid->addWidget(makeTile(grid, 30));
          } },
        { QStringLiteral("addWidget with null"),
          [&] {
              grid->addWidget(static_cast<QWidget *>(nullptr));
          } },
        { QStringLiteral("addWidget with a list"),
          [&] {
              grid->addWidget({ makeTile(grid, 30), makeTile(grid, 30), makeTile(grid, 30) });
          } },
        { QStringLiteral("insWidget"),
          [&] {
              grid->insWidget(makeTile(grid, 30), other);
          } },
        { QStringLiteral("insWidget before none"),
          [&] {
              grid->insWidget(makeTile(grid, 30), grid);
          } },
        { QStringLiteral("delWidget"),
          [&] {
              grid->delWidget(other);
          } },
        { QStringLiteral("delWidget of none"),
          [&] {
              grid->delWidget(grid);
          } },
        { QStringLiteral("setMargin"),
          [&] {
              grid->setMargin(20);
          } },
        { QStringLiteral("setSpacing"),
          [&] {
              grid->setSpacing(20);
          } },
        { QStringLiteral("reUi"),
          [&] {
              grid->reUi();
          } },
        { QStringLiteral("resized"),
          [&] {
              grid->resized();
          } },
        { QStringLiteral("death of a widget"),
          [&] {
              delete other;
          } },
    };
    counter->take();
    changes.value(change)();
    QCOMPARE(counter->take(), reflows);
}

void TestGridReflow::reflowsOnceAfterManyResizes()
{
    Scene scene(true);
    auto *counter = new ReflowCounter(scene.grid);
    scene.grid->addWidget(counter);
    scene.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    QTRY_VERIFY(!timerOf(*scene.grid)->isActive());
    counter->take();
    for (int i = 1; i <= 10; ++i) {
        scene.viewport->resize(300 + i, 200 - i);
    }
    QVERIFY(timerOf(*scene.grid)->isActive());
    QCOMPARE(counter->take(), 0);
    QTRY_VERIFY(!timerOf(*scene.grid)->isActive());
    QCOMPARE(counter->take(), 1);
    QCOMPARE(scene.grid->width(), 310);
    QCOMPARE(barOf(*scene.grid)->geometry(), QRect(297, 0, 10, 190));
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

void TestGridReflow::settlesInAWindowThatItResizes()
{
    Scene scene(false);
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
    Scene scene(true);
    QResizeEvent resize({ 1, 1 }, { 2, 2 });
    QVERIFY(!scene.grid->eventFilter(scene.viewport, &resize));
    QEvent other(QEvent::Show);
    QVERIFY(!scene.grid->eventFilter(scene.viewport, &other));
}

QTEST_MAIN(TestGridReflow)
#include "tst_gridreflow.moc"
