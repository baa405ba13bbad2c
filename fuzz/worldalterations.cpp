// SPDX-License-Identifier: MIT
#include "world.h"

#include "events.h"

namespace {

/** The largest side of a window, whose pixels the platform allocates. */
constexpr int largestWindow = 1200;

constexpr int farthest = 1 << 24;

} // namespace

void World::bound(QWidget *window)
{
    window->setMaximumSize(largestWindow, largestWindow);
}

void World::place(QWidget *widget)
{
    const Guard guard(*this);
    QWidget *moved = m_dice.oneIn(4) ? within(widget) : widget;
    switch (m_dice.below(6)) {
    case 0:
        // further away, the right edge overflows an int within Qt
        moved->move(qBound(-farthest, m_dice.number(), farthest), m_dice.between(-50, 50));
        break;
    case 1:
        if (m_dice.oneIn(8)) {
            anyHost()->resize(m_dice.side(), m_dice.side());
        }
        break;
    default:
        if (moved->inherits("QPushButton")) {
            // Qt takes half a minute to draw a button of the largest size
            moved->setMaximumSize(largestWindow, largestWindow);
        }
        moved->resize(sideOf(moved), sideOf(moved));
    }
}

int World::sideOf(const QWidget *widget)
{
    // the storm checks that a grid never makes itself larger than the largest size
    const int most = widget->inherits("OlvGridLayout") ? QWIDGETSIZE_MAX : 2 * QWIDGETSIZE_MAX;
    return qMin(m_dice.side(), most);
}

void World::alter(QWidget *widget)
{
    const Guard guard(*this);
    switch (m_dice.below(14)) {
    case 0:
    case 1:
        anyHost()->show();
        break;
    case 2:
        anyHost()->hide();
        break;
    case 3:
    case 4:
        widget->setVisible(m_dice.coin());
        break;
    case 5:
        within(widget)->setFocus(Qt::FocusReason(m_dice.below(Qt::NoFocusReason)));
        break;
    case 6:
        widget->setEnabled(m_dice.coin());
        break;
    case 7:
        widget->close();
        break;
    case 8:
        widget->setFont(m_dice.font());
        break;
    case 9:
        widget->setPalette(m_dice.palette());
        break;
    case 10:
        widget->setStyleSheet(m_dice.styleSheet());
        break;
    case 11:
        widget->setLayoutDirection(m_dice.coin() ? Qt::RightToLeft : Qt::LeftToRight);
        break;
    case 12:
        widget->setAttribute(Qt::WA_InputMethodEnabled, m_dice.coin());
        break;
    default:
        if (m_dice.coin()) {
            widget->raise();
        } else {
            widget->lower();
        }
    }
}

void World::move(QWidget *widget)
{
    const Guard guard(*this);
    // otherwise Qt keeps a hidden child as the focus widget of the window that it has left
    QWidget *focused = widget->window()->focusWidget();
    if (focused && widget->isAncestorOf(focused)) {
        focused->clearFocus();
    }
    if (m_dice.oneIn(8)) {
        bound(widget);
        widget->setParent(nullptr);
        return;
    }
    QWidget *host = anyHost();
    if (host != widget && !widget->isAncestorOf(host)) {
        widget->setParent(host);
    }
}

void World::overwriteProperty(QObject *object)
{
    const QByteArray name = m_properties.isEmpty() ? QByteArray("x") : m_dice.pick(m_properties);
    QVariant value;
    switch (m_dice.below(4)) {
    case 0:
        value = anyAddress();
        break;
    case 1: {
        // the address of a child, but not of the one that the property means
        const QObjectList &children = object->children();
        if (!children.isEmpty()) {
            value = reinterpret_cast<qulonglong>(m_dice.pick(children));
        }
        break;
    }
    case 2:
        value = object->property(name.constData());
        break;
    default:
        value = m_dice.variant();
    }
    object->setProperty(name.constData(), value);
}

void World::setHugeText(QWidget *widget)
{
    const QPointer<QWidget> alive(widget);
    m_family->setText(widget, m_dice.megabyte());
    if (alive) {
        Events::paint(m_dice, widget);
    }
    if (alive) {
        m_family->setText(widget, m_dice.text());
    }
}

void World::showTip(QWidget *widget)
{
    // When Qt creates the tip's window, the offscreen platform first delivers pending events: a
    // window is activated, a line edit in another loses the focus, and slots run. If they delete
    // the tip, which is a child of the widget, or show another tip, Qt uses a dangling pointer, as
    // it does in a program that has widgets of Qt's only.
    if (m_isShowingTip) {
        return;
    }
    const Guard guard(*this);
    m_isShowingTip = true;
    Events::askForTip(m_dice, widget);
    m_isShowingTip = false;
}
