// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/frame.h>

#include <QCursor>
#include <QMouseEvent>
#include <QPushButton>
#include <QVariant>

namespace {

/** A handle that remembers the arguments of its constructor. */
class OwnItem : public OlvResizeItem
{
public:
    OwnItem(QWidget *target, QObject *filter, ResizeType type, int width)
        : OlvResizeItem(target, filter, type, width, nullptr, nullptr)
        , m_target(target)
        , m_type(type)
        , m_width(qBound(-QWIDGETSIZE_MAX, width, QWIDGETSIZE_MAX))
    { }

    ResizeType givenType() const
    {
        return m_type;
    }

    void checkPlace() const
    {
        // the platform may place a window elsewhere
        if (!m_target || isWindow()) {
            return;
        }
        const QPoint corner(m_target->width() - 2 * m_width, m_target->height() - 2 * m_width);
        const QPoint places[] = { { m_target->width() - m_width, 0 },
                                  { 0, m_target->height() - m_width },
                                  corner };
        Storm::check(pos() == places[m_type], "a handle lies along its edge");
    }

private:
    QPointer<QWidget> m_target;
    ResizeType m_type;
    int m_width;
};

/** A widget that may delete the helpers in it, or others, when it is moved or resized. */
class Target : public QWidget
{
public:
    Target(World &world, QWidget *parent)
        : QWidget(parent)
        , m_world(world)
    { }

protected:
    void moveEvent(QMoveEvent * /*event*/) override
    {
        strike();
    }
    void resizeEvent(QResizeEvent * /*event*/) override
    {
        strike();
    }

private:
    void strike()
    {
        if (m_world.dice().oneIn(30)) {
            m_world.takeHelper(this);
        } else if (m_world.dice().oneIn(60)) {
            m_world.deleteAny(this);
        }
    }

    World &m_world;
};

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
            auto *item = new OwnItem(parent, filter, type, dice.number());
            item->checkPlace();
            return item;
        }
        default:
            return makeTarget(world, parent);
        }
    }

    void call(World &world, QWidget *widget) override
    {
        Dice &dice = world.dice();
        const QObjectList children = widget->children();
        if (auto *item = dynamic_cast<OlvResizeItem *>(widget)) {
            callItem(world, item);
            return;
        }
        if (auto *bar = qobject_cast<OlvControlBar *>(widget)) {
            const QList<QPushButton *> buttons = bar->findChildren<QPushButton *>();
            if (!buttons.isEmpty()) {
                dice.pick(buttons)->click();
            }
            return;
        }
        if (children.isEmpty()) {
            return;
        }
        QObject *helper = dice.pick(children);
        if (auto *mover = dynamic_cast<OlvMoveWidget *>(helper)) {
            callMover(world, mover);
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
        if (auto *item = dynamic_cast<OwnItem *>(widget)) {
            Storm::check(item->type() == item->givenType(), "a handle stays of its type");
        } else if (auto *bar = qobject_cast<OlvControlBar *>(widget)) {
            Storm::check(bar->minimumHeight() == 25, "a bar is 25 pixels high");
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
        auto *target = new Target(world, parent);
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

    static void callMover(World &world, OlvMoveWidget *mover)
    {
        Dice &dice = world.dice();
        const QRect area =
            dice.coin() ? dice.rect() : QRect(0, 0, dice.between(-9, 200), dice.between(-9, 200));
        const QVariant before = mover->property("MoveArea");
        const QPointer<OlvMoveWidget> alive(mover);
        mover->setMoveArea(area);
        if (!alive || !world.isUndisturbed()) {
            return;
        }
        const auto *target = qobject_cast<QWidget *>(mover->parent());
        const bool hasNoWidth = qint64(area.right()) - area.left() == -1;
        const QVariant expected = !target ? before : hasNoWidth ? target->rect() : area;
        Storm::check(mover->property("MoveArea") == expected,
                     "a helper has the area it was given, or the whole widget");
    }

    static void callItem(World &world, OlvResizeItem *item)
    {
        Dice &dice = world.dice();
        switch (dice.below(5)) {
        case 0:
            item->place();
            checkPlace(item);
            break;
        case 1:
            item->placeAll();
            checkPlace(item);
            checkPlace(item->firstPartner());
            checkPlace(item->secondPartner());
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
            press(world, item);
        }
    }

    static void checkPlace(const OlvResizeItem *item)
    {
        if (const auto *own = dynamic_cast<const OwnItem *>(item)) {
            own->checkPlace();
        }
    }

    static void press(World &world, OlvResizeItem *item)
    {
        const QPoint place = world.dice().pixel(item->size());
        QMouseEvent event(QEvent::MouseButtonPress, place, QCursor::pos(), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        const bool isHeard = item->isEnabled();
        QCoreApplication::sendEvent(item, &event);
        Storm::check(!isHeard || !world.isUndisturbed() || item->pressPosition() == place,
                     "a handle notes where it was pressed");
    }
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<FrameFamily>(argc, argv, "frame");
}
