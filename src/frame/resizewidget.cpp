// SPDX-License-Identifier: MIT
#include <OlvWidgets/frame.h>

#include "support/childaddress_p.h"
#include "support/mouseposition_p.h"

#include <QPointer>

namespace {
/** The handle is at the bottom right: the name is the one that the property has always had. */
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
    const bool passOn = QObject::eventFilter(watched, event);
    auto *target = qobject_cast<QWidget *>(parent());
    if (event->type() != QEvent::MouseMove || !target || target->isMaximized()) {
        return passOn;
    }
    const QPointer<OlvResizeItem> handle(dynamic_cast<OlvResizeItem *>(watched));
    if (!handle) {
        return passOn;
    }
    QPoint moved = mousePosition(static_cast<QMouseEvent *>(event)) - handle->pressPosition();
    if (handle->type() == OlvResizeItem::RightEdge) {
        moved.setY(0);
    } else if (handle->type() == OlvResizeItem::BottomEdge) {
        moved.setX(0);
    }
    target->resize(target->width() + moved.x(), target->height() + moved.y());
    // whoever heard of the resize may have destroyed the handle
    if (handle) {
        handle->placeAll();
    }
    return passOn;
}
