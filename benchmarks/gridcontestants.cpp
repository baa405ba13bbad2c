// SPDX-License-Identifier: MIT
#include "gridcontestants.h"

#include <QCoreApplication>
#include <QScrollBar>

namespace {

constexpr QSize viewSize(960, 640);

/** Places one tile after the other, and starts a new row below the last one. */
class Flow
{
public:
    Flow(int width, int gap)
        : m_end(width - gap)
        , m_gap(gap)
        , m_x(gap)
        , m_y(gap)
    { }

    QPoint next(QSize size)
    {
        if (m_x + size.width() > m_end && m_rowHeight > 0) {
            m_x = m_gap;
            m_y += m_rowHeight + m_gap;
            m_rowHeight = 0;
        }
        const QPoint place(m_x, m_y);
        m_x += size.width() + m_gap;
        m_rowHeight = qMax(m_rowHeight, size.height());
        return place;
    }

    int height() const
    {
        return m_y + m_rowHeight + m_gap;
    }

private:
    int m_end;
    int m_gap;
    int m_x;
    int m_y;
    int m_rowHeight = 0;
};

} // namespace

Tiles makeTiles(int count, QWidget *parent, QWidget *(*makeTile)(QWidget *))
{
    Tiles tiles;
    tiles.reserve(count);
    for (int i = 0; i < count; ++i) {
        QWidget *tile = makeTile(parent);
        tile->setFixedSize(60 + i * 7 % 50, 24 + i % 3 * 4);
        tile->show();
        tiles.append(tile);
    }
    return tiles;
}

QWidget *makeEmptyTile(QWidget *parent)
{
    return new QWidget(parent);
}

QVector<QPoint> flowPositions(const Tiles &tiles, int width, int gap)
{
    QVector<QPoint> positions;
    positions.reserve(tiles.size());
    Flow flow(width, gap);
    for (const QWidget *tile : tiles) {
        positions.append(flow.next(tile->size()));
    }
    return positions;
}

LibraryGrid::LibraryGrid()
    : viewport(&window)
{
    window.resize(viewSize);
    viewport.resize(viewSize);
    content = new OlvGridLayout(&viewport);
    content->resize(viewSize);
}

void LibraryGrid::add(const Tiles &tiles)
{
    content->addWidget(tiles);
}

void LibraryGrid::setGap(int gap)
{
    content->setMargin(gap);
}

void LibraryGrid::reflow()
{
    content->reUi();
}

ScrolledFlowLayout::ScrolledFlowLayout(FlowLayout::Sizes sizes)
    : area(&window)
    , content(new QWidget)
    , layout(new FlowLayout(content, sizes))
{
    area.setFrameShape(QFrame::NoFrame);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area.setWidgetResizable(true);
    area.setWidget(content);
    window.resize(viewSize);
    area.resize(viewSize + QSize(area.verticalScrollBar()->sizeHint().width(), 0));
}

void ScrolledFlowLayout::add(const Tiles &tiles)
{
    for (QWidget *tile : tiles) {
        layout->addWidget(tile);
    }
    // adding a visible widget does not invalidate the layout
    layout->invalidate();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void ScrolledFlowLayout::setGap(int gap)
{
    layout->setGap(gap);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void ScrolledFlowLayout::reflow()
{
    layout->invalidate();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

RememberingFlowLayout::RememberingFlowLayout()
    : ScrolledFlowLayout(FlowLayout::Sizes::Remembered)
{ }

BareTiles::BareTiles()
    : content(new QWidget(&window))
{
    window.resize(viewSize);
    content->resize(viewSize);
}

void MovedTiles::add(const Tiles &tiles)
{
    Flow flow(content->width(), defaultGap);
    for (QWidget *tile : tiles) {
        tile->move(flow.next(tile->size()));
    }
    content->resize(content->width(), flow.height());
}

void NaiveGrid::add(QWidget *tile)
{
    m_tiles.append(tile);
    Flow flow(content->width(), defaultGap);
    for (QWidget *placed : qAsConst(m_tiles)) {
        placed->move(flow.next(placed->size()));
    }
    content->resize(content->width(), flow.height());
}
