// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>
#include <OlvWidgets/frame.h>

#include "support/mouseposition_p.h"

#include <QPointer>
#include <QVariant>

namespace {

constexpr char moveAreaProperty[] = "MoveArea";
constexpr char canMoveProperty[] = "CanMove";
constexpr char pressPosProperty[] = "PressPos";

QPoint positionOf(const QEvent *event)
{
    return mousePosition(static_cast<const QMouseEvent *>(event));
}

/** A coordinate moved by a drag; the property that says from where may hold any number. */
int moved(int coordinate, int to, int from)
{
    constexpr qint64 farthest = 1 << 29;
    return int(qBound(-farthest, qint64(coordinate) + to - from, farthest));
}

/** QRect::width() cannot tell the width of an area that spans more than an int. */
bool isOfNoWidth(const QRect &area)
{
    return qint64(area.right()) - area.left() + 1 == 0;
}

void startMove(OlvMoveWidget *helper, QPoint position)
{
    const auto *target = qobject_cast<QWidget *>(helper->parent());
    const QVariant area = helper->property(moveAreaProperty);
    if (!target || target->isMaximized() || !area.isValid() || !area.toRect().contains(position)) {
        return;
    }
    helper->setProperty(canMoveProperty, true);
    helper->setProperty(pressPosProperty, position);
}

void follow(OlvMoveWidget *helper, QWidget *target, QPoint position)
{
    if (helper->property(canMoveProperty).toBool()) {
        const QPoint pressed = helper->property(pressPosProperty).toPoint();
        const QPoint place = target->pos();
        target->move(moved(place.x(), position.x(), pressed.x()),
                     moved(place.y(), position.y(), pressed.y()));
    }
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
        // the filter is the target's: it may outlive this helper
        const QPointer<OlvMoveWidget> helper(this);
        const QPointer<QWidget> moved(target);
        auto *filter = new OlvPluginEventFilter(target);
        filter->addEventListener(QEvent::MouseButtonPress, [helper](QEvent *event) {
            if (helper) {
                startMove(helper, positionOf(event));
            }
        });
        filter->addEventListener(QEvent::MouseMove, [helper, moved](QEvent *event) {
            if (helper && moved) {
                follow(helper, moved, positionOf(event));
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
