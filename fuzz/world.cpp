// SPDX-License-Identifier: MIT
#include "world.h"

#include "events.h"

#include <QMetaMethod>

#include <algorithm>

namespace {

constexpr int mostHosts = 5;
constexpr int mostWidgets = 20;
constexpr int mostAddresses = 64;

template <typename Object> void prune(QVector<QPointer<Object>> &objects)
{
    objects.erase(std::remove_if(objects.begin(), objects.end(),
                                 [](const QPointer<Object> &object) { return object.isNull(); }),
                  objects.end());
}

} // namespace

Family::~Family() = default;

void Family::check(World & /*world*/, QWidget * /*widget*/) { }

bool Family::isQtAtWork() const
{
    return false;
}

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
    , m_assistant(dice, [this](const QAccessibleEvent &update) { hear(update); })
{ }

World::~World()
{
    // the slots must not create anything while the world is destroyed
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
        object->installEventFilter(this);
        if (auto *timer = qobject_cast<QTimer *>(object)) {
            prune(m_timers);
            m_timers.append(timer);
        }
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
    // a QPointer is cleared only at the end of the destructor, and the children are about to follow
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
    return m_guards > 0 || m_family->isQtAtWork();
}

bool World::isUndisturbed() const
{
    return m_strikes == 0;
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
        m_isMaking = true;
        QWidget *made = m_family->make(*this, host);
        m_isMaking = false;
        if (!made) {
            return target();
        }
        if (made->isWindow()) {
            bound(made);
        }
        adopt(made);
        m_target = made;
    } else if (!m_target || m_dice.oneIn(16)) {
        // one widget gets several events in a row, since most of its actions take several
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
    if (m_depth == 0) {
        m_strikes = 0;
    }
    QWidget *widget = target();
    act(widget);
    if (m_target && m_dice.oneIn(16)) {
        m_family->check(*this, m_target);
    }
}

void World::act(QWidget *widget)
{
    const int choice = m_dice.below(1000);
    if (choice < 5) {
        showTip(within(widget));
    } else if (choice < 35) {
        m_assistant.ask(within(widget));
    } else if (choice < 700) {
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

void World::destroy(QObject *object)
{
    if (isGuarded()) {
        object->deleteLater();
    } else {
        delete object;
    }
}

void World::pass(int milliseconds)
{
    // an object that is half destroyed may have posted events that Qt would still deliver
    if (!isGuarded()) {
        Storm::processEvents(milliseconds);
    }
}
