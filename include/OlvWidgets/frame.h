// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/olvwidgets_export.h>

#include <QChar>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <type_traits>

class QPushButton;

/**
 * @file frame.h
 * Moving, resizing and controlling windows without a frame.
 */

/**
 * Makes a widget movable by pressing the mouse in an area of it and dragging.
 *
 * @image html OlvMoveWidget.png
 *
 * It is a child of the widget that it moves, typically a frameless window or a floating panel:
 *
 * @code
 * auto *mover = new OlvMoveWidget(window);
 * mover->setMoveArea(QRect(0, 0, window->width(), 32)); // its title
 * @endcode
 *
 * On Wayland, where a program cannot place its windows, the first mouse move hands the drag of a
 * window over to the compositor (with Qt 5.15 or later, before that windows stay where they are).
 * The window is told that the button is released then, and gets no more mouse moves of the drag;
 * its pos() means nothing there. Widgets in a window are moved as everywhere.
 *
 * Any mouse button starts a move; a maximised widget does not start one. From the first
 * setMoveArea() on, the widget's own mousePressEvent(), mouseMoveEvent() and mouseReleaseEvent() no
 * longer run, in the area or out of it. Its state lies in dynamic properties of the helper:
 * "MoveArea" (QRect), "CanMove" (bool, true during a move) and "PressPos" (QPoint, where in the
 * widget it began).
 */
class OLVWIDGETS_EXPORT OlvMoveWidget : public QObject
{
public:
    /** A helper for @p target, which owns it; it does nothing until setMoveArea() is called. */
    explicit OlvMoveWidget(QWidget *target = nullptr);

    /**
     * Sets the area in which a press starts a move, in the widget's coordinates, edges included. An
     * area of no width stands for the widget as large as it is now; it does not grow with the
     * widget. Without a widget to move nothing happens.
     */
    void setMoveArea(QRect area);
};

/**
 * A handle of an OlvResizeWidget: a strip along the right or the bottom edge of the widget that is
 * resized, or a square in its bottom right corner.
 *
 * @image html OlvResizeItem.png
 *
 * @code
 * // once the window is shown
 * QWidget *corner = window->childAt(window->rect().bottomRight());
 * corner->setToolTip(tr("Drag to resize"));
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvResizeItem : public QWidget
{
public:
    /** Where a handle lies. */
    enum ResizeType {
        RightEdge = 0,  ///< a strip along the right edge; resizes the width
        BottomEdge = 1, ///< a strip along the bottom edge; resizes the height
        Corner = 2,     ///< a square in the bottom right corner, twice as thick; resizes both
    };

    /**
     * A handle @p width pixels thick in @p target, which owns it. Its events go through @p filter;
     * @p first and @p second are the other two handles, as far as they exist yet. It is raised
     * above the target's other children from the event loop, and shown together with the target.
     */
    OlvResizeItem(QWidget *target, QObject *filter, ResizeType type, int width,
                  OlvResizeItem *first, OlvResizeItem *second);
    /** Leaves the other handles, which the target owns. */
    ~OlvResizeItem() override;

    /** Where the handle lies. */
    ResizeType type() const;
    /** Where it was pressed last, in its own coordinates; (0, 0) at first. */
    QPoint pressPosition() const;
    /** One of the other handles; null when it does not exist. */
    OlvResizeItem *firstPartner() const;
    /** The other one of them; null when it does not exist. */
    OlvResizeItem *secondPartner() const;
    /** Sets the other handles, which their target owns. */
    void setPartners(OlvResizeItem *first, OlvResizeItem *second);
    /** Moves the handle to its place in the target as large as that is now. */
    void place();
    /** Places the handle, then its first, then its second partner. */
    void placeAll();

