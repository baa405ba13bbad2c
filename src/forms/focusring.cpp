// SPDX-License-Identifier: MIT
#include "forms/focusring_p.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int thickness = 2;
constexpr int gap = 1;
/** How far the ring lies outside the widget. */
constexpr int margin = thickness + gap;
/** On a fractional scale the ring is rounded to whole pixels, which may be beyond the outline. */
constexpr int roundingMargin = 1;

/** Whether what lies in a widget is cut off at its edges, so that the ring has to be in there. */
bool isViewport(const QWidget *widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget->parentWidget());
    return area && area->viewport() == widget;
}

/** A rectangle that Qt may have placed between pixels of the screen, moved onto them. */
QRectF onPixels(const QRectF &rect)
{
    const QPointF topLeft(qRound(rect.left()), qRound(rect.top()));
    const QPointF bottomRight(qRound(rect.right()), qRound(rect.bottom()));
    return QRectF(topLeft, bottomRight);
}

} // namespace

FocusRing::FocusRing()
    : QFocusFrame(nullptr)
{
    hide();
}

void FocusRing::surround(QWidget *widget, int radius)
{
    m_widget = widget;
    m_radius = radius;
    unwatch();
    watch();
    place();
}

void FocusRing::leave(const QWidget *widget)
{
    if (widget == m_widget) {
        surround(nullptr, m_radius);
    }
}

QWidget *FocusRing::surrounded() const
{
    return m_widget;
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ZOrderChange:
        place();
        break;
    case QEvent::ParentChange:
        if (m_widget) {
            surround(m_widget, m_radius);
        }
        break;
    case QEvent::PaletteChange:
        update();
        break;
    case QEvent::Destroy:
        if (watched == m_widget) {
            leave(m_widget);
        }
        break;
    default:
        break;
    }
    return false; // QFocusFrame's filter follows the widget of setWidget(), which is not used here
}

void FocusRing::paintEvent(QPaintEvent * /*event*/)
{
    if (!m_widget) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform toDevice = painter.deviceTransform();
    const qreal scale = toDevice.m11();
    const qreal width = qMax(1, qRound(thickness * scale));
    const QRectF outer = onPixels(toDevice.mapRect(QRectF(m_outline.translated(-pos()))));
    const QRectF inner = outer.adjusted(width, width, -width, -width);
    const qreal radius = (m_radius + margin) * scale;
    QPainterPath ring;
    ring.addRoundedRect(outer, radius, radius);
    ring.addRoundedRect(inner, radius - width, radius - width);
    // in pixels of the screen, so that the edges are sharp on every scale
    painter.setWorldTransform(toDevice.inverted());
    painter.fillPath(ring, m_widget->palette().color(QPalette::Highlight));
}

void FocusRing::watch()
{
    for (QWidget *around = m_widget; around; around = around->parentWidget()) {
        around->installEventFilter(this);
        m_watched.append(around);
        if (around->isWindow() || isViewport(around)) {
            break;
        }
    }
}

void FocusRing::unwatch()
{
    for (const QPointer<QWidget> &around : qAsConst(m_watched)) {
        if (around) {
            around->removeEventFilter(this);
        }
    }
    m_watched.clear();
}

void FocusRing::place()
{
    QWidget *host = m_watched.isEmpty() ? nullptr : m_watched.last();
    if (!m_widget || !host || !m_widget->isVisibleTo(host)) {
        hide();
        return;
    }
    if (parentWidget() != host) {
        setParent(host);
    }
    const QRect rect(m_widget->mapTo(host, QPoint()), m_widget->size());
    // around a window there is no room
    m_outline = host == m_widget ? rect : rect.adjusted(-margin, -margin, margin, margin);
    const QRect area =
        m_outline.adjusted(-roundingMargin, -roundingMargin, roundingMargin, roundingMargin)
        & visibleArea();
    if (area.isEmpty()) {
        hide();
        return;
    }
    setGeometry(area);
    raise();
    show();
    update();
}

/** What the widgets around leave to be seen; a ring may lie on the edge of one that is tight. */
QRect FocusRing::visibleArea() const
{
    const QWidget *host = m_watched.last();
    QRect area = host->rect();
    for (const QPointer<QWidget> &around : m_watched) {
        if (around && around != m_widget) {
            area &= QRect(around->mapTo(host, QPoint()), around->size())
                        .adjusted(-margin, -margin, margin, margin);
        }
    }
    return area;
}
