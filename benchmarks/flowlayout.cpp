// SPDX-License-Identifier: MIT
#include "flowlayout.h"

FlowLayout::FlowLayout(QWidget *parent, Sizes sizes)
    : QLayout(parent)
    , m_sizes(sizes)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::setGap(int gap)
{
    m_gap = gap;
    invalidate();
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return int(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    if (m_sizes == Sizes::WorkedOutEachTime || width != m_knownWidth) {
        m_knownHeight = place(QRect(0, 0, width, 0), Placing::TestOnly);
        m_knownWidth = width;
    }
    return m_knownHeight;
}

QSize FlowLayout::minimumSize() const
{
    if (m_sizes == Sizes::WorkedOutEachTime || !m_minimumSize.isValid()) {
        QSize size(0, 0);
        for (const QLayoutItem *item : m_items) {
            size = size.expandedTo(item->minimumSize());
        }
        m_minimumSize = size + QSize(2 * m_gap, 2 * m_gap);
    }
    return m_minimumSize;
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

void FlowLayout::invalidate()
{
    m_knownWidth = -1;
    m_minimumSize = QSize();
    QLayout::invalidate();
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    place(rect, Placing::Apply);
}

int FlowLayout::place(const QRect &rect, Placing placing) const
{
    int x = rect.x() + m_gap;
    int y = rect.y() + m_gap;
    int rowHeight = 0;
    for (QLayoutItem *item : m_items) {
        const QSize size = item->sizeHint();
        if (x + size.width() > rect.right() + 1 - m_gap && rowHeight > 0) {
            x = rect.x() + m_gap;
            y += rowHeight + m_gap;
            rowHeight = 0;
        }
        if (placing == Placing::Apply) {
            item->setGeometry(QRect(QPoint(x, y), size));
        }
        x += size.width() + m_gap;
        rowHeight = qMax(rowHeight, size.height());
    }
    return y + rowHeight + m_gap - rect.y();
}
