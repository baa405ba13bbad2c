// SPDX-License-Identifier: MIT
#include <OlvWidgets/containers.h>

#include "support/pixels_p.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
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
constexpr int barWidth = 10;
constexpr int barDistance = 13;
constexpr int unitsPerNotch = 20;
constexpr int scrollStep = 25; // pixels of a unit

bool isInWindow(const QWidget *parent)
{
    return !parent || !parent->parent() || (int(parent->windowFlags()) & windowBits) != 0;
}

/** Moves @p widget unless it is there already, which costs less than an ineffective move(). */
bool moveTo(QWidget *widget, QPoint position)
{
    const bool isElsewhere =
        widget->isWindow() || widget->pos() != position || !widget->testAttribute(Qt::WA_Moved);
    if (isElsewhere) {
        widget->move(position);
    }
    return isElsewhere;
}

/** What QWheelEvent::delta() said: the turn about the axis that was turned further. */
int deltaOf(const QWheelEvent *event)
{
    const QPoint angle = event->angleDelta();
    // in 64 bits, since the smallest int has no positive counterpart
    return qAbs<qint64>(angle.x()) > qAbs<qint64>(angle.y()) ? angle.x() : angle.y();
}

/** How far the flow of the tiles has come, in pixels. */
struct Flow
{
    qint64 available = 0; // where a row has to end
    qint64 left = 0;      // the last tile, from here
    qint64 right = 0;     // to here
    qint64 top = 0;       // of its row
    qint64 rowHeight = 0;
    bool startsRow = false; // whether the last tile is the first of its row
};

/** The flow with one more tile of @p width: beside the last one, or in a new row. */
Flow next(Flow flow, int width, qint64 margin)
{
    flow.startsRow = flow.right + margin + width > flow.available;
    if (flow.startsRow) {
        flow.top += flow.rowHeight + margin;
        flow.rowHeight = 0;
        flow.right = 0;
    }
    flow.left = flow.right + margin;
    flow.right = flow.left + width;
    return flow;
}

/** The child, unless its destructor has run, or @p property no longer holds its address. */
template <typename Child> Child *named(const QPointer<QObject> &child, const QVariant &property)
{
    const bool isNamed =
        child && property.toULongLong() == reinterpret_cast<qulonglong>(child.data());
    return isNamed ? qobject_cast<Child *>(child.data()) : nullptr;
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

class OlvGridLayout::Private
{
public:
    /** Null once an application has deleted it. */
    QLabel *label() const
    {
        return qobject_cast<QLabel *>(emptyLabel.data());
    }

    int margin = 15;
    int spacing = 20;
    QList<QWidget *> tiles;
    uint departures = 0; // how many tiles have left the list so far
    QPointer<QObject> emptyLabel;
    QString emptyText; // as the grid has set it
    QPointer<QObject> scrollBar;
    QPointer<QObject> resizeTimer;
    int viewHeight = 0;
};

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
    for (QWidget *widget : qAsConst(widgets)) {
        if (widget) {
            watch(widget);
            d->tiles.append(widget);
        }
    }
    reUi();
}

bool OlvGridLayout::insWidget(QWidget *widget, QWidget *before)
{
    const int place = d->tiles.indexOf(before);
    if (!widget || place < 0) {
        return false;
    }
    watch(widget);
    d->tiles.insert(place, widget);
    reUi();
    return true;
}

bool OlvGridLayout::delWidget(QWidget *widget)
{
    if (!d->tiles.removeOne(widget)) {
        return false;
    }
    ++d->departures;
    const QPointer<OlvGridLayout> self(this);
    delete widget;
    if (self) {
        reUi();
    }
    return true;
}

void OlvGridLayout::setMargin(int margin)
{
    d->margin = margin;
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
    } else {
        if (QLabel *label = d->label()) {
            label->hide();
        }
        if (self) {
            arrange();
        }
        if (self && !isSubWindow()) {
            fitScrollBar();
        } else if (QWidget *parent = self ? parentWidget() : nullptr) {
            parent->resize(parent->width(), height() + 2 * windowBorder);
        }
    }
    if (QLabel *label = self ? d->label() : nullptr) {
        label->resize(size());
    }
}

