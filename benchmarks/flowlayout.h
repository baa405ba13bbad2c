// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QList>

/**
 * The layout that one writes with plain Qt to put widgets into rows: each item as large as its size
 * hint, a new row where the next one does not fit.
 */
class FlowLayout : public QLayout
{
public:
    /** As in the example of Qt's documentation, or cached as in Qt's own layouts. */
    enum class Sizes { WorkedOutEachTime, Remembered };
    FlowLayout(QWidget *parent, Sizes sizes);
    ~FlowLayout() override;

    /** The margin around and the gap between the items. */
    void setGap(int gap);

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void invalidate() override;
    void setGeometry(const QRect &rect) override;

private:
    enum class Placing { TestOnly, Apply };
    int place(const QRect &rect, Placing placing) const;

    const Sizes m_sizes;
    QList<QLayoutItem *> m_items;
    int m_gap = 15; // pixels
    mutable int m_knownWidth = -1;
    mutable int m_knownHeight = 0;
    mutable QSize m_minimumSize;
};
