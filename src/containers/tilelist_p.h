// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

/** The widgets of a flow grid in their order, and their places. */
class TileList
{
public:
    const QList<QWidget *> &all() const;

    /** Inserts those of @p widgets that are not null. */
    void insert(int index, const QList<QWidget *> &widgets);
    /** Takes out the first occurrence of each of @p widgets; returns what was in the list. */
    QList<QPointer<QWidget>> remove(const QList<QWidget *> &widgets);
    /** Takes out all occurrences of @p widget; returns whether there was one. */
    bool removeAll(QWidget *widget);

    /** Whether hidden widgets take a place as if they were shown; true at first. */
    bool retainsHidden() const;
    void setRetainsHidden(bool retains);
    /** Whether no widget takes a place. */
    bool isEmpty() const;

    /** The margin around and the gap between the widgets, in pixels. */
    int margin() const;
    void setMargin(int margin);

    /** Whether the rows begin at the right; false at first. */
    bool isMirrored() const;
    void setMirrored(bool isMirrored);

    /**
     * Moves the widgets into rows of the width of @p grid, and returns the height of its content.
     * Moving sends events, whose receivers may change the list and the margin, and may delete the
     * grid and this list with it.
     */
    int arrange(const QPointer<QWidget> &grid) const;

private:
    bool takesPlace(const QWidget *widget) const;

    QList<QWidget *> m_widgets;
    uint m_departures = 0; // how many widgets have left the list so far
    bool m_retainsHidden = true;
    bool m_isMirrored = false;
    int m_margin = 15;
};
