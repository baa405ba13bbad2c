// SPDX-License-Identifier: MIT
#include <OlvWidgets/frame.h>

#include "support/childaddress_p.h"
#include "support/mouseposition_p.h"

#include <QPointer>

namespace {
/** A historical name; the handle is at the bottom right. */
constexpr char cornerProperty[] = "LeftBottom";
} // namespace

OlvResizeWidget::OlvResizeWidget(QWidget *target, int width)
    : QObject(target)
{
    auto *right =
        new OlvResizeItem(target, this, OlvResizeItem::RightEdge, width, nullptr, nullptr);
    auto *bottom =
        new OlvResizeItem(target, this, OlvResizeItem::BottomEdge, width, right, nullptr);
    auto *corner = new OlvResizeItem(target, this, OlvResizeItem::Corner, width, right, bottom);
    right->setPartners(bottom, corner);
    bottom->setPartners(right, corner);
    setProperty(cornerProperty, reinterpret_cast<qulonglong>(corner));
}

void OlvResizeWidget::reset()
{
    if (!parent()) {
        return;
    }
    if (auto *corner = childAtAddress<OlvResizeItem>(parent(), property(cornerProperty))) {
        corner->placeAll();
    }
}

bool OlvResizeWidget::eventFilter(QObject *watched, QEvent *event)
{
    auto *target = qobject_cast<QWidget *>(parent());
    const bool isMove = event->type() == QEvent::MouseMove && target && !target->isMaximized();
    const QPointer<OlvResizeItem> handle(isMove ? dynamic_cast<OlvResizeItem *>(watched) : nullptr);
    // event filters see mouse events before Qt drops them for a disabled widget
    if (!handle || !handle->isEnabled()) {
        return QObject::eventFilter(watched, event);
    }
    QPoint moved = mousePosition(static_cast<QMouseEvent *>(event)) - handle->pressPosition();
    if (handle->type() == OlvResizeItem::RightEdge) {
        moved.setY(0);
    } else if (handle->type() == OlvResizeItem::BottomEdge) {
        moved.setX(0);
    }
    target->resize(target->width() + moved.x(), target->height() + moved.y());
    if (handle) {
        handle->placeAll();
    }
    // the target's resize event may have deleted the handle, which must not get this event then
    return !handle;
}
