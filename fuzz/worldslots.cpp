// SPDX-License-Identifier: MIT
#include "world.h"

#include "events.h"

#include <QCoreApplication>
#include <QDynamicPropertyChangeEvent>
#include <QMetaMethod>

#include <utility>

namespace {

/** Whether the sender survives its deletion in a slot; Qt's widgets do so for few signals. */
bool standsDeletion(const QMetaMethod &signal)
{
    const QByteArray className = signal.enclosingMetaObject()->className();
    return className.startsWith("Olv")
        || (className == "QAbstractButton" && signal.name() == "clicked");
}

/** Whether Qt does not touch an object after a filter of such an event of its. */
bool standsDeletion(const QObject &object, const QEvent &event)
{
    switch (event.type()) {
    case QEvent::DynamicPropertyChange: {
        const QByteArray name =
            static_cast<const QDynamicPropertyChangeEvent &>(event).propertyName();
        // QWidget goes on after those that it sets for a style sheet, and after a change of focus
        return !name.startsWith("_q_") && !(name == "state" && object.inherits("OlvLineEdit"));
    }
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::MouseMove:
        // Qt sends its own while it hides or destroys the widget, or one within it
        return Events::isSending(event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::Timer:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

/** Whether an object is a part that its widget relies on, as Qt's widgets rely on theirs. */
bool isPart(const QObject *object)
{
    const QObject *parent = object->parent();
    const bool isWithin = parent
        && (parent->inherits("OlvLineEdit") || parent->inherits("QLineEdit")
            || parent->inherits("QLabel"));
    return isWithin || object->inherits("QLayout") || object->inherits("QLabel");
}

/** Whether the library sends the update; Qt sends its own while it still changes the widget. */
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

/** Whether the widget that the update is about survives its deletion. */
bool standsDeletion(const QAccessibleEvent &update)
{
    // a line edit tells of its text while Qt's own line edit within it is at work
    const bool isOfText =
        update.type() == QAccessible::TextUpdated || update.type() == QAccessible::ValueChanged;
    return isOwn(update) && !(isOfText && update.object()->inherits("OlvLineEdit"));
}

} // namespace

void World::strike()
{
    if (m_depth >= deepest || !m_dice.oneIn(6)) {
        return;
    }
    const QMetaMethod signal = sender()->metaObject()->method(senderSignalIndex());
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 6.4 looks for the children of a child that is gone while its parent dies: findChildren(),
    // which a radio button calls when it is clicked, ends the program there
    if (m_isDying || signal.name() == "destroyed") {
        return;
    }
#endif
    ++m_depth;
    ++m_strikes;
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
        StormAssistant::setActive(m_dice.coin());
    } else if (standsDeletion(update) && !isGuarded() && !m_isDying && !m_isMaking) {
        strikeFrom(update.object());
    } else {
        const Guard guard(*this);
        if (isOwn(update)) {
            strikeGently();
        } else if (QWidget *other = anyWidget()) {
            // Qt may be about to reparent the widget, which must get neither the focus nor a parent
            // now
            if (m_dice.coin()) {
                overwriteProperty(other);
            } else {
                destroy(other);
            }
        }
    }
    --m_depth;
}

bool World::eventFilter(QObject *watched, QEvent *event)
{
    if (m_depth >= deepest || isGuarded() || m_isDying || !standsDeletion(*watched, *event)
        || !m_dice.oneIn(24)) {
        return QObject::eventFilter(watched, event);
    }
    ++m_depth;
    ++m_strikes;
    const QPointer<QObject> alive(watched);
    strikeFrom(watched);
    --m_depth;
    return !alive || m_dice.coin(); // what is gone must not get the event
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
        // the parent would be painted, or shown, with a child that is half destroyed
        if (!m_isDying) {
            step();
        }
        break;
    default:
        if (m_isDying && m_dice.coin()) {
            fireTimer();
        } else if (m_isDying) {
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
        if (from->parent() && from->parent() != this && m_dice.oneIn(4)) {
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

/** As an event loop in a slot of destroyed() has a timer fire that goes after its widget. */
void World::fireTimer()
{
    if (m_timers.isEmpty()) {
        return;
    }
    const QPointer<QTimer> timer = m_dice.pick(m_timers);
    if (timer && timer->isActive()) {
        QTimerEvent event(timer->timerId());
        QCoreApplication::sendEvent(timer, &event);
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