void OlvGridLayout::resized()
{
    if (auto *timer = named<QTimer>(d->resizeTimer, property(resizeTimerProperty))) {
        timer->start();
    }
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
    if (isSubWindow() || !bar) {
        return;
    }
    const int units = deltaOf(event) < 0 ? unitsPerNotch : -unitsPerNotch;
    // an application may have set any range
    bar->setValue(int(qBound<qint64>(0, qint64(bar->value()) + units, bar->maximum())));
}

bool OlvGridLayout::isSubWindow() const
{
    return property(subWindowProperty).toBool();
}

QScrollBar *OlvGridLayout::scrollBar() const
{
    return named<QScrollBar>(d->scrollBar, property(scrollBarProperty));
}

void OlvGridLayout::makeScrollBar()
{
    // a sibling of the grid, since a child would scroll along
    auto *bar = new QScrollBar(Qt::Vertical, parentWidget());
    bar->setGeometry(width() - barDistance, 0, barWidth, d->viewHeight);
    setProperty(scrollBarProperty, reinterpret_cast<qulonglong>(bar));
    d->scrollBar = bar;
    bar->setStyleSheet(
        QStringLiteral("QScrollBar{width:10px;background:rgba(0,0,0,10%);border-radius:5px}"
                       "QScrollBar::handle{background:rgba(0,0,0,25%);border-radius:5px}"
                       "QScrollBar::handle:hover{background:rgba(0,0,0,50%)}"
                       "QScrollBar::add-line,QScrollBar::sub-line{border:none}"
                       "QScrollBar::sub-page,QScrollBar::add-page{background:rgba(0,0,0,0)}"));
    bar->hide();
    connect(bar, &QScrollBar::valueChanged, this, [self = static_cast<QObject *>(this)](int value) {
        if (auto *grid = whole(self)) {
            grid->move(0, toPixels(-qint64(value) * scrollStep));
        }
    });
}

void OlvGridLayout::watch(QWidget *widget)
{
    connect(widget, &QObject::destroyed, this, [self = static_cast<QObject *>(this), widget] {
        if (auto *grid = whole(self)) {
            grid->d->tiles.removeAll(widget);
            ++grid->d->departures;
        }
    });
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
        bar->setGeometry(width() - barDistance, 0, barWidth, d->viewHeight);
    }
}

void OlvGridLayout::arrange()
{
    const QPointer<OlvGridLayout> self(this);
    // Moving a tile may change the list; each addition to it causes its own reflow.
    const QList<QWidget *> tiles = d->tiles;
    const uint departures = d->departures;
    const auto isGone = [&](QWidget *tile) {
        return d->departures != departures && !d->tiles.contains(tile);
    };
    Flow flow;
    flow.available = qint64(width()) - d->margin;
    flow.top = d->margin;
    for (QWidget *tile : tiles) {
        if (isGone(tile)) {
            continue;
        }
        flow = next(flow, tile->width(), d->margin);
        const bool isMoved = moveTo(tile, QPoint(toPixels(flow.left), toPixels(flow.top)));
        if (isMoved && !self) {
            return;
        }
        const QSize size = isMoved && isGone(tile) ? QSize(0, 0) : tile->size();
        if (flow.startsRow) {
            flow.right = flow.left + size.width();
        }
        flow.rowHeight = qMax<qint64>(flow.rowHeight, size.height());
    }
    resize(width(), toPixels(flow.top + flow.rowHeight + d->margin));
}

void OlvGridLayout::fitScrollBar()
{
    const QPointer<QScrollBar> bar(scrollBar());
    if (!bar) {
        return;
    }
    if (d->viewHeight < height()) {
        bar->setMaximum((height() - d->viewHeight) / scrollStep);
        if (bar) { // a slot of its signals may have deleted it
            bar->show();
        }
    } else {
        bar->hide();
    }
}
