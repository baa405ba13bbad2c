// SPDX-License-Identifier: MIT
#include <OlvWidgets/containers.h>

#include "support/childaddress_p.h"

#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

namespace {

constexpr char subWindowProperty[] = "isSubWindow";
constexpr char scrollBarProperty[] = "ScrollBar";
constexpr char resizeTimerProperty[] = "ResizeTimer";

/** The flags of a parent that is a window: Qt::Window, Qt::Dialog, Qt::Tool and their kin. */
constexpr int windowBits = 0x0d;
constexpr int windowBorder = 1;
constexpr int emptyHeight = 50;
constexpr int emptyPointSize = 16;
constexpr int settlingTime = 300; // milliseconds
constexpr int barWidth = 10;
constexpr int barDistance = 13;
constexpr int unitsPerNotch = 20;

bool isInWindow(const QWidget *parent)
{
    return !parent || !parent->parent() || (int(parent->windowFlags()) & windowBits) != 0;
}

/** A coordinate or a length that a widget can have. */
int toPixels(qint64 value)
{
    return int(qBound<qint64>(-QWIDGETSIZE_MAX, value, QWIDGETSIZE_MAX));
}

/** Moves @p widget unless it is there already, which Qt would find out at a higher price. */
void moveTo(QWidget *widget, QPoint position)
{
    if (widget->isWindow() || widget->pos() != position || !widget->testAttribute(Qt::WA_Moved)) {
        widget->move(position);
    }
}

/** What QWheelEvent::delta() said: the turn about the axis that was turned further. */
int deltaOf(const QWheelEvent *event)
{
    const QPoint angle = event->angleDelta();
    // in more bits, for the least int has no positive counterpart
    return qAbs<qint64>(angle.x()) > qAbs<qint64>(angle.y()) ? angle.x() : angle.y();
}

} // namespace

OlvGridLayout::OlvGridLayout(QWidget *parent)
    : QWidget(parent)
{
    if (parent) {
        m_viewHeight = parent->height();
    }
    m_emptyLabel = new QLabel(QStringLiteral("空"), this);
    m_emptyLabel->setFont(QFont(QStringLiteral("楷体"), emptyPointSize));
    m_emptyLabel->resize(size());
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setStyleSheet(QStringLiteral("color: rgb(33, 33, 33);"));
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
    // a resize of the bar may bring about the end of the grid
    connect(timer, &QTimer::timeout, this, [this, timer, self = QPointer<OlvGridLayout>(this)] {
        timer->stop();
        fitParent();
        if (self) {
            reUi();
        }
    });
    setProperty(resizeTimerProperty, reinterpret_cast<qulonglong>(timer));
}

OlvGridLayout::~OlvGridLayout()
{
    // The children are destroyed after the list is: they must not be looked for in it then.
    for (QWidget *widget : qAsConst(m_widgets)) {
        widget->disconnect(this);
    }
}

void OlvGridLayout::addWidget(QWidget *widget)
{
    addWidget(QList<QWidget *>{ widget });
}

void OlvGridLayout::addWidget(QList<QWidget *> widgets)
{
    for (QWidget *widget : qAsConst(widgets)) {
        if (widget) {
            watch(widget);
            m_widgets.append(widget);
        }
    }
    reUi();
}

bool OlvGridLayout::insWidget(QWidget *widget, QWidget *before)
{
    const int place = m_widgets.indexOf(before);
    if (!widget || place < 0) {
        return false;
    }
    watch(widget);
    m_widgets.insert(place, widget);
    reUi();
    return true;
}

bool OlvGridLayout::delWidget(QWidget *widget)
{
    if (!m_widgets.removeOne(widget)) {
        return false;
    }
    const QPointer<OlvGridLayout> self(this);
    delete widget;
    if (self) {
        reUi();
    }
    return true;
}

void OlvGridLayout::setMargin(int margin)
{
    m_margin = margin;
    reUi();
}

void OlvGridLayout::setSpacing(int spacing)
{
    m_spacing = spacing;
    reUi();
}

void OlvGridLayout::reUi()
{
    const QPointer<OlvGridLayout> self(this);
    QWidget *parent = parentWidget();
    if (m_widgets.isEmpty()) {
        resize(width(), isSubWindow() || !parent ? emptyHeight : parent->height());
        if (m_emptyLabel) {
            m_emptyLabel->show();
        }
    } else {
        if (m_emptyLabel) {
            m_emptyLabel->hide();
        }
        arrange();
        if (!self) {
            return;
        }
        parent = parentWidget();
        if (!isSubWindow()) {
            fitScrollBar();
        } else if (parent) {
            parent->resize(parent->width(), height() + 2 * windowBorder);
        }
    }
    if (self && m_emptyLabel) {
        m_emptyLabel->resize(size());
    }
}

