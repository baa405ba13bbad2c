// SPDX-License-Identifier: MIT
#include "gridscene.h"
#include "notingform.h"
#include "testprogram.h"

#include <OlvButton>
#include <OlvFormSupport>
#include <OlvIconButton>
#include <OlvLineEdit>
#include <OlvSimpleIconButton>
#include <OlvSwitch>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace {

/** A grid of 40 buttons, four of 50 by 20 pixels in a row, with 200 pixels of height visible. */
struct ButtonScene : GridScene
{
    ButtonScene()
        : GridScene(true)
    {
        for (int i = 0; i < 40; ++i) {
            tiles.append(new OlvButton(QString::number(i), grid));
            tiles.last()->resize(50, 20);
        }
        grid->addWidget(tiles);
        new OlvFormSupport(&window);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    int focused() const
    {
        return int(tiles.indexOf(QApplication::focusWidget()));
    }

    bool isWhollyVisible(int index) const
    {
        const QWidget *tile = tiles.at(index);
        return viewport->rect().contains(QRect(tile->mapTo(viewport, QPoint(0, 0)), tile->size()));
    }

    QList<QWidget *> tiles;
};

} // namespace

/** The keyboard in a flow grid. */
class TestFormGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsMoveTheFocus_data();
    void arrowsMoveTheFocus();
    void arrowsLeaveOutWhatTakesNoFocus();
    void arrowsFindTheNearestOfARow();
    void arrowsFindTheFirstOfTwoThatAreAsNear();
    void arrowsGoOnToTheForm();
    void arrowsMoveBetweenTilesAndGlyphs();
    void scrollsAlong();
    void scrollsToALineEdit();
    void scrollsToOtherWidgets();
    void arrowsMoveOverSwitches();
    void staysWhereAClickIs();
    void staysWithoutTheFeature();
    void survivesDeletionByTheFocus();
};

void TestFormGrid::arrowsMoveTheFocus_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");
    const auto row = [](const char *name, int from, Qt::Key key, int to) {
        QTest::newRow(name) << from << int(key) << to;
    };
    row("right", 0, Qt::Key_Right, 1);
    row("right, into the next row", 3, Qt::Key_Right, 4);
    row("right, at the end", 39, Qt::Key_Right, 39);
    row("left", 5, Qt::Key_Left, 4);
    row("left, into the row before", 4, Qt::Key_Left, 3);
    row("left, at the start", 0, Qt::Key_Left, 0);
    row("down", 1, Qt::Key_Down, 5);
    row("down, in the last row", 37, Qt::Key_Down, 37);
    row("up", 6, Qt::Key_Up, 2);
    row("up, in the first row", 2, Qt::Key_Up, 2);
    row("home", 22, Qt::Key_Home, 0);
    row("end", 22, Qt::Key_End, 39);
}

void TestFormGrid::arrowsMoveTheFocus()
{
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(int, to);
    ButtonScene scene;
    scene.tiles.at(from)->setFocus();
    QTest::keyClick(scene.tiles.at(from), Qt::Key(key));
    QCOMPARE(scene.focused(), to);
    QTest::keyClick(scene.tiles.at(to), Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(scene.focused(), to);
}

void TestFormGrid::arrowsLeaveOutWhatTakesNoFocus()
{
    ButtonScene scene;
    scene.tiles.at(1)->setEnabled(false);
    scene.tiles.at(2)->hide();
    scene.tiles.at(3)->setFocusPolicy(Qt::ClickFocus);
    scene.tiles.at(0)->setFocus();
    QTest::keyClick(scene.tiles.at(0), Qt::Key_Right);
    QCOMPARE(scene.focused(), 4);
    QTest::keyClick(scene.tiles.at(4), Qt::Key_Left);
    QCOMPARE(scene.focused(), 0);
    scene.tiles.at(9)->setFocus();
    QTest::keyClick(scene.tiles.at(9), Qt::Key_Up);
    QCOMPARE(scene.focused(), 5);
    scene.tiles.at(0)->setEnabled(false);
    scene.tiles.at(39)->setEnabled(false);
    QTest::keyClick(scene.tiles.at(5), Qt::Key_End);
    QCOMPARE(scene.focused(), 38);
    QTest::keyClick(scene.tiles.at(38), Qt::Key_Home);
    QCOMPARE(scene.focused(), 4);
    scene.tiles.at(1)->setEnabled(true);
    QTest::keyClick(scene.tiles.at(4), Qt::Key_Home);
    QCOMPARE(scene.focused(), 1);
    scene.tiles.at(1)->setEnabled(false);
    scene.tiles.at(0)->setEnabled(true);
    scene.tiles.at(5)->setFocus();
    QTest::keyClick(scene.tiles.at(5), Qt::Key_Up);
    QCOMPARE(scene.focused(), 0);
}

void TestFormGrid::arrowsFindTheNearestOfARow()
{
    ButtonScene scene;
    // rows of 4, of the one that is as wide as the grid, and of 4
    scene.tiles.at(4)->resize(250, 20);
    scene.grid->reUi();
    scene.tiles.at(2)->setFocus();
    QTest::keyClick(scene.tiles.at(2), Qt::Key_Down);
    QCOMPARE(scene.focused(), 4);
    QTest::keyClick(scene.tiles.at(4), Qt::Key_Down);
    // both middle ones are as near, but for half a pixel
    QVERIFY(scene.focused() == 6 || scene.focused() == 7);
}

void TestFormGrid::arrowsFindTheFirstOfTwoThatAreAsNear()
{
    ButtonScene scene;
    const QVector<QPoint> places{ { 50, 0 },  { 110, 0 },  { 80, 30 },
                                  { 50, 60 }, { 110, 60 }, { 80, 90 } };
    for (int i = 0; i < scene.tiles.size(); ++i) {
        scene.tiles.at(i)->move(places.value(i, { 80, 120 }));
    }
    scene.tiles.at(2)->setFocus();
    QTest::keyClick(scene.tiles.at(2), Qt::Key_Down);
    QCOMPARE(scene.focused(), 3);
    scene.tiles.at(2)->setFocus();
    QTest::keyClick(scene.tiles.at(2), Qt::Key_Up);
    QCOMPARE(scene.focused(), 1);
}

void TestFormGrid::arrowsGoOnToTheForm()
{
    ButtonScene scene;
    // not in the grid's list, and not in a grid at all
    auto *aside = new OlvButton(scene.grid);
    auto *outside = new OlvButton(&scene.window);
    for (OlvButton *button : { aside, outside }) {
        button->setFocusPolicy(Qt::StrongFocus);
        button->show();
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget(), button);
    }
}

