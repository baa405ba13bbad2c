// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/containers.h>

#include "containers/gridscrollbar_p.h"
#include "containers/tilelist_p.h"
#include "support/mirror_p.h"

#include <QLabel>
#include <QPointer>
#include <QString>

/** The widgets of a grid, and its parts. */
class OlvGridLayout::Private
{
public:
    static Private *of(const OlvGridLayout *grid)
    {
        return grid->d.get();
    }
    static QScrollBar *scrollBarOf(const OlvGridLayout *grid)
    {
        return grid->scrollBar();
    }

    /** Null once an application has deleted it. */
    QLabel *label() const
    {
        return qobject_cast<QLabel *>(emptyLabel.data());
    }

    /** Where the scroll bar stands in the viewport of a grid of @p width. */
    int placeOfBar(int width) const
    {
        const Mirror mirror{ tiles.isMirrored(), width };
        return mirror.placed(width - barDistance, GridScrollBar::width);
    }

    int spacing = 20; // kept for the application; the margin is the gap as well
    TileList tiles;
    QPointer<QObject> emptyLabel;
    QString emptyText; // as the grid has set it
    QPointer<QObject> scrollBar;
    QPointer<QObject> resizeTimer;
    int viewHeight = 0;

private:
    static constexpr int barDistance = 13;
};
