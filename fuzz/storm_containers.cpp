// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/containers.h>

#include <QMoveEvent>
#include <QScrollBar>
#include <QTimer>

namespace {

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

    static void callGrid(World &world, OlvGridLayout *grid)
    {
        Dice &dice = world.dice();
        QWidget *one = other(world, grid);
        QWidget *two = other(world, grid);
        switch (dice.below(10)) {
        case 0:
            grid->addWidget(one);
            break;
        case 1:
            grid->addWidget(QList<QWidget *>{ one, nullptr, two, one });
            break;
        case 2:
            grid->insWidget(one, two);
            break;
        case 3:
        case 4:
            if (!world.isGuarded()) {
                grid->delWidget(one);
            }
            break;
        case 5:
            grid->setMargin(dice.number());
            break;
        case 6:
            grid->setSpacing(dice.number());
            break;
        case 7:
            grid->resized();
            break;
        case 8:
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
            panel->setMaximumSize(1200, 1200);
            panel->stay(dice.pick(types));
            break;
        }
        case 1:
            panel->setMaximumSize(1200, 1200);
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
