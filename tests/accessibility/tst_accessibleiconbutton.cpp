// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "pointer.h"
#include "testprogram.h"

#include <OlvIconButton>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

class Tile : public OlvIconButton
{
public:
    Tile()
        : OlvIconButton(QChar(0xf0e0), QStringLiteral("Mail"), QStringLiteral("FontAwesome"),
                        nullptr, 80, 80)
        , single(this, &OlvIconButton::clicked)
        , twice(this, &OlvIconButton::dClicked)
    { }

    QSignalSpy single;
    QSignalSpy twice;
};

} // namespace

class TestAccessibleIconButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCalledByItsCaption();
    void hasTheActionsOfItsKind();
    void isPressedAsAMouseWould();
    void isPressedUnderThePointer();
    void twoPressesInATimeAreADoubleClick();
    void isDoubleClicked();
    void togglesWhenCheckable();
    void disabledIsNotPressed();
    void survivesDeletionDuringThePress();
    void survivesDeletionByThePointersComing();
    void tellsOfChanges();
};

void TestAccessibleIconButton::isCalledByItsCaption()
{
    Tile tile;
    QCOMPARE(nameOf(&tile), QStringLiteral("Mail"));
    tile.setText(QStringLiteral("Post"));
    QCOMPARE(nameOf(&tile), QStringLiteral("Post"));
}

void TestAccessibleIconButton::hasTheActionsOfItsKind()
{
    Tile tile;
    QAccessibleActionInterface *actions = accessible(&tile)->actionInterface();
    QCOMPARE(actions->actionNames(), (QStringList{ press(), doubleClick() }));
    tile.setCheckable(true);
    QCOMPARE(actions->actionNames(), (QStringList{ toggle(), press(), doubleClick() }));
    tile.setEnabled(false);
    QCOMPARE(actions->actionNames(), QStringList());
}

void TestAccessibleIconButton::isPressedAsAMouseWould()
{
    Tile tile;
    QVERIFY(act(&tile, press()));
    QCOMPARE(tile.getValue(), QVariant(true));
    QCOMPARE(tile.property("clickNumber"), QVariant(1));
    QCOMPARE(tile.property("hovered"), QVariant(false));
    QCOMPARE(tile.property("state"), QVariant(QStringLiteral("init")));
    QCOMPARE(tile.single.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(tile.single.count(), 1, 20000);
    QCOMPARE(tile.twice.count(), 0);
}

void TestAccessibleIconButton::isPressedUnderThePointer()
{
    Tile tile;
    Pointer::enter(tile);
    QVERIFY(act(&tile, press()));
    QCOMPARE(tile.property("hovered"), QVariant(true));
    QCOMPARE(tile.property("state"), QVariant(QStringLiteral("hover")));
    QTRY_COMPARE_WITH_TIMEOUT(tile.single.count(), 1, 20000);
}

void TestAccessibleIconButton::twoPressesInATimeAreADoubleClick()
{
    Tile tile;
    QVERIFY(act(&tile, press()));
    QVERIFY(act(&tile, press()));
    QTRY_COMPARE_WITH_TIMEOUT(tile.twice.count(), 1, 20000);
    QCOMPARE(tile.single.count(), 0);
    QCOMPARE(tile.getValue(), QVariant(false));
}

void TestAccessibleIconButton::isDoubleClicked()
{
    Tile tile;
    QVERIFY(act(&tile, doubleClick()));
    // by two clicks, each of which flips the value
    QCOMPARE(tile.property("clickNumber"), QVariant(2));
    QCOMPARE(tile.getValue(), QVariant(false));
    QTRY_COMPARE_WITH_TIMEOUT(tile.twice.count(), 1, 20000);
    QCOMPARE(tile.single.count(), 0);
}

void TestAccessibleIconButton::togglesWhenCheckable()
{
    Tile tile;
    QVERIFY(act(&tile, press()));
    QVERIFY(!accessible(&tile)->state().checked); // flipped, but not shown
    tile.setCheckable(true);
    QVERIFY(accessible(&tile)->state().checkable);
    QVERIFY(!accessible(&tile)->state().checked);
    QVERIFY(act(&tile, toggle()));
    QVERIFY(accessible(&tile)->state().checked);
    QVERIFY(isChecked(&tile));
}

void TestAccessibleIconButton::disabledIsNotPressed()
{
    Tile tile;
    tile.setEnabled(false);
    for (const QString &action : { press(), toggle(), doubleClick() }) {
        accessible(&tile)->actionInterface()->doAction(action);
    }
    QCOMPARE(tile.property("clickNumber"), QVariant(0));
}

/** Goes as soon as it is pressed. */
class FleetingTile : public OlvIconButton
{
protected:
    void mousePressEvent(QMouseEvent * /*event*/) override
    {
        hide();
        deleteLater();
    }
    void mouseReleaseEvent(QMouseEvent * /*event*/) override
    {
        delete this;
    }
};

/** Goes as soon as the pointer comes. */
class ShyTile : public OlvIconButton
{
protected:
    void enterEvent(OlvEnterEvent * /*event*/) override
    {
        delete this;
    }
};

void TestAccessibleIconButton::survivesDeletionByThePointersComing()
{
    const QPointer<OlvIconButton> tile(new ShyTile);
    QVERIFY(act(tile, doubleClick()));
    QVERIFY(!tile);
}

void TestAccessibleIconButton::survivesDeletionDuringThePress()
{
    const QPointer<OlvIconButton> tile(new FleetingTile);
    QVERIFY(act(tile, doubleClick()));
    QVERIFY(!tile);
}

void TestAccessibleIconButton::tellsOfChanges()
{
    Assistant assistant;
    Tile tile;
    tile.show();
    tile.setText(QStringLiteral("Post"));
    tile.setCheckable(true);
    QCOMPARE(assistant.heardOf(&tile),
             (QStringList{ QStringLiteral("name Post"), QStringLiteral("state checkable") }));
    QVERIFY(act(&tile, toggle()));
    QCOMPARE(assistant.heardOf(&tile),
             (QStringList{ QStringLiteral("state pressed"), QStringLiteral("state pressed"),
                           QStringLiteral("state checked") }));
    tile.setProperty("isChecked", false);
    QCOMPARE(assistant.heardOf(&tile), QStringList{ QStringLiteral("state checked") });
}

ADD_TEST(TestAccessibleIconButton, QApplication)
#include "tst_accessibleiconbutton.moc"
