// SPDX-License-Identifier: MIT
#include "world.h"

#include "events.h"

#include <QApplication>
#include <QMetaMethod>
#include <QTimer>

namespace {

constexpr int mostHosts = 5;
constexpr int mostWidgets = 20;
constexpr int mostAddresses = 64;
constexpr int deepest = 3;
/** What a window may grow to: the platform keeps its pixels. */
constexpr int largestWindow = 1200;

constexpr int farthest = 1 << 24;

/** A window's pixels are real: it must not follow a hostile size. */
void bound(QWidget *window)
{
    window->setMaximumSize(largestWindow, largestWindow);
}

/** Qt's own widgets stand being deleted in few of their signals; the library's in all. */
bool standsDeletion(const QMetaMethod &signal)
{
    const QByteArray className = signal.enclosingMetaObject()->className();
    return className.startsWith("Olv")
        || (className == "QAbstractButton" && signal.name() == "clicked");
}

/** Whether it is what a widget is made of, as Qt's own are; the library's helpers are not. */
bool isPart(const QObject *object)
{
    return object->inherits("QLayout") || object->inherits("QLabel")
        || (object->parent() && object->parent()->inherits("OlvLineEdit"));
}

template <typename Object> void prune(QVector<QPointer<Object>> &objects)
{
    objects.erase(std::remove_if(objects.begin(), objects.end(),
                                 [](const QPointer<Object> &object) { return object.isNull(); }),
                  objects.end());
}

} // namespace

Family::~Family() = default;

void Family::check(World & /*world*/, QWidget * /*widget*/) { }

void Family::setText(QWidget * /*widget*/, const QString & /*text*/) { }

World::Guard::Guard(World &world)
    : m_world(world)
{
    ++m_world.m_guards;
}

World::Guard::~Guard()
{
    --m_world.m_guards;
}

World::World(Dice &dice, std::unique_ptr<Family> family)
    : m_dice(dice)
    , m_family(std::move(family))
    , m_properties(m_family->properties())
{ }

World::~World()
{
    // the slots must not make anything new of what is being taken down
    m_depth = deepest;
    for (const QPointer<QWidget> &widget : qAsConst(m_widgets)) {
        delete widget;
    }
    for (const QPointer<QWidget> &host : qAsConst(m_hosts)) {
        delete host;
    }
}

Dice &World::dice()
{
    return m_dice;
}

QWidget *World::anyHost()
{
    prune(m_hosts);
    if (m_hosts.size() < mostHosts && (m_hosts.isEmpty() || m_dice.oneIn(8))) {
        QWidget *parent =
            m_hosts.isEmpty() || m_dice.coin() ? nullptr : m_dice.pick(m_hosts).data();
        auto *host = new QWidget(parent);
        bound(host);
        host->resize(300, 200);
        connect(host, &QObject::destroyed, this, &World::forget);
        m_hosts.append(host);
        remember(host);
        return host;
    }
    return m_dice.pick(m_hosts);
}

QWidget *World::anyWidget()
{
    prune(m_widgets);
    return m_widgets.isEmpty() ? nullptr : m_dice.pick(m_widgets).data();
}

void World::deleteAny(const QWidget *except)
{
    QWidget *victim = anyWidget();
    if (victim && victim != except && !victim->isAncestorOf(except)) {
        destroy(victim);
    }
}

void World::adopt(QWidget *widget)
{
    m_widgets.append(widget);
    const auto listen = [this](QObject *object) {
        remember(object);
        connect(object, &QObject::destroyed, this, &World::forget);
        const QMetaObject *meta = object->metaObject();
        const int slot = metaObject()->indexOfSlot("strike()");
        for (int i = 0; i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal) {
                QMetaObject::connect(object, i, this, slot);
            }
        }
    };
    listen(widget);
    const QObjectList children = widget->children();
    for (QObject *child : children) {
        listen(child);
    }
}

void World::forget(QObject *dying)
{
    // a QPointer holds a widget until nothing is left of it, and what is in it is about to follow
    const auto isDoomed = [dying](const QObject *object) {
        while (object && object != dying) {
            object = object->parent();
        }
        return object != nullptr;
    };
    for (QPointer<QWidget> &widget : m_widgets) {
        if (isDoomed(widget)) {
            widget = nullptr;
        }
    }
    for (QPointer<QWidget> &host : m_hosts) {
        if (isDoomed(host)) {
            host = nullptr;
        }
    }
    if (isDoomed(m_target)) {
        m_target = nullptr;
    }
}

bool World::isGuarded() const
{
    return m_guards > 0;
}

void World::remember(const QObject *object)
{
    const auto address = reinterpret_cast<qulonglong>(object);
    if (m_addresses.size() < mostAddresses) {
        m_addresses.append(address);
    } else {
        m_addresses[m_dice.below(mostAddresses)] = address;
    }
}

qulonglong World::anyAddress()
{
    return m_addresses.isEmpty() || m_dice.oneIn(3) ? m_dice.address() : m_dice.pick(m_addresses);
}

QWidget *World::target()
{
    prune(m_widgets);
    if (m_widgets.isEmpty() || (m_widgets.size() < mostWidgets && m_dice.oneIn(100))) {
        QWidget *host = anyHost();
        QWidget *made = m_family->make(*this, host);
        if (!made) {
            return target();
        }
        if (made->isWindow()) {
            bound(made);
        }
        adopt(made);
        m_target = made;
    } else if (!m_target || m_dice.oneIn(16)) {
        // events come in bursts: most of what a widget does takes several
        m_target = m_dice.pick(m_widgets);
    }
    return m_target;
}

