// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/containers.h>

#include <QMoveEvent>
#include <QScrollBar>
#include <QTimer>

namespace {

/** The largest side of a window, whose pixels the platform allocates. */
constexpr int largestWindow = 1200;

/** A widget in a grid that may delete others when it is moved or resized. */
class Tile : public QWidget
{
public:
    Tile(World &world, QWidget *parent)
        : QWidget(parent)
        , m_world(world)
    { }

protected:
    void moveEvent(QMoveEvent * /*event*/) override
    {
        if (m_world.dice().oneIn(60)) {
            m_world.deleteAny(this);
        }
    }
    void resizeEvent(QResizeEvent * /*event*/) override
    {
        if (m_world.dice().oneIn(60)) {
            m_world.deleteAny(this);
        }
    }

private:
    World &m_world;
};

class ContainersFamily : public Family
{
public:
    QWidget *make(World &world, QWidget *parent) override
    {
        Dice &dice = world.dice();
        switch (dice.below(6)) {
        case 0:
        case 1: {
            const int width = dice.side();
            return new OlvFlexWidget(width, dice.side(), parent);
        }
        case 2:
        case 3: {
            auto *grid = new OlvGridLayout(dice.oneIn(6) ? nullptr : parent);
            return grid;
        }
        default:
            return makeTile(world, parent);
        }
    }

    void call(World &world, QWidget *widget) override
    {
        if (auto *grid = qobject_cast<OlvGridLayout *>(widget)) {
            callGrid(world, grid);
        } else if (auto *panel = qobject_cast<OlvFlexWidget *>(widget)) {
            callPanel(world, panel);
        }
    }

    QVector<QByteArray> properties() const override
    {
        return { "isSubWindow", "ScrollBar",      "ResizeTimer", "stay",
                 "headerWay",   "headerWayColor", "resizeTimer" };
    }

    void check(World &world, QWidget *widget) override
    {
        if (auto *grid = qobject_cast<OlvGridLayout *>(widget)) {
            Storm::check(grid->height() <= QWIDGETSIZE_MAX, "a grid is no larger than it may be");
            Storm::check(!grid->insWidget(grid, nullptr), "nothing goes before nothing");
            Storm::check(!grid->delWidget(nullptr), "nothing is not in a grid");
            Storm::check(!grid->insWidget(nullptr, world.anyWidget()), "nothing is not inserted");
            checkOrder(world.dice(), grid);
        } else if (auto *panel = qobject_cast<OlvFlexWidget *>(widget)) {
            Storm::check(panel->minimumSize() == QSize(50, 50), "a panel has a smallest size");
        }
    }

private:
    static QWidget *makeTile(World &world, QWidget *parent)
    {
        Dice &dice = world.dice();
        auto *grid = qobject_cast<OlvGridLayout *>(world.anyWidget());
        // adding a widget moves others, which may delete it
        const QPointer<QWidget> tile(new Tile(world, grid ? grid : parent));
        tile->resize(dice.side(), dice.side());
        if (grid) {
            grid->addWidget(tile);
        }
        return tile;
    }

    static void checkOrder(Dice &dice, OlvGridLayout *grid)
    {
        const QList<QWidget *> none;
        Storm::check(!grid->takeWidget(nullptr), "nothing is not taken");
        Storm::check(!grid->delWidget(none), "an empty list deletes nothing");
        Storm::check(!grid->insWidget(none, nullptr), "an empty list does not go before nothing");
        Storm::check(grid->indexOf(nullptr) == -1, "nothing has no index");
        Storm::check(grid->indexOf(grid) == -1, "a grid is not in itself");
        const int count = grid->count();
        const int index = dice.coin() ? dice.between(-1, count) : dice.number();
        QWidget *tile = grid->widgetAt(index);
        Storm::check((tile != nullptr) == (index >= 0 && index < count),
                     "a grid has a widget at each index below its count");
        Storm::check(!tile || (grid->indexOf(tile) >= 0 && grid->indexOf(tile) <= index),
                     "a widget is found at the first of its indices");
    }

