// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/frame.h>

#include <QPushButton>
#include <QVariant>

namespace {

class FrameFamily : public Family
{
public:
    QWidget *make(World &world, QWidget *parent) override
    {
        Dice &dice = world.dice();
        switch (dice.below(8)) {
        case 0:
            return makeBar(dice, parent);
        case 1:
            return new OlvDragWidget(parent, world.anyWidget(), nullptr, dice.point());
        case 2: {
            const auto type = OlvResizeItem::ResizeType(dice.between(0, 2));
            QObject *filter = dice.coin() ? world.anyWidget() : nullptr;
            return new OlvResizeItem(parent, filter, type, dice.number(), nullptr, nullptr);
        }
        default:
            return makeTarget(world, parent);
        }
    }

    void call(World &world, QWidget *widget) override
    {
        Dice &dice = world.dice();
        if (auto *item = dynamic_cast<OlvResizeItem *>(widget)) {
            callItem(world, item);
            return;
        }
        if (qobject_cast<OlvControlBar *>(widget)) {
            const QList<QPushButton *> buttons = widget->findChildren<QPushButton *>();
            if (!buttons.isEmpty()) {
                dice.pick(buttons)->click();
            }
            return;
        }
        if (widget->children().isEmpty()) {
            return;
        }
        QObject *helper = dice.pick(widget->children());
        if (auto *mover = dynamic_cast<OlvMoveWidget *>(helper)) {
            callMover(dice, mover);
        } else if (auto *resizer = dynamic_cast<OlvResizeWidget *>(helper)) {
            resizer->reset();
        } else if (auto *item = dynamic_cast<OlvResizeItem *>(helper)) {
            callItem(world, item);
        }
    }

    QVector<QByteArray> properties() const override
    {
        return { "MoveArea", "CanMove", "PressPos", "LeftBottom", "index", "max", "normal" };
    }

    void check(World & /*world*/, QWidget *widget) override
    {
        if (auto *item = dynamic_cast<OlvResizeItem *>(widget)) {
            Storm::check(item->type() >= OlvResizeItem::RightEdge
                             && item->type() <= OlvResizeItem::Corner,
                         "a handle keeps its place");
        } else if (qobject_cast<OlvControlBar *>(widget)) {
            Storm::check(widget->minimumHeight() == 25, "a bar is 25 pixels high");
        }
    }

private:
    static QWidget *makeBar(Dice &dice, QWidget *parent)
    {
        QList<QChar> icons;
        for (int i = dice.below(12); i > 0; --i) {
            icons.append(dice.character());
        }
        return new OlvControlBar(icons, parent, dice.texts());
    }

    static QWidget *makeTarget(World &world, QWidget *parent)
    {
        Dice &dice = world.dice();
        auto *target = new QWidget(parent);
        target->resize(80, 60);
        if (dice.coin()) {
            auto *mover = new OlvMoveWidget(target);
            mover->setMoveArea(dice.coin() ? QRect() : dice.rect());
            world.remember(mover);
        }
        if (dice.coin()) {
            const int width = dice.oneIn(4) ? dice.number() : dice.between(1, 9);
            world.remember(new OlvResizeWidget(target, width));
        }
        return target;
    }

    static void callMover(Dice &dice, OlvMoveWidget *mover)
    {
        if (dice.coin()) {
            mover->setMoveArea(dice.rect());
        } else {
            mover->setMoveArea(QRect(0, 0, dice.between(-9, 200), dice.between(-9, 200)));
        }
    }

    static void callItem(World &world, OlvResizeItem *item)
    {
        Dice &dice = world.dice();
        switch (dice.below(5)) {
        case 0:
            item->place();
            break;
        case 1:
            item->placeAll();
            break;
        case 2: {
            auto *first = dynamic_cast<OlvResizeItem *>(world.anyWidget());
            auto *second = dynamic_cast<OlvResizeItem *>(world.anyWidget());
            item->setPartners(first, second);
            Storm::check(item->firstPartner() == first && item->secondPartner() == second,
                         "a handle has the partners it was given");
            break;
        }
        default:
            item->pressPosition();
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<FrameFamily>(argc, argv, "frame");
}