QWidget *World::within(QWidget *widget)
{
    while (!widget->children().isEmpty() && m_dice.coin()) {
        auto *child = qobject_cast<QWidget *>(m_dice.pick(widget->children()));
        if (!child) {
            break;
        }
        widget = child;
    }
    return widget;
}

void World::step()
{
    QWidget *widget = target();
    act(widget);
    if (m_target && m_dice.oneIn(16)) {
        m_family->check(*this, m_target);
    }
}

void World::act(QWidget *widget)
{
    const int choice = m_dice.below(1000);
    if (choice < 700) {
        Events::sendAny(m_dice, within(widget));
    } else if (choice < 880) {
        m_family->call(*this, widget);
    } else if (choice < 920) {
        overwriteProperty(m_dice.oneIn(4) ? within(widget) : widget);
    } else if (choice < 945) {
        pass(m_dice.oneIn(4) ? m_dice.between(0, 3000) : m_dice.between(0, 60));
    } else if (choice < 970) {
        place(widget);
    } else if (choice < 985) {
        const Guard guard(*this);
        Events::paint(m_dice, widget);
    } else {
        actRarely(widget);
    }
}

void World::actRarely(QWidget *widget)
{
    if (m_dice.oneIn(2500)) {
        setHugeText(widget);
        return;
    }
    switch (m_dice.below(6)) {
    case 0:
        destroy(widget);
        break;
    case 1:
        if (m_dice.oneIn(20)) {
            destroy(anyHost());
        } else {
            widget->deleteLater();
        }
        break;
    case 2:
        takeHelper(widget);
        break;
    case 3:
        move(widget);
        break;
    default:
        alter(widget);
    }
}

void World::place(QWidget *widget)
{
    const Guard guard(*this);
    QWidget *moved = m_dice.oneIn(4) ? within(widget) : widget;
    switch (m_dice.below(6)) {
    case 0:
        // further off, the right edge is beyond an int, and Qt does not look
        moved->move(qBound(-farthest, m_dice.number(), farthest), m_dice.between(-50, 50));
        break;
    case 1:
        if (m_dice.oneIn(8)) {
            anyHost()->resize(m_dice.side(), m_dice.side());
        }
        break;
    default:
        if (moved->inherits("QPushButton")) {
            // Qt takes half a minute to draw one of the largest size
            moved->setMaximumSize(largestWindow, largestWindow);
        }
        moved->resize(sideOf(moved), sideOf(moved));
    }
}

int World::sideOf(const QWidget *widget)
{
    // of a grid the storm checks that its own layout keeps to the largest size
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
    // where a hidden child had taken the focus over, Qt leaves the old one with the window for good
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
        // of another widget, or of the wrong one of its own
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

void World::takeHelper(QWidget *widget)
{
    if (widget->children().isEmpty()) {
        return;
    }
    QObject *helper = m_dice.pick(widget->children());
    if (isPart(helper)) {
        return;
    }
    if (m_dice.oneIn(3) && !helper->isWidgetType()) {
        helper->setParent(m_dice.coin() ? static_cast<QObject *>(anyHost()) : this);
    } else {
        destroy(helper);
    }
}

void World::destroy(QObject *object)
{
    if (m_guards > 0) {
        object->deleteLater();
    } else {
        delete object;
    }
}

void World::pass(int milliseconds)
{
    // what is half destroyed has events waiting that Qt does not look through
    if (m_guards == 0) {
        Storm::processEvents(milliseconds);
    }
}

void World::strike()
{
    if (m_depth >= deepest || !m_dice.oneIn(6)) {
        return;
    }
    ++m_depth;
    const QMetaMethod signal = sender()->metaObject()->method(senderSignalIndex());
    if (standsDeletion(signal)) {
        strikeFrom(sender());
    } else {
        const Guard guard(*this);
        strikeGently(signal.name() == "destroyed");
    }
    --m_depth;
}

void World::strikeGently(bool isDying)
{
    QWidget *other = anyWidget();
    if (!other) {
        return;
    }
    switch (m_dice.below(8)) {
    case 0:
        destroy(other);
        break;
    case 1:
        overwriteProperty(other);
        break;
    case 2:
        m_family->call(*this, other);
        break;
    case 3:
        // a parent would be drawn, or shown, with what is left of its child
        if (!isDying) {
            step();
        }
        break;
    default:
        if (isDying) {
            Events::click(m_dice, other);
        } else {
            Events::sendAny(m_dice, other);
        }
    }
}

void World::strikeFrom(QObject *from)
{
    switch (m_dice.below(8)) {
    case 0:
    case 1:
        if (!isPart(from)) {
            destroy(from);
        }
        break;
    case 2:
        if (from->parent() && m_dice.oneIn(4)) {
            destroy(from->parent());
        }
        break;
    case 3:
        if (QWidget *other = anyWidget()) {
            destroy(other);
        }
        break;
    case 4:
        pass(m_dice.between(0, 500));
        break;
    case 5:
        overwriteProperty(from);
        break;
    case 6:
        if (from->isWidgetType()) {
            takeHelper(static_cast<QWidget *>(from));
        }
        break;
    default:
        step();
    }
}