    static void callGrid(World &world, OlvGridLayout *grid)
    {
        Dice &dice = world.dice();
        switch (dice.below(16)) {
        case 0:
        case 1:
        case 2:
            add(world, grid);
            break;
        case 3:
        case 4:
            if (!world.isGuarded()) {
                remove(world, grid);
            }
            break;
        case 5:
            if (!world.isGuarded()) {
                take(world, grid);
            }
            break;
        case 6:
            if (!world.isGuarded()) {
                putBack(world, grid);
            }
            break;
        case 7:
            reveal(world, grid);
            break;
        case 8:
            retain(world, grid);
            break;
        case 9:
        case 10:
            if (!world.isGuarded()) {
                showSome(world, grid);
            }
            break;
        case 11:
            grid->setMargin(dice.number());
            break;
        case 12:
            grid->setSpacing(dice.number());
            break;
        case 13:
            grid->resized();
            break;
        case 14:
            turnScrollBar(dice, grid);
            break;
        default:
            grid->reUi();
        }
    }

    /** A widget that may be added to the grid because it does not contain it; may be null. */
    static QWidget *other(World &world, OlvGridLayout *grid)
    {
        QWidget *found = world.anyWidget();
        return found && found != grid && !found->isAncestorOf(grid) ? found : nullptr;
    }

    /** At most five widgets of the grid, other widgets, null ones, and some of these again. */
    static QList<QWidget *> someWidgets(World &world, OlvGridLayout *grid)
    {
        Dice &dice = world.dice();
        QList<QWidget *> widgets;
        for (int i = dice.below(6); i > 0; --i) {
            // a widget of the grid may be half destroyed while a Guard exists
            if (!world.isGuarded() && dice.oneIn(3)) {
                widgets.append(grid->widgetAt(dice.between(-1, grid->count())));
            } else if (!widgets.isEmpty() && dice.oneIn(4)) {
                widgets.append(dice.pick(widgets));
            } else {
                widgets.append(dice.oneIn(6) ? nullptr : other(world, grid));
            }
        }
        return widgets;
    }

    static void add(World &world, OlvGridLayout *grid)
    {
        Dice &dice = world.dice();
        const QPointer<OlvGridLayout> alive(grid);
        const int before = grid->count();
        QList<QWidget *> widgets = someWidgets(world, grid);
        switch (dice.below(4)) {
        case 0:
            widgets = { other(world, grid) };
            grid->addWidget(widgets.first());
            break;
        case 1:
            grid->addWidget(widgets);
            break;
        case 2:
            widgets = { other(world, grid) };
            grid->insWidget(widgets.first(), other(world, grid));
            break;
        default:
            grid->insWidget(widgets, grid->widgetAt(dice.between(-1, before)));
        }
        if (alive && world.isUndisturbed()) {
            const auto most = before + widgets.size() - widgets.count(nullptr);
            Storm::check(alive->count() <= most, "no more widgets are in a grid than were added");
        }
    }

    static void remove(World &world, OlvGridLayout *grid)
    {
        const QPointer<OlvGridLayout> alive(grid);
        switch (world.dice().below(8)) {
        case 0:
            grid->clear();
            Storm::check(!alive || !world.isUndisturbed() || alive->count() == 0,
                         "a grid is empty once it is cleared");
            break;
        case 1:
        case 2:
        case 3:
            grid->delWidget(someWidgets(world, grid));
            break;
        default:
            grid->delWidget(other(world, grid));
        }
    }

    /** Takes a widget out, which the world keeps: it is added again, or deleted, like any other. */
    static void take(World &world, OlvGridLayout *grid)
    {
        Dice &dice = world.dice();
        const QPointer<OlvGridLayout> alive(grid);
        const QPointer<QWidget> wanted(
            dice.oneIn(4) ? world.anyWidget() : grid->widgetAt(dice.between(-1, grid->count())));
        if (wanted) {
            releaseFocus(wanted);
        }
        QWidget *taken = alive ? alive->takeWidget(wanted) : nullptr;
        if (!taken) {
            return;
        }
        Storm::check(taken == wanted, "the widget that is taken is the one that was asked for");
        if (alive && world.isUndisturbed()) {
            Storm::check(alive->indexOf(taken) == -1, "what is taken is not in the grid");
            Storm::check(taken->parentWidget() != alive, "what is taken is no child of the grid");
        }
        if (taken->isWindow()) {
            taken->setMaximumSize(largestWindow, largestWindow);
        }
    }

