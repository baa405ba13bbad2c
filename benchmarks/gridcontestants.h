// SPDX-License-Identifier: MIT
#pragma once

#include "flowlayout.h"

#include <OlvWidgets/containers.h>

#include <QList>
#include <QScrollArea>
#include <QVector>
#include <QWidget>

using Tiles = QList<QWidget *>;

/** A tile that draws nothing, so that the container alone is measured. */
QWidget *makeEmptyTile(QWidget *parent);
/** @p count tiles of several sizes in @p parent, which are shown with it. */
Tiles makeTiles(int count, QWidget *parent, QWidget *(*makeTile)(QWidget *parent) = makeEmptyTile);
/** The gap that the library's grid has by default, which the others use as well. */
constexpr int defaultGap = 15;

/** The positions of @p tiles in a flow of @p width pixels. */
QVector<QPoint> flowPositions(const Tiles &tiles, int width, int gap);

/** The library's grid in a viewport of its window. */
struct LibraryGrid
{
    LibraryGrid();

    void add(const Tiles &tiles);
    void setGap(int gap);
    void reflow();

    QWidget window;
    QWidget viewport;
    OlvGridLayout *content;
};

/** The same in plain Qt: a scroll area whose widget has a flow layout. */
struct ScrolledFlowLayout
{
    explicit ScrolledFlowLayout(FlowLayout::Sizes sizes = FlowLayout::Sizes::WorkedOutEachTime);

    void add(const Tiles &tiles);
    void setGap(int gap);
    void reflow();

    QWidget window;
    QScrollArea area;
    QWidget *content;
    FlowLayout *layout;
};

struct RememberingFlowLayout : ScrolledFlowLayout
{
    RememberingFlowLayout();
};

/** Tiles in a window that the case moves by itself. */
struct BareTiles
{
    BareTiles();

    QWidget window;
    QWidget *content;
};

/** Only moves each tile to its place. */
struct MovedTiles : BareTiles
{
    void add(const Tiles &tiles);
};

/** The simplest grid: places all tiles again when one is added. */
struct NaiveGrid : BareTiles
{
    void add(QWidget *tile);

private:
    Tiles m_tiles;
};
