// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>
#include <OlvWidgets/frame.h>

#include "support/mouseposition_p.h"

#include <QPointer>

namespace {

/** The side of the corner's square, and what the strips leave free for it, in strip widths. */
constexpr int cornerThickness = 2;

Qt::CursorShape cursorOf(OlvResizeItem::ResizeType type)
{
    switch (type) {
    case OlvResizeItem::RightEdge:
        return Qt::SizeHorCursor;
    case OlvResizeItem::BottomEdge:
        return Qt::SizeVerCursor;
    case OlvResizeItem::Corner:
        break;
    }
    return Qt::SizeFDiagCursor;
}

} // namespace

class OlvResizeItem::Private
{
public:
    ResizeType type = Corner;
    int width = 0;
    QPointer<QWidget> target;
    // plain widgets, since the destructor of a handle may have run when the other ones look at it
    QPointer<QWidget> first;
    QPointer<QWidget> second;
    QPoint pressPosition;
};

OlvResizeItem::OlvResizeItem(QWidget *target, QObject *filter, ResizeType type, int width,
                             OlvResizeItem *first, OlvResizeItem *second)
    : QWidget(target)
    , d(std::make_unique<Private>())
{
    d->type = type;
    d->width = qBound(-QWIDGETSIZE_MAX, width, QWIDGETSIZE_MAX);
    d->target = target;
    setPartners(first, second);
    if (filter) {
        installEventFilter(filter); // clazy:exclude=install-event-filter
    }
    setCursor(cursorOf(type));
    if (type == Corner) {
        resize(cornerThickness * d->width, cornerThickness * d->width);
    }
    place();
    OlvLastOnceFunction([handle = QPointer<QWidget>(this)] {
        // not during ~QWidget(), when the parent no longer lists this child
        if (dynamic_cast<OlvResizeItem *>(handle.data())) {
            handle->raise();
        }
    });
}

OlvResizeItem::~OlvResizeItem() = default;

OlvResizeItem::ResizeType OlvResizeItem::type() const
{
    return d->type;
}

QPoint OlvResizeItem::pressPosition() const
{
    return d->pressPosition;
}

OlvResizeItem *OlvResizeItem::firstPartner() const
{
    return dynamic_cast<OlvResizeItem *>(d->first.data());
}

OlvResizeItem *OlvResizeItem::secondPartner() const
{
    return dynamic_cast<OlvResizeItem *>(d->second.data());
}

void OlvResizeItem::setPartners(OlvResizeItem *first, OlvResizeItem *second)
{
    d->first = first;
    d->second = second;
}

void OlvResizeItem::place()
{
    if (!d->target) {
        return;
    }
    const int right = d->target->width();
    const int bottom = d->target->height();
    const int corner = cornerThickness * d->width;
    switch (d->type) {
    case RightEdge:
        setGeometry(right - d->width, 0, d->width, bottom - corner);
        break;
    case BottomEdge:
        setGeometry(0, bottom - d->width, right - corner, d->width);
        break;
    case Corner:
        move(right - corner, bottom - corner);
        break;
    }
}

void OlvResizeItem::placeAll()
{
    // what hears of the new place of one may delete any of them
    const QPointer<QWidget> handles[] = { this, d->first, d->second };
    for (const QPointer<QWidget> &widget : handles) {
        if (auto *handle = dynamic_cast<OlvResizeItem *>(widget.data())) {
            handle->place();
        }
    }
}

void OlvResizeItem::mousePressEvent(QMouseEvent *event)
{
    d->pressPosition = mousePosition(event);
}