    /** Makes a widget, which may have been taken out of another grid, a child and adds it. */
    static void putBack(World &world, OlvGridLayout *grid)
    {
        const QPointer<OlvGridLayout> alive(grid);
        const QPointer<QWidget> widget(other(world, grid));
        if (!widget) {
            return;
        }
        {
            const World::Guard guard(world);
            releaseFocus(widget);
            widget->setParent(grid);
        }
        if (alive && widget) {
            alive->addWidget(widget);
        }
    }

    /** Otherwise Qt keeps a hidden child as the focus widget of the window that it has left. */
    static void releaseFocus(QWidget *widget)
    {
        QWidget *focused = widget->window()->focusWidget();
        if (focused && (focused == widget || widget->isAncestorOf(focused))) {
            focused->clearFocus();
        }
    }

    /** Scrolls to a widget, also while a reflow is due because others have been hidden. */
    static void reveal(World &world, OlvGridLayout *grid)
    {
        Dice &dice = world.dice();
        const QPointer<OlvGridLayout> alive(grid);
        if (!world.isGuarded() && dice.coin()) {
            showSome(world, grid);
        }
        if (!alive) {
            return;
        }
        if (world.isGuarded() || dice.oneIn(4)) {
            grid->ensureVisible(dice.oneIn(8) ? grid->parentWidget() : world.anyWidget());
        } else {
            grid->ensureVisible(grid->widgetAt(dice.between(-1, grid->count())));
        }
    }

    static void retain(World &world, OlvGridLayout *grid)
    {
        const QPointer<OlvGridLayout> alive(grid);
        const bool retains = world.dice().coin();
        grid->setRetainSizeWhenHidden(retains);
        Storm::check(!alive || !world.isUndisturbed() || alive->retainSizeWhenHidden() == retains,
                     "a grid knows whether it retains the sizes of hidden widgets");
    }

    /** Shows or hides some of the widgets of the grid, which may reflow it in the event loop. */
    static void showSome(World &world, OlvGridLayout *grid)
    {
        Dice &dice = world.dice();
        const World::Guard guard(world);
        const QPointer<OlvGridLayout> alive(grid);
        const bool isShown = dice.coin();
        for (int i = dice.between(1, 4); i > 0 && alive; --i) {
            if (QWidget *tile = alive->widgetAt(dice.between(-1, alive->count()))) {
                tile->setVisible(isShown);
            }
        }
    }

    static void turnScrollBar(Dice &dice, OlvGridLayout *grid)
    {
        if (grid->parentWidget()) {
            if (auto *bar = grid->parentWidget()->findChild<QScrollBar *>()) {
                // Qt's style divides by zero when the range overflows an int
                bar->setRange(dice.between(-9, 9), dice.side());
                bar->setValue(dice.number());
            }
        }
    }

    static void callPanel(World &world, OlvFlexWidget *panel)
    {
        Dice &dice = world.dice();
        // showing a window visits its children, one of which may be half destroyed
        switch (world.isGuarded() ? 7 : dice.below(8)) {
        case 0: {
            static constexpr std::array<OlvFlexWidget::OlvStayType, 3> types{
                OlvFlexWidget::StayNormal, OlvFlexWidget::StayTop, OlvFlexWidget::StayBottom
            };
            panel->setMaximumSize(largestWindow, largestWindow);
            panel->stay(dice.pick(types));
            break;
        }
        case 1:
            panel->setMaximumSize(largestWindow, largestWindow);
            panel->toggleTool();
            break;
        case 2:
            Q_EMIT panel->clicked();
            break;
        default:
            panel->setHeaderWay(OlvFlexWidget::HeaderWay(dice.between(0, 7)), dice.color());
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<ContainersFamily>(argc, argv, "containers");
}
