// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>

#include <QColor>
#include <QList>
#include <QWidget>

#include <memory>

class QScrollBar;

/**
 * @file containers.h
 * Containers.
 */

/**
 * A container that puts widgets into rows from the left to the right, each as large as it is, and
 * begins a new row when the next one does not fit.
 *
 * @image html OlvGridLayout.png
 *
 * It works in one of two modes, which its parent decides once, when the grid is made:
 *
 * - in a window (a parent that has no parent of its own, or is a window itself) the grid lies at
 *   (1, 1), follows the window's width less 2 pixels, and makes the window as high as its content
 *   takes. The dynamic property "isSubWindow" (bool) is true.
 * - in an ordinary child, its viewport, it grows as high as its content and scrolls with a bar of
 * its own, a sibling of the grid, and with the wheel. "isSubWindow" is false.
 *
 * An empty grid shows "空", or its translation. The widgets are made as children of the grid, sized
 * and shown by the application; the grid moves them. Only delWidget() and clear() delete one, and
 * only takeWidget() gives one back. A widget that the application deletes leaves the grid by
 * itself, and its place is taken at the next reflow.
 *
 * The grid is transparent, so that a scroll step repaints all visible tiles. Where it lies on a
 * plain background, setAutoFillBackground(true) lets Qt shift the pixels instead, which is several
 * times as quick.
 *
 * The grid is 100 pixels wide at first, and learns of its parent's size when that changes: where
 * the viewport has its size already, give the grid its width, as here.
 *
 * @code
 * auto *grid = new OlvGridLayout(viewport);
 * grid->resize(viewport->size());
 * QList<QWidget *> tiles;
 * for (const Item &item : items) {
 *     auto *tile = new OlvIconButton(item.icon, item.name, "FontAwesome", grid, 80, 80);
 *     tiles.append(tile);
 * }
 * grid->addWidget(tiles); // one reflow for all of them
 * @endcode
 *
 * The grid's changes of size follow those of its parent 300 milliseconds after the last one. Two
 * more dynamic properties, "ScrollBar" and "ResizeTimer" (qulonglong, addresses), are the library's
 * own.
 */
class OLVWIDGETS_EXPORT OlvGridLayout : public QWidget
{
    Q_OBJECT

public:
    /** What the library alone knows of a grid; not defined in any installed header. */
    class Private;

    /**
     * An empty grid in @p parent, which owns it, and the scroll bar as well. Without a parent it is
     * a window of its own that reflows and does nothing else.
     */
    explicit OlvGridLayout(QWidget *parent = nullptr);
    /** Leaves the widgets to their parents. */
    ~OlvGridLayout() override;

    /**
     * Appends @p widget and reflows; a null widget is ignored. Many widgets are added quicker by
     * the list: each call of this one reflows all.
     */
    void addWidget(QWidget *widget);
    /** Appends all of @p widgets in their order, and reflows once. */
    void addWidget(QList<QWidget *> widgets);
    /**
     * Inserts @p widget before @p before and reflows; false, and nothing done, if @p before is not
     * in the grid.
     */
    bool insWidget(QWidget *widget, QWidget *before);
    /**
     * Inserts all of @p widgets before @p before in their order, and reflows once; false, and
     * nothing done, if @p before is not in the grid. Null widgets are left out.
     */
    bool insWidget(QList<QWidget *> widgets, QWidget *before);
    /** Deletes @p widget, takes it out and reflows; false, and nothing done, for one not in it. */
    bool delWidget(QWidget *widget);
    /**
     * Deletes those of @p widgets that are in the grid, takes them out and reflows once; false, and
     * nothing done, if none is.
     */
    bool delWidget(QList<QWidget *> widgets);
    /**
     * Takes @p widget out without deleting it, reflows, and returns it: without a parent, and so
     * hidden and the caller's, if it was a child of the grid. Null, and nothing done, for one not
     * in it. As QScrollArea::takeWidget() does it.
     */
    QWidget *takeWidget(QWidget *widget);
    /** Deletes all widgets of the grid, reflows once, and scrolls back to the top. */
    void clear();

    /** How many widgets are in the grid, those that are hidden included. */
    int count() const;
    /** The widget at @p index, counted from 0 in the order of the grid; null beyond the ends. */
    QWidget *widgetAt(int index) const;
    /** The index of @p widget; -1 for one not in the grid. */
    int indexOf(QWidget *widget) const;

    /** Whether hidden widgets keep their places; true at first. */
    bool retainSizeWhenHidden() const;
    /**
     * Sets whether hidden widgets keep their places, as QSizePolicy::setRetainSizeWhenHidden() does
     * for layouts, and reflows if that is new. If they do not, the grid follows its children when
     * they are shown or hidden, however many of them, by one reflow in the event loop, or when the
     * grid itself is shown; what is left is scrolled back into view; and if all are hidden, the
     * grid shows its text for an empty one.
     */
    void setRetainSizeWhenHidden(bool retain);