protected:
    /** Any mouse button: notes the position, and takes the press. */
    void mousePressEvent(QMouseEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/**
 * Lets the user resize a widget by its right edge, its bottom edge and its bottom right corner.
 *
 * @image html OlvResizeWidget.png
 *
 * It is a child of the widget that it resizes, typically a frameless window or a floating panel,
 * and puts three handles into it; the widget's minimum and maximum sizes hold. A maximised widget
 * is not resized. After a resize by other means call reset():
 *
 * @code
 * Window::Window()
 *     : m_resizer(new OlvResizeWidget(this, 5))
 * {
 * }
 * void Window::resizeEvent(QResizeEvent *)
 * {
 *     m_resizer->reset();
 * }
 * @endcode
 *
 * Its dynamic property "LeftBottom" (qulonglong), the address of the handle in the corner, is the
 * library's own.
 */
class OLVWIDGETS_EXPORT OlvResizeWidget : public QObject
{
public:
    /** A helper for @p target, which owns it, with handles @p width pixels thick. */
    OlvResizeWidget(QWidget *target, int width);

    /** Moves the handles to their places in the widget as large as it is now. */
    void reset();

    /**
     * Resizes the widget as a handle is dragged. It consumes a move only if the handle has been
     * deleted by it, since Qt would deliver the event to the deleted object.
     */
    bool eventFilter(QObject *watched, QEvent *event) override;
};

/**
 * The row of small buttons at the top right of a window without a frame: any number of the
 * application's own, then float, keep at the bottom, keep on top, minimise, maximise or restore,
 * and close.
 *
 * @image html OlvControlBar.png
 *
 * It acts on no window itself: it tells what was pressed, and its owner acts. It is 25 pixels high,
 * and so is each button wide; the buttons stand at its right end. Their glyphs are characters of
 * the icon font "FontAwesome", 8 points large. The tool tips of the window buttons are "悬浮",
 * "置底", "置顶", "最小化", "最大化" ("还原" while it is checked) and "关闭", or what a QTranslator
 * makes of them, and follow another language. An application that wants others gives them to
 * button(), that of the maximise button again at each changed(). The buttons are the bar's
 * QPushButton children from the left to the right.
 *
 * @code
 * // six glyphs of the window buttons, the one of "restore", one for each tip
 * const QList<QChar> icons{ u'\uf2d2', u'\uf103', u'\uf102', u'\uf068',
 *                           u'\uf065', u'\uf00d', u'\uf066', u'\uf013' };
 * auto *bar = new OlvControlBar(icons, window, { tr("Settings") });
 * connect(bar, &OlvControlBar::changed, window, [=](OlvControlBar::WindowState state, bool on) {
 *     if (state == OlvControlBar::Max) {
 *         on ? window->showMaximized() : window->showNormal();
 *     }
 * });
 * connect(bar, &OlvControlBar::custom, window, [=](int) { window->openSettings(); });
 * @endcode
 *
 * On Wayland no program can let a window float, or keep it on top or at the bottom: changing the
 * window flags for them has no effect but that the window is shown again in another place, so hide
 * these three buttons there. Maximising, restoring, minimising and closing work. A program is not
 * told that its window is minimised, isMinimized() stays false, and only the user brings it back.
 *
 * Keeping on top and keeping at the bottom exclude each other: checking one unchecks the other
 * silently, after changed() has told of the first. The glyph and the tool tip of the maximise
 * button follow after its changed(), too. Apart from that only the user's clicks change a button; a
 * window that is maximised by other means leaves the bar as it is.
 *
 * The bar has no properties of its own; its buttons have:
 *
 * | property | type  | of                  | meaning                                            |
 * |----------|-------|---------------------|----------------------------------------------------|
 * | "index"  | int   | every button        | its WindowState, or its place among the tips       |
 * | "max"    | QChar | the maximise button | its glyph while it is unchecked                    |
 * | "normal" | QChar | the maximise button | its glyph while it is checked: that of "restore"   |
 *
 * What is written there takes effect at the next click; a window button with an index that is no
 * WindowState emits nothing.
 *
 * Accessibility: a tool bar of buttons, the checkable ones of which are check boxes. Each is called
 * by the accessible name that the application gives it, else by its tool tip. The actions "Press"
 * and, for the checkable ones, "Toggle" both click it.
 */
class OLVWIDGETS_EXPORT OlvControlBar : public QWidget
{
    Q_OBJECT

public:
    /** The window buttons, in their order from the left. */
    enum WindowState {
        Float = 0,  ///< float, as a window without an entry in the task bar; checkable
        Bottom = 1, ///< keep at the bottom; checkable
        Top = 2,    ///< keep on top; checkable
        Min = 3,    ///< minimise
        Max = 4,    ///< maximise, and restore while it is checked
        Close = 5,  ///< close
    };

    /**
     * A bar in @p parent, which owns it, with a button of the application for each tool tip in
     * @p tips. @p icons are the glyphs: those of the six window buttons, the one of the maximise
     * button while it is checked, and one for each of the application's. A button that the list is
     * too short for has no glyph.
     */
    explicit OlvControlBar(const QList<QChar> &icons, QWidget *parent = nullptr,
                           const QStringList &tips = QStringList());
    /**
     * For forms made with Qt Designer, which know a parent alone: a bar with glyphs of FontAwesome
     * for the window buttons. (A template, so that {} goes on to mean an empty list of glyphs.)
     */
    template <typename Parent, typename = std::enable_if_t<std::is_base_of_v<QWidget, Parent>>>
    explicit OlvControlBar(Parent *parent)
        : OlvControlBar(formIcons(), parent)
    { }
    /** Destroys the buttons as well. */
    ~OlvControlBar() override;

    /**
     * The window button @p state, to hide it for example, or to name it; null for an invalid value,
     * and once the application has deleted it.
     */
    QPushButton *button(WindowState state) const;
    /**
     * The application's button at @p index, counted from 0 in the order of the tips; null where
     * there is none.
     */
    QPushButton *customButton(int index) const;

Q_SIGNALS:
    /** A window button was clicked; @p checked is its new state, true for those without one. */
    void changed(OlvControlBar::WindowState state, bool checked);
    /** The application's button at @p index, counted from 0 in the order of the tips, was clicked.
     */
    void custom(int index);

private:
    static QList<QChar> formIcons();
    QPushButton *addButton(const QList<QChar> &icons, int icon, int index, const QString &tip);
    void addCustomButton(const QList<QChar> &icons, int index, const QString &tip);
    void addWindowButton(const QList<QChar> &icons, int index);
    void tellToggled(QPushButton *button);
    void tellMaximised(QPushButton *button);

    class Private;
    const std::unique_ptr<Private> d;
};

/**
 * A placeholder for a widget that is dragged from one container to another. In this version it is a
 * plain widget.
 *
 * @image html OlvDragWidget.png
 *
 * @code
 * auto *placeholder = new OlvDragWidget(shelf, shelf, desk, tile->pos());
 * placeholder->setGeometry(tile->geometry());
 * @endcode
 */
class OLVWIDGETS_EXPORT OlvDragWidget : public QWidget
{
    Q_OBJECT

public:
    /**
     * A plain widget in @p parent, which owns it. Where the drag comes from, where it goes to and
     * where it begins can be passed already, and are ignored.
     */
    OlvDragWidget(QWidget *parent, QWidget *source, QWidget *target, const QPoint &position);
    /** For forms made with Qt Designer: a plain widget in @p parent, which owns it. */
    explicit OlvDragWidget(QWidget *parent = nullptr);
};
