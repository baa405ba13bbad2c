// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>
#include <OlvWidgets/frame.h>

#include <QMouseEvent>
#include <QVariant>

namespace {

constexpr char moveAreaProperty[] = "MoveArea";
constexpr char canMoveProperty[] = "CanMove";
constexpr char pressPosProperty[] = "PressPos";

QPoint positionOf(const QEvent *event)
{
    return static_cast<const QMouseEvent *>(event)->pos();
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
        target->move(target->pos() + position - helper->property(pressPosProperty).toPoint());
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
    if (area.width() == 0) {
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
