// SPDX-License-Identifier: MIT
#include "containers/gridlayout_p.h"

#include "containers/gridscrollbar_p.h"
#include "support/childaddress_p.h"
#include "support/pixels_p.h"

#include <QCoreApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

namespace {

constexpr char subWindowProperty[] = "isSubWindow";
constexpr char scrollBarProperty[] = "ScrollBar";
constexpr char resizeTimerProperty[] = "ResizeTimer";

/** The flags of a parent that is a window: Qt::Window, Qt::Dialog, Qt::Tool and the like. */
constexpr int windowBits = 0x0d;
constexpr int windowBorder = 1;
constexpr int emptyHeight = 50;
constexpr int emptyPointSize = 16;
constexpr int settlingTime = 300; // milliseconds

bool isInWindow(const QWidget *parent)
{
    return !parent || !parent->parent() || (int(parent->windowFlags()) & windowBits) != 0;
}

QString emptyText()
{
    return QCoreApplication::translate("OlvGridLayout", "空");
}

/** The grid; null once its destructor has run, also while its children are destroyed. */
OlvGridLayout *whole(QObject *grid)
{
    return qobject_cast<OlvGridLayout *>(grid);
}

} // namespace

OlvGridLayout::OlvGridLayout(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    if (parent) {
        d->viewHeight = parent->height();
    }
    d->emptyText = emptyText();
    auto *label = new QLabel(d->emptyText, this);
    label->setFont(QFont(QStringLiteral("楷体"), emptyPointSize));
    label->resize(size());
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(QStringLiteral("color: rgb(33, 33, 33);"));
    d->emptyLabel = label;
    if (parent) {
        parent->installEventFilter(this);
    }
    setProperty(subWindowProperty, isInWindow(parent));
    if (isSubWindow()) {
        move(windowBorder, windowBorder);
    } else {
        makeScrollBar();
    }

    auto *timer = new QTimer(this);
    timer->setInterval(settlingTime);
    connect(timer, &QTimer::timeout, this, [timer, self = QPointer<QObject>(this)] {
        timer->stop();
        // checked again: what follows the parent's size may delete the grid
        if (auto *grid = whole(self)) {
            grid->fitParent();
        }
        if (auto *grid = whole(self)) {
            grid->reUi();
        }
    });
    setProperty(resizeTimerProperty, reinterpret_cast<qulonglong>(timer));
    d->resizeTimer = timer;
}

OlvGridLayout::~OlvGridLayout() = default;

void OlvGridLayout::addWidget(QWidget *widget)
{
    addWidget(QList<QWidget *>{ widget });
}

void OlvGridLayout::addWidget(QList<QWidget *> widgets)
{
    insert(count(), widgets);
}

bool OlvGridLayout::insWidget(QWidget *widget, QWidget *before)
{
    return widget && insWidget(QList<QWidget *>{ widget }, before);
}

bool OlvGridLayout::insWidget(QList<QWidget *> widgets, QWidget *before)
{
    const int index = indexOf(before);
    if (index >= 0) {
        insert(index, widgets);
    }
    return index >= 0;
}

bool OlvGridLayout::delWidget(QWidget *widget)
{
    return delWidget(QList<QWidget *>{ widget });
}

bool OlvGridLayout::delWidget(QList<QWidget *> widgets)
{
    const QList<QPointer<QWidget>> removed = d->tiles.remove(widgets);
    const QPointer<OlvGridLayout> self(this);
    for (const QPointer<QWidget> &widget : removed) {
        delete widget; // null where the destruction of another one has deleted it
    }
    if (self && !removed.isEmpty()) {
        reUi();
    }
    return !removed.isEmpty();
}

QWidget *OlvGridLayout::takeWidget(QWidget *widget)
{
    if (!d->tiles.removeAll(widget)) {
        return nullptr;
    }
    const QPointer<OlvGridLayout> self(this);
    const QPointer<QWidget> taken(widget);
    if (widget->parentWidget() == this) {
        widget->setParent(nullptr);
    }
    if (self) {
        reUi();
    }
    return taken;
}

