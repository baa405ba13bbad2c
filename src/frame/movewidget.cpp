// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>
#include <OlvWidgets/frame.h>

#include "frame/systemmove_p.h"
#include "support/mouseposition_p.h"

#include <QPointer>
#include <QVariant>

namespace {

constexpr char moveAreaProperty[] = "MoveArea";
constexpr char canMoveProperty[] = "CanMove";
constexpr char pressPosProperty[] = "PressPos";

const QMouseEvent *mouseEvent(const QEvent *event)
{
    return static_cast<const QMouseEvent *>(event);
}

/** A coordinate that a drag moves; the property with the place of the press may hold any number. */
int moved(int coordinate, int to, int from)
{
    constexpr qint64 farthest = 1 << 29;
    return int(qBound(-farthest, qint64(coordinate) + to - from, farthest));
}

/** In more bits than QRect::width(), which overflows where an area spans more than an int. */
bool isOfNoWidth(const QRect &area)
{
    return qint64(area.right()) - area.left() + 1 == 0;
}

/** Event filters see mouse events before Qt drops them for a disabled widget. */
bool isMovable(const QWidget *target)
{
    return target && target->isEnabled();
}

void startMove(const QPointer<OlvMoveWidget> &helper, QPoint position)
{
    const auto *target = qobject_cast<QWidget *>(helper->parent());
    const QVariant area = helper->property(moveAreaProperty);
    if (!isMovable(target) || target->isMaximized() || !area.toRect().contains(position)) {
        return;
    }
    helper->setProperty(canMoveProperty, true);
    if (helper) { // an event filter may have deleted it
        helper->setProperty(pressPosProperty, position);
    }
}

void follow(const OlvMoveWidget *helper, QWidget *target, const QMouseEvent *move)
{
    if (!isMovable(target) || !helper->property(canMoveProperty).toBool()) {
        return;
    }
    const QPoint position = mousePosition(move);
    const QPoint pressed = helper->property(pressPosProperty).toPoint();
    // A move that stays in the same pixel must not end what may still become a click.
    if (position != pressed && startSystemMove(target, move)) {
        return;
    }
    const QPoint place = target->pos();
    target->move(moved(place.x(), position.x(), pressed.x()),
                 moved(place.y(), position.y(), pressed.y()));
}

} // namespace

OlvMoveWidget::OlvMoveWidget(QWidget *target)
    : QObject(target)
{ }

void OlvMoveWidget::setMoveArea(QRect area)
{
    auto *target = qobject_cast<QWidget *>(parent());
    if (!target) {
        return;
    }
    if (isOfNoWidth(area)) {
        area = target->rect();
    }
    if (!property(moveAreaProperty).isValid()) {
        // the filter belongs to the target, which an application may keep longer than this helper
        const QPointer<OlvMoveWidget> helper(this);
        const QPointer<QWidget> moved(target);
        auto *filter = new OlvPluginEventFilter(target);
        filter->addEventListener(QEvent::MouseButtonPress, [helper](QEvent *event) {
            if (helper) {
                startMove(helper, mousePosition(mouseEvent(event)));
            }
        });
        filter->addEventListener(QEvent::MouseMove, [helper, moved](QEvent *event) {
            if (helper) {
                follow(helper, moved, mouseEvent(event));
            }
        });
        filter->addEventListener(QEvent::MouseButtonRelease, [helper](QEvent *) {
            if (helper) {
                helper->setProperty(canMoveProperty, false);
            }
        });
    }
    setProperty(moveAreaProperty, area);
}
