// SPDX-License-Identifier: MIT
#include "containers/tilelist_p.h"

#include "support/mirror_p.h"
#include "support/pixels_p.h"

#include <algorithm>

namespace {

/** How far the flow of the widgets has come, in pixels. */
struct Flow
{
    qint64 available = 0; // where a row has to end
    qint64 left = 0;      // the last widget, from here
    qint64 right = 0;     // to here
    qint64 top = 0;       // of its row
    qint64 rowHeight = 0;
    bool startsRow = false; // whether the last widget is the first of its row
};

/** The flow with one more widget of @p width: beside the last one, or in a new row. */
Flow next(Flow flow, int width, qint64 margin)
{
    flow.startsRow = flow.right + margin + width > flow.available;
    if (flow.startsRow) {
        flow.top += flow.rowHeight + margin;
        flow.rowHeight = 0;
        flow.right = 0;
    }
    flow.left = flow.right + margin;
    flow.right = flow.left + width;
    return flow;
}

/** Moves @p widget unless it is there already, which costs less than an ineffective move(). */
bool moveTo(QWidget *widget, QPoint position)
{
    const bool isElsewhere =
        widget->isWindow() || widget->pos() != position || !widget->testAttribute(Qt::WA_Moved);
    if (isElsewhere) {
        widget->move(position);
    }
    return isElsewhere;
}

} // namespace

const QList<QWidget *> &TileList::all() const
{
    return m_widgets;
}

void TileList::insert(int index, const QList<QWidget *> &widgets)
{
    for (QWidget *widget : widgets) {
        if (widget) {
            m_widgets.insert(index++, widget);
        }
    }
}

QList<QPointer<QWidget>> TileList::remove(const QList<QWidget *> &widgets)
{
    QList<QPointer<QWidget>> removed;
    for (QWidget *widget : widgets) {
        if (m_widgets.removeOne(widget)) {
            removed.append(widget);
            ++m_departures;
        }
    }
    return removed;
}

bool TileList::removeAll(QWidget *widget)
{
    ++m_departures;
    return m_widgets.removeAll(widget) > 0;
}

bool TileList::retainsHidden() const
{
    return m_retainsHidden;
}

void TileList::setRetainsHidden(bool retains)
{
    m_retainsHidden = retains;
}

bool TileList::isEmpty() const
{
    return std::none_of(m_widgets.cbegin(), m_widgets.cend(),
                        [this](const QWidget *widget) { return takesPlace(widget); });
}

int TileList::margin() const
{
    return m_margin;
}

void TileList::setMargin(int margin)
{
    m_margin = margin;
}

bool TileList::isMirrored() const
{
    return m_isMirrored;
}

void TileList::setMirrored(bool isMirrored)
{
    m_isMirrored = isMirrored;
}

int TileList::arrange(const QPointer<QWidget> &grid) const
{
    // Moving a widget may change the list; each addition to it causes its own reflow.
    const QList<QWidget *> widgets = m_widgets;
    const uint departures = m_departures;
    const auto isGone = [&](QWidget *widget) {
        return m_departures != departures && !m_widgets.contains(widget);
    };
    Flow flow;
    flow.available = qint64(grid->width()) - m_margin;
    flow.top = m_margin;
    for (QWidget *widget : widgets) {
        if (isGone(widget) || !takesPlace(widget)) {
            continue;
        }
        flow = next(flow, widget->width(), m_margin);
        const int x = m_isMirrored ? Mirror::reflected(flow.left, widget->width(), grid->width())
                                   : toPixels(flow.left);
        const bool isMoved = moveTo(widget, QPoint(x, toPixels(flow.top)));
        if (isMoved && !grid) {
            return 0;
        }
        const QSize size = isMoved && isGone(widget) ? QSize(0, 0) : widget->size();
        if (flow.startsRow) {
            flow.right = flow.left + size.width();
        }
        flow.rowHeight = qMax<qint64>(flow.rowHeight, size.height());
    }
    return toPixels(flow.top + flow.rowHeight + m_margin);
}

bool TileList::takesPlace(const QWidget *widget) const
{
    return m_retainsHidden || !widget->isHidden();
}
