// SPDX-License-Identifier: MIT
#include "containers/gridmirror_p.h"

#include "containers/gridlayout_p.h"
#include "support/mirror_p.h"

#include <QScrollBar>
#include <QSet>
#include <QVector>

void GridMirror::set(OlvGridLayout *grid, bool isOn)
{
    TileList &tiles = OlvGridLayout::Private::of(grid)->tiles;
    if (tiles.isMirrored() == isOn) {
        return;
    }
    tiles.setMirrored(isOn);
    QVector<QPointer<QWidget>> moved;
    QSet<QWidget *> seen; // a widget may be in the list twice
    for (QWidget *tile : tiles.all()) {
        if (!seen.contains(tile)) {
            seen.insert(tile);
            moved.append(tile);
        }
    }
    if (QScrollBar *bar = OlvGridLayout::Private::scrollBarOf(grid)) {
        moved.append(bar);
    }
    const int width = grid->width();
    // moving sends events, whose receivers may delete the grid and the widgets
    for (const QPointer<QWidget> &widget : qAsConst(moved)) {
        if (widget) {
            widget->move(Mirror::reflected(widget->x(), widget->width(), width), widget->y());
        }
    }
}

bool GridMirror::isOn(const OlvGridLayout *grid)
{
    return OlvGridLayout::Private::of(grid)->tiles.isMirrored();
}