void TestFormGrid::arrowsMoveBetweenTilesAndGlyphs()
{
    GridScene scene(true);
    auto *tile = new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"), QStringLiteral("Sans"),
                                   scene.grid, 50, 50);
    auto *glyph = new OlvSimpleIconButton(QStringLiteral("*"), QFont(), scene.grid);
    scene.grid->addWidget({ tile, glyph });
    new OlvFormSupport(&scene.window);
    scene.window.show();
    QApplication::setActiveWindow(&scene.window);
    tile->setFocus();
    QTest::keyClick(tile, Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), glyph);
    QTest::keyClick(glyph, Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), tile);
}

void TestFormGrid::scrollsAlong()
{
    ButtonScene scene;
    scene.tiles.at(0)->setFocus();
    for (int i = 1; i < 40; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(scene.focused(), i);
        QVERIFY(scene.isWhollyVisible(i));
    }
    QVERIFY(!scene.isWhollyVisible(0));
    for (int i = 35; i > 0; i -= 4) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        QCOMPARE(scene.focused(), i);
        QVERIFY(scene.isWhollyVisible(i));
    }
}

void TestFormGrid::scrollsToALineEdit()
{
    ButtonScene scene;
    auto *edit = new OlvLineEdit(scene.grid);
    edit->resize(100, 30);
    edit->show();
    QTRY_VERIFY(edit->focusProxy());
    scene.grid->addWidget(edit);
    edit->lineEdit()->setFocus(Qt::TabFocusReason);
    const QRect shown(edit->mapTo(scene.viewport, QPoint(0, 0)), edit->size());
    QVERIFY(scene.viewport->rect().contains(shown));
}

void TestFormGrid::scrollsToOtherWidgets()
{
    GridScene scene(true);
    for (int i = 0; i < 40; ++i) {
        auto *button = new QPushButton(QString::number(i), scene.grid);
        button->resize(50, 20);
        scene.grid->addWidget(button);
    }
    new OlvFormSupport(&scene.window);
    scene.window.show();
    QApplication::setActiveWindow(&scene.window);
    QWidget *last = scene.grid->widgetAt(39);
    last->setFocus(Qt::TabFocusReason);
    const QRect shown(last->mapTo(scene.viewport, QPoint(0, 0)), last->size());
    QVERIFY(scene.viewport->rect().contains(shown));
}

void TestFormGrid::arrowsMoveOverSwitches()
{
    GridScene scene(true);
    auto *first = new OlvSwitch(scene.grid);
    auto *second = new OlvSwitch(scene.grid);
    first->resize(50, 20);
    second->resize(50, 20);
    scene.grid->addWidget({ first, second });
    new OlvFormSupport(&scene.window);
    scene.window.show();
    QApplication::setActiveWindow(&scene.window);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), second);
}

void TestFormGrid::staysWhereAClickIs()
{
    ButtonScene scene;
    barOf(*scene.grid)->setValue(1); // cuts the first row off
    QTest::mouseClick(scene.tiles.at(0), Qt::LeftButton, Qt::NoModifier, QPoint(25, 18));
    QCOMPARE(scene.focused(), 0);
    QCOMPARE(barOf(*scene.grid)->value(), 1);
    scene.tiles.at(39)->setFocus(Qt::OtherFocusReason);
    QCOMPARE(barOf(*scene.grid)->value(), 1);
}

void TestFormGrid::staysWithoutTheFeature()
{
    ButtonScene scene;
    auto *support = dynamic_cast<OlvFormSupport *>(scene.window.children().last());
    QVERIFY(support);
    support->setFeatures(OlvFormSupport::FocusRing);
    for (QWidget *tile : qAsConst(scene.tiles)) {
        tile->setFocusPolicy(Qt::StrongFocus);
    }
    scene.tiles.at(0)->setFocus();
    QTest::keyClick(scene.tiles.at(0), Qt::Key_Right);
    QCOMPARE(scene.focused(), 0);
    scene.tiles.at(39)->setFocus(Qt::TabFocusReason);
    QCOMPARE(barOf(*scene.grid)->value(), 0);
}

void TestFormGrid::survivesDeletionByTheFocus()
{
    ButtonScene scene;
    QWidget *left = scene.tiles.at(0);
    left->setFocus();
    const QPointer<QWidget> watched(left);
    const QObject context; // goes before what the slot uses
    connect(qApp, &QApplication::focusChanged, &context, [&] { delete watched; });
    QVERIFY(sendKey(left, QEvent::KeyPress, Qt::Key_Right));
    QVERIFY(!watched);
    QCOMPARE(scene.focused(), 1);
}

ADD_TEST(TestFormGrid, QApplication)
#include "tst_formgrid.moc"