void OlvGridLayout::clear()
{
    const QPointer<OlvGridLayout> self(this);
    delWidget(d->tiles.all());
    if (QScrollBar *bar = self && count() == 0 ? scrollBar() : nullptr) {
        GridScrollBar::reset(bar);
    }
}

int OlvGridLayout::count() const
{
    return int(d->tiles.all().size());
}

QWidget *OlvGridLayout::widgetAt(int index) const
{
    return d->tiles.all().value(index);
}

int OlvGridLayout::indexOf(QWidget *widget) const
{
    return int(d->tiles.all().indexOf(widget));
}

bool OlvGridLayout::retainSizeWhenHidden() const
{
    return d->tiles.retainsHidden();
}

void OlvGridLayout::setRetainSizeWhenHidden(bool retain)
{
    if (d->tiles.retainsHidden() != retain) {
        d->tiles.setRetainsHidden(retain);
        reUi();
    }
}

void OlvGridLayout::ensureVisible(QWidget *widget)
{
    if (!widget || widget == this || !isAncestorOf(widget)) {
        return;
    }
    // a reflow that is due may move the widget, and its receivers may delete it
    const QPointer<QWidget> shown(widget);
    const QPointer<OlvGridLayout> self(this);
    if (!d->tiles.retainsHidden()) {
        reUi();
    }
    const bool isThere = self && shown && isAncestorOf(shown)
        && (d->tiles.retainsHidden() || shown->isVisibleTo(this));
    QScrollBar *bar = isThere ? scrollBar() : nullptr;
    if (!bar || d->viewHeight >= height()) {
        return;
    }
    const qint64 top = widget->mapTo(this, QPoint()).y();
    const int margin = d->tiles.margin();
    const int value = GridScrollBar::valueShowing(top - margin, top + widget->height() + margin,
                                                  d->viewHeight, bar->value());
    // the maximum is rounded down, which leaves the last pixels of the content out of reach
    bar->setMaximum(qMax(bar->maximum(), value));
    if (QScrollBar *unchanged = self ? scrollBar() : nullptr) {
        unchanged->setValue(value);
    }
}

void OlvGridLayout::setMargin(int margin)
{
    d->tiles.setMargin(margin);
    reUi();
}

void OlvGridLayout::setSpacing(int spacing)
{
    d->spacing = spacing;
    reUi();
}

void OlvGridLayout::reUi()
{
    // resizing, moving and the label send events, whose receivers may delete the grid
    const QPointer<OlvGridLayout> self(this);
    if (d->tiles.isEmpty()) {
        const QWidget *parent = parentWidget();
        resize(width(), isSubWindow() || !parent ? emptyHeight : parent->height());
        if (QLabel *label = self ? d->label() : nullptr) {
            label->show();
        }
        if (self && !d->tiles.retainsHidden() && !isSubWindow()) {
            fitScrollBar();
        }
    } else {
        if (QLabel *label = d->label()) {
            label->hide();
        }
        const int contentHeight = self ? d->tiles.arrange(self.data()) : 0;
        if (self) {
            resize(width(), contentHeight);
        }
        if (self && !isSubWindow()) {
            fitScrollBar();
        } else if (QWidget *parent = self ? parentWidget() : nullptr) {
            // Qt bounds the size of a window, but not that of another grid which has become the
            // parent
            parent->resize(parent->width(), qMin(height() + 2 * windowBorder, QWIDGETSIZE_MAX));
        }
    }
    if (QLabel *label = self ? d->label() : nullptr) {
        label->resize(size());
    }
}

void OlvGridLayout::resized()
{
    QObject *object = ifAtAddress(d->resizeTimer, property(resizeTimerProperty));
    if (auto *timer = qobject_cast<QTimer *>(object)) { // none once its destructor has run
        timer->start();
    }
}

