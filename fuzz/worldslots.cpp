// SPDX-License-Identifier: MIT
#include "world.h"

#include "events.h"

#include <QMetaMethod>

#include <utility>

namespace {

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

/** Whether the library tells of it; Qt tells in the midst of what it does to a widget. */
bool isOwn(const QAccessibleEvent &update)
{
    const QObject *object = update.object();
    if (!object || qstrncmp(object->metaObject()->className(), "Olv", 3) != 0) {
        return false;
    }
    switch (update.type()) {
    case QAccessible::NameChanged:
    case QAccessible::ValueChanged:
    case QAccessible::TextUpdated:
        return true;
    case QAccessible::StateChanged: {
        const auto &event = static_cast<const QAccessibleStateChangeEvent &>(update);
        const QAccessible::State changed = event.changedStates();
        return changed.checkable || changed.checked || changed.pressed;
    }
    default:
        return false;
    }
}

} // namespace

void World::strike()
{
    if (m_depth >= deepest || !m_dice.oneIn(6)) {
        return;
    }
    ++m_depth;
    ++m_strikes;
    const QMetaMethod signal = sender()->metaObject()->method(senderSignalIndex());
    const bool wasDying = std::exchange(m_isDying, m_isDying || signal.name() == "destroyed");
    if (standsDeletion(signal) && !m_isDying) {
        strikeFrom(sender());
    } else {
        const Guard guard(*this);
        strikeGently();
    }
    m_isDying = wasDying;
    --m_depth;
}

void World::hear(const QAccessibleEvent &update)
{
    if (m_depth >= deepest || !m_dice.oneIn(6)) {
        return;
    }
    ++m_depth;
    ++m_strikes;
    if (m_dice.oneIn(8)) {
        Assistant::setActive(m_dice.coin());
    } else if (isOwn(update) && m_isOverwriting && !m_isDying) {
        // out of the event of a property that the storm has just written: no one is at work in it
        m_isOverwriting = false;
        strikeFrom(update.object());
    } else {
        const Guard guard(*this);
        if (isOwn(update)) {
            strikeGently();
        } else if (QWidget *other = anyWidget()) {
            // where Qt is about to move it elsewhere, it must not get the focus, nor a parent
            if (m_dice.coin()) {
                overwriteProperty(other);
            } else {
                destroy(other);
            }
        }
    }
    --m_depth;
}

void World::strikeGently()
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
        if (!m_isDying) {
            step();
        }
        break;
    default:
        if (m_isDying) {
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
