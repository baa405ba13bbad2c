// SPDX-License-Identifier: MIT
// A flow grid in a form that is laid out from the right to the left.
#include "deferred.h"
#include "gridscene.h"
#include "onevent.h"
#include "testprogram.h"

#include <OlvButton>
#include <OlvFormSupport>

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>
#include <QVector>

namespace {

/** Tiles of several widths, in rows that end in different places. */
struct TileScene : GridScene
{
    TileScene(Qt::LayoutDirection direction, bool embedded)
        : GridScene(embedded)
        , support(new OlvFormSupport(&window))
    {
        window.setLayoutDirection(direction);
        for (int i = 0; i < 40; ++i) {
            auto *tile = new OlvButton(QString::number(i), grid);
            tile->resize(30 + 7 * (i % 5), 20 + i % 3);
            tiles.append(tile);
        }
        grid->addWidget(tiles);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    /** Where the tiles stand, counted from the side where the rows begin. */
    QVector<QRect> places() const
    {
        QVector<QRect> all;
        for (const QWidget *tile : tiles) {
            QRect place = tile->geometry();
            if (grid->layoutDirection() == Qt::RightToLeft) {
                place.moveLeft(grid->width() - place.width() - place.x());
            }
            all.append(place);
        }
        return all;
    }

    OlvFormSupport *const support;
    QList<QWidget *> tiles;
};

} // namespace

class TestMirroredGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        runDeferred();
    }
    void flowsFromTheRight_data();
    void flowsFromTheRight();
    void keepsToTheEdgeInALayout();
    void scrollsAtTheLeft();
    void movesTheFocusToWhereTheKeyPoints();
    void followsTheDirectionAndLeavesNothingBehind();
    void movesATileThatIsListedTwiceOnce();
    void standsADeletion();
};

void TestMirroredGrid::flowsFromTheRight_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::newRow("in a window") << false;
    QTest::newRow("in a viewport") << true;
}

void TestMirroredGrid::flowsFromTheRight()
{
    QFETCH(bool, embedded);
    TileScene ltr(Qt::LeftToRight, embedded);
    TileScene rtl(Qt::RightToLeft, embedded);
    QCOMPARE(rtl.places(), ltr.places());
    for (TileScene *scene : { &ltr, &rtl }) {
        scene->grid->resize(217, scene->grid->height());
        scene->grid->setMargin(4);
    }
    QCOMPARE(rtl.places(), ltr.places());
    for (TileScene *scene : { &ltr, &rtl }) {
        scene->grid->delWidget(scene->tiles.takeAt(3));
    }
    QCOMPARE(rtl.places(), ltr.places());
    QCOMPARE(rtl.grid->size(), ltr.grid->size());
}

void TestMirroredGrid::keepsToTheEdgeInALayout()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    auto *grid = new OlvGridLayout;
    QVBoxLayout layout(&window);
    layout.setSizeConstraint(QLayout::SetNoConstraint); // the platform warns of minimum sizes
    layout.addWidget(grid);
    auto *tile = new OlvButton(QStringLiteral("0"), grid);
    tile->resize(60, 20);
    grid->addWidget(tile);
    new OlvFormSupport(&window);
    for (const int width : { 400, 300, 500 }) {
        window.resize(width, 200);
        window.show();
        QCOMPARE(tile->x(), grid->width() - 60 - 15);
    }
}

void TestMirroredGrid::scrollsAtTheLeft()
{
    TileScene scene(Qt::LeftToRight, true);
    const QRect before = barOf(*scene.grid)->geometry();
    scene.window.setLayoutDirection(Qt::RightToLeft);
    const QRect mirrored(scene.grid->width() - before.width() - before.x(), before.y(),
                         before.width(), before.height());
    QCOMPARE(barOf(*scene.grid)->geometry(), mirrored);
    QVERIFY(barOf(*scene.grid)->isVisible());
    scene.viewport->resize(240, 100);
    QTRY_COMPARE(barOf(*scene.grid)->height(), 100);
    QCOMPARE(barOf(*scene.grid)->x(), 3); // as far from this edge as else from the other
}

void TestMirroredGrid::movesTheFocusToWhereTheKeyPoints()
{
    for (const auto direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        TileScene scene(direction, true);
        for (const auto key : { Qt::Key_Left, Qt::Key_Right }) {
            QWidget *from = scene.tiles.at(1);
            from->setFocus();
            QTest::keyClick(from, key);
            const QWidget *to = QApplication::focusWidget();
            QVERIFY(to == scene.tiles.at(0) || to == scene.tiles.at(2));
            QCOMPARE(to->x() > from->x(), key == Qt::Key_Right);
        }
    }
}

void TestMirroredGrid::followsTheDirectionAndLeavesNothingBehind()
{
    TileScene scene(Qt::LeftToRight, true);
    const QVector<QRect> before = scene.places();
    const QRect bar = barOf(*scene.grid)->geometry();
    const auto isAsBefore = [&] {
        bool isSame = barOf(*scene.grid)->geometry() == bar;
        for (int i = 0; i < before.size(); ++i) {
            isSame = isSame && scene.tiles.at(i)->geometry() == before.at(i);
        }
        return isSame;
    };
    scene.window.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(scene.places(), before);
    QVERIFY(!isAsBefore());
    scene.window.setLayoutDirection(Qt::LeftToRight);
    QVERIFY(isAsBefore());
    scene.window.setLayoutDirection(Qt::RightToLeft);
    scene.support->setFeatures(OlvFormSupport::Keyboard);
    QVERIFY(isAsBefore());
    scene.support->setFeatures(OlvFormSupport::AllFeatures);
    QVERIFY(!isAsBefore());
    delete scene.support;
    QVERIFY(isAsBefore());
}

void TestMirroredGrid::movesATileThatIsListedTwiceOnce()
{
    TileScene scene(Qt::LeftToRight, true);
    scene.grid->addWidget(scene.tiles.first());
    const QVector<QRect> before = scene.places();
    scene.window.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(scene.places(), before);
}

void TestMirroredGrid::standsADeletion()
{
    TileScene scene(Qt::LeftToRight, true);
    OnEvent deletion(scene.tiles.first(), QEvent::Move,
                     [victims = scene.tiles.mid(10)] { qDeleteAll(victims); });
    scene.window.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(deletion.happened());
    QCOMPARE(scene.grid->count(), 10);
}

ADD_TEST(TestMirroredGrid, QApplication)
#include "tst_mirroredgrid.moc"