void OlvGridLayout::resized()
{
    if (auto *timer = childAtAddress<QTimer>(this, property(resizeTimerProperty))) {
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

void OlvGridLayout::wheelEvent(QWheelEvent *event)
{
    QScrollBar *bar = scrollBar();
    if (isSubWindow() || !bar) {
        return;
    }
    const int units = deltaOf(event) < 0 ? unitsPerNotch : -unitsPerNotch;
    bar->setValue(qBound(0, bar->value() + units, bar->maximum()));
}

bool OlvGridLayout::isSubWindow() const
{
    return property(subWindowProperty).toBool();
}

QScrollBar *OlvGridLayout::scrollBar() const
{
    return parent() ? childAtAddress<QScrollBar>(parent(), property(scrollBarProperty)) : nullptr;
}

void OlvGridLayout::makeScrollBar()
{
    // a sibling of the grid, so that it does not scroll along
    auto *bar = new QScrollBar(Qt::Vertical, parentWidget());
    bar->setGeometry(width() - barDistance, 0, barWidth, m_viewHeight);
    setProperty(scrollBarProperty, reinterpret_cast<qulonglong>(bar));
    bar->setStyleSheet(
        QStringLiteral("QScrollBar{width:10px;background:rgba(0,0,0,10%);border-radius:5px}"
                       "QScrollBar::handle{background:rgba(0,0,0,25%);border-radius:5px}"
                       "QScrollBar::handle:hover{background:rgba(0,0,0,50%)}"
                       "QScrollBar::add-line,QScrollBar::sub-line{border:none}"
                       "QScrollBar::sub-page,QScrollBar::add-page{background:rgba(0,0,0,0)}"));
    bar->hide();
    connect(bar, &QScrollBar::valueChanged, this,
            [this](int value) { move(0, toPixels(-qint64(value) * m_scrollStep)); });
}

void OlvGridLayout::watch(QWidget *widget)
{
    connect(widget, &QObject::destroyed, this, [this, widget] { m_widgets.removeAll(widget); });
}

void OlvGridLayout::fitParent()
{
    const QWidget *parent = parentWidget();
    if (!parent) {
        return;
    }
    m_viewHeight = parent->height();
    if (isSubWindow()) {
        resize(parent->width() - 2 * windowBorder, height());
        return;
    }
    resize(parent->width(), height());
    if (QScrollBar *bar = scrollBar()) {
        bar->setGeometry(width() - barDistance, 0, barWidth, m_viewHeight);
    }
}

void OlvGridLayout::arrange()
{
    const qint64 available = qint64(width()) - m_margin;
    qint64 right = 0; // of what stands last in the row
    qint64 top = m_margin;
    qint64 rowHeight = 0;
    // whoever hears of a move may delete another widget, or the grid
    const QPointer<OlvGridLayout> self(this);
    const QList<QWidget *> widgets = m_widgets;
    const auto isAlive = [&](QWidget *widget) {
        // the list is shared with this copy until it changes: what dies leaves it
        return self
            && (m_widgets.constBegin() == widgets.constBegin() || m_widgets.contains(widget));
    };
    for (QWidget *widget : widgets) {
        if (!self) {
            return;
        }
        if (!isAlive(widget)) {
            continue;
        }
        // a move may set another margin, and may leave no grid to ask for it in the midst of a step
        const qint64 margin = m_margin;
        const qint64 end = right + margin + widget->width();
        const bool isNewRow = end > available;
        if (isNewRow) {
            top += rowHeight + margin;
            rowHeight = 0;
        }
        const qint64 left = isNewRow ? margin : right + margin;
        moveTo(widget, QPoint(toPixels(left), toPixels(top)));
        const QSize size = isAlive(widget) ? widget->size() : QSize(0, 0);
        right = isNewRow ? left + size.width() : end;
        rowHeight = qMax<qint64>(rowHeight, size.height());
    }
    if (self) {
        resize(width(), toPixels(top + rowHeight + m_margin));
    }
}

void OlvGridLayout::fitScrollBar()
{
    const QPointer<QScrollBar> bar(scrollBar());
    if (!bar) {
        return;
    }
    if (m_viewHeight < height()) {
        bar->setMaximum((height() - m_viewHeight) / m_scrollStep);
        if (bar) { // a slot of its signals may have deleted it
            bar->show();
        }
    } else {
        bar->hide();
    }
}
