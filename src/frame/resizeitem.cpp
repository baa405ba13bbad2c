// SPDX-License-Identifier: MIT
#include <OlvWidgets/foundation.h>
#include <OlvWidgets/frame.h>

#include "support/mouseposition_p.h"

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

OlvResizeItem::OlvResizeItem(QWidget *target, QObject *filter, ResizeType type, int width,
                             OlvResizeItem *first, OlvResizeItem *second)
    : QWidget(target)
    , m_type(type)
    , m_width(qBound(-QWIDGETSIZE_MAX, width, QWIDGETSIZE_MAX))
    , m_target(target)
    , m_first(first)
    , m_second(second)
{
    if (filter) {
        installEventFilter(filter); // clazy:exclude=install-event-filter
    }
    setCursor(cursorOf(type));
    if (type == Corner) {
        resize(cornerThickness * m_width, cornerThickness * m_width);
    }
    place();
    OlvLastOnceFunction([handle = QPointer<OlvResizeItem>(this)] {
        if (handle) {
            handle->raise();
        }
    });
}

OlvResizeItem::ResizeType OlvResizeItem::type() const
{
    return m_type;
}

QPoint OlvResizeItem::pressPosition() const
{
    return m_pressPosition;
}

OlvResizeItem *OlvResizeItem::firstPartner() const
{
    // what is left of a handle that is being destroyed is no handle any more
    return dynamic_cast<OlvResizeItem *>(m_first.data());
}

OlvResizeItem *OlvResizeItem::secondPartner() const
{
    return dynamic_cast<OlvResizeItem *>(m_second.data());
}

void OlvResizeItem::setPartners(OlvResizeItem *first, OlvResizeItem *second)
{
    m_first = first;
    m_second = second;
}

void OlvResizeItem::place()
{
    if (!m_target) {
        return;
    }
    const int right = m_target->width();
    const int bottom = m_target->height();
    const int corner = cornerThickness * m_width;
    switch (m_type) {
    case RightEdge:
        setGeometry(right - m_width, 0, m_width, bottom - corner);
        break;
    case BottomEdge:
        setGeometry(0, bottom - m_width, right - corner, m_width);
        break;
    case Corner:
        move(right - corner, bottom - corner);
        break;
    }
}

void OlvResizeItem::placeAll()
{
    place();
    if (OlvResizeItem *first = firstPartner()) {
        first->place();
    }
    if (OlvResizeItem *second = secondPartner()) {
        second->place();
    }
}

void OlvResizeItem::mousePressEvent(QMouseEvent *event)
{
    m_pressPosition = mousePosition(event);
}