    /** Sets the margin around and the gap between the widgets (15 pixels at first) and reflows. */
    void setMargin(int margin);
    /**
     * Stores a spacing (20 pixels at first) and reflows. The arrangement does not read it: the
     * margin is the gap between the widgets as well.
     */
    void setSpacing(int spacing);

    /** Puts every widget into its place, and adjusts the scroll bar or the window. */
    void reUi();
    /** Asks for a reflow to the parent's size in 300 milliseconds; each call restarts the time. */
    void resized();

    /**
     * Scrolls by as little as it takes to show @p widget, a child of the grid or of one of its
     * children, with the margin around it; its top where it is higher than the viewport. In a
     * window, and for other widgets, nothing happens.
     */
    void ensureVisible(QWidget *widget);

    /** Asks for a reflow when the parent is resized; consumes nothing. */
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /** Reflows when children were shown or hidden and hidden ones take no place. */
    bool event(QEvent *event) override;
    /** Follows another language with the text of an empty grid. */
    void changeEvent(QEvent *event) override;
    /** Scrolls by 20 units of 25 pixels a notch, not beyond the ends; nothing in a window. */
    void wheelEvent(QWheelEvent *event) override;

private:
    bool isSubWindow() const;
    QScrollBar *scrollBar() const;
    void makeScrollBar();
    void insert(int index, const QList<QWidget *> &widgets);
    void fitParent();
    void fitScrollBar();

    const std::unique_ptr<Private> d;
};

/**
 * A frameless, translucent, rounded panel that the user moves by dragging anywhere on it and
 * resizes by its right edge, its bottom edge and its bottom right corner.
 *
 * @image html OlvFlexWidget.png
 *
 * It can stay above or below other windows, become a tool window, and bear a coloured band on one
 * of its sides. It is at least 50 by 50 pixels large. Two seconds after it was last resized, all of
 * its new area moves it and its handles lie at its new edges (a drag of a handle places them at
 * once).
 *
 * | property         | type      | at first | meaning                               |
 * |------------------|-----------|----------|---------------------------------------|
 * | "stay"           | int       | 0        | an OlvStayType                        |
 * | "headerWay"      | int       | 0        | a HeaderWay, or 0 for no band         |
 * | "headerWayColor" | uint      | none     | the band's colour, 0xAARRGGBB         |
 * | "resizeTimer"    | qulonglong|          | an address, which is the library's own |
 *
 * Accessibility: a window, or a pane within one, called by its accessible name, else by its window
 * title; what lies in it are its children.
 *
 * @code
 * auto *note = new OlvFlexWidget(240, 180);
 * note->setHeaderWay(OlvFlexWidget::HeaderTop, QColor(64, 158, 255));
 * note->stay(OlvFlexWidget::StayTop); // shows it
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvFlexWidget : public QWidget
{
    Q_OBJECT

public:
    /** How the panel is stacked. */
    enum OlvStayType {
        StayNormal = 0,  ///< as any window
        StayTop = 1,     ///< above the others
        StayBottom = -1, ///< below the others
    };
    /** The side that the coloured band lies on. */
    enum HeaderWay {
        HeaderTop = 1,    ///< along the top
        HeaderLeft = 2,   ///< along the left side
        HeaderBottom = 3, ///< along the top as well, shifted right by the height less 10 pixels
        HeaderRight = 4,  ///< along the right side
    };

    /** A panel of @p width by @p height pixels in @p parent, which owns it. */
    OlvFlexWidget(int width, int height, QWidget *parent = nullptr);
    /** For forms made with Qt Designer, which size it afterwards: a panel of 240 by 180 pixels. */
    explicit OlvFlexWidget(QWidget *parent = nullptr);

    /**
     * Changes how the panel is stacked, and shows it, since a change of its window flags hides it.
     * Nothing happens when it is stacked so already. On Wayland, where programs do not stack their
     * windows, a window that is shown stays where it is.
     */
    void stay(OlvStayType type);
    /**
     * Makes the panel a tool window, or a plain one again, and shows it. On Wayland, which makes no
     * difference between the two, a panel without a parent that is shown stays where it is.
     */
    void toggleTool();
    /**
     * Sets the band, 10 pixels thick, drawn opaque whatever the alpha of @p color. A way that is
     * none is ignored, its colour too. Repaints nothing.
     */
    void setHeaderWay(HeaderWay way, QColor color);

Q_SIGNALS:
    /** For applications to emit; the panel does not. */
    void clicked();

protected:
    /** Draws the panel and its band; square instead of rounded while it is maximised. */
    void paintEvent(QPaintEvent *event) override;
    /** Restarts the two seconds. */
    void resizeEvent(QResizeEvent *event) override;
};