bool OlvGridLayout::event(QEvent *event)
{
    // Qt asks a visible parent for a new layout when a child is shown or hidden
    const bool mayHideTiles = !d->tiles.retainsHidden()
        && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show);
    // places that are counted from the right edge move along with it
    const bool movesEdge = d->tiles.isMirrored() && event->type() == QEvent::Resize
        && width() != static_cast<QResizeEvent *>(event)->oldSize().width();
    if (!mayHideTiles && !movesEdge) {
        return QWidget::event(event);
    }
    const QPointer<OlvGridLayout> self(this);
    const bool recognized = QWidget::event(event);
    if (self) {
        reUi();
    }
    return recognized;
}

bool OlvGridLayout::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        resized();
    }
    return QObject::eventFilter(watched, event);
}

void OlvGridLayout::changeEvent(QEvent *event)
{
    // an assistive program's listener that hears of it may delete the grid
    const QPointer<OlvGridLayout> self(this);
    QWidget::changeEvent(event);
    QLabel *label = self ? d->label() : nullptr;
    if (event->type() == QEvent::LanguageChange && label && label->text() == d->emptyText) {
        d->emptyText = emptyText();
        label->setText(d->emptyText);
    }
}

void OlvGridLayout::wheelEvent(QWheelEvent *event)
{
    QScrollBar *bar = scrollBar();
    if (bar && !isSubWindow()) {
        bar->setValue(GridScrollBar::valueAfter(event, bar));
    }
}

bool OlvGridLayout::isSubWindow() const
{
    return property(subWindowProperty).toBool();
}

QScrollBar *OlvGridLayout::scrollBar() const
{
    QObject *object = ifAtAddress(d->scrollBar, property(scrollBarProperty));
    return qobject_cast<QScrollBar *>(object); // null once its destructor has run
}

void OlvGridLayout::makeScrollBar()
{
    // a sibling of the grid, since a child would scroll along
    auto *bar = new QScrollBar(Qt::Vertical, parentWidget());
    bar->setGeometry(d->placeOfBar(width()), 0, GridScrollBar::width, d->viewHeight);
    setProperty(scrollBarProperty, reinterpret_cast<qulonglong>(bar));
    d->scrollBar = bar;
    GridScrollBar::setUp(bar);
    connect(bar, &QScrollBar::valueChanged, this, [self = static_cast<QObject *>(this)](int value) {
        if (auto *grid = whole(self)) {
            grid->move(0, toPixels(-qint64(value) * GridScrollBar::pixelsPerUnit));
        }
    });
}

void OlvGridLayout::insert(int index, const QList<QWidget *> &widgets)
{
    for (QWidget *widget : widgets) {
        if (widget) {
            connect(widget, &QObject::destroyed, this,
                    [self = static_cast<QObject *>(this), widget] {
                        if (auto *grid = whole(self)) {
                            grid->d->tiles.removeAll(widget);
                        }
                    });
        }
    }
    d->tiles.insert(index, widgets);
    reUi();
}

void OlvGridLayout::fitParent()
{
    const QWidget *parent = parentWidget();
    if (!parent) {
        return;
    }
    d->viewHeight = parent->height();
    if (isSubWindow()) {
        resize(parent->width() - 2 * windowBorder, height());
        return;
    }
    const QPointer<OlvGridLayout> self(this);
    resize(parent->width(), height());
    if (QScrollBar *bar = self ? scrollBar() : nullptr) {
        bar->setGeometry(d->placeOfBar(width()), 0, GridScrollBar::width, d->viewHeight);
    }
}

void OlvGridLayout::fitScrollBar()
{
    const QPointer<QScrollBar> bar(scrollBar());
    if (!bar) {
        return;
    }
    const bool retains = d->tiles.retainsHidden();
    if (d->viewHeight < height() && (retains || !d->tiles.isEmpty())) {
        bar->setMaximum(GridScrollBar::maximum(height() - d->viewHeight, !retains));
        if (bar) { // a slot of its signals may have deleted it
            bar->show();
        }
        return;
    }
    if (retains) {
        bar->hide();
    } else {
        GridScrollBar::reset(bar);
    }
}
