// SPDX-License-Identifier: MIT
#include "stormassistant.h"

#include "dice.h"
#include "storm.h"

#include <QWidget>

#include <algorithm>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace {

StormAssistant::Listener &listener()
{
    static StormAssistant::Listener one;
    return one;
}

void hear(QAccessibleEvent *event)
{
    listener()(*event);
}

/** Whether the interface belongs to a widget of the library. */
bool isOwn(const QAccessibleInterface *interface)
{
    const QObject *object = interface->object();
    return object && qstrncmp(object->metaObject()->className(), "Olv", 3) == 0;
}

} // namespace

StormAssistant::StormAssistant(Dice &dice, Listener listening)
    : m_dice(dice)
{
    listener() = std::move(listening);
    QAccessible::installUpdateHandler(hear);
    setActive(m_dice.coin());
}

StormAssistant::~StormAssistant()
{
    setActive(false);
    QAccessible::installUpdateHandler(nullptr);
}

void StormAssistant::setActive(bool active)
{
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
}

void StormAssistant::ask(QWidget *widget)
{
    if (m_dice.oneIn(64)) {
        setActive(m_dice.coin());
        return;
    }
    QAccessibleInterface *interface = reach(QAccessible::queryAccessibleInterface(widget));
    if (!interface) {
        return;
    }
    switch (m_dice.below(8)) {
    case 0:
    case 1:
        look(interface);
        break;
    case 2:
        lookAtChildren(interface);
        break;
    case 3:
        write(interface);
        break;
    case 4:
        if (QAccessibleValueInterface *value = interface->valueInterface()) {
            turn(value, isOwn(interface));
        }
        break;
    case 5:
        if (QAccessibleTextInterface *text = interface->textInterface()) {
            read(text, isOwn(interface));
        }
        break;
    case 6:
        if (QAccessibleEditableTextInterface *text = interface->editableTextInterface()) {
            edit(text);
        }
        break;
    default:
        if (QAccessibleActionInterface *actions = interface->actionInterface()) {
            act(actions);
        }
    }
}

QAccessibleInterface *StormAssistant::reach(QAccessibleInterface *interface)
{
    while (interface && m_dice.oneIn(3)) {
        switch (m_dice.below(5)) {
        case 0:
            interface = interface->parent();
            break;
        case 1:
            interface = interface->focusChild();
            break;
        case 2: {
            const QPoint place = m_dice.coin()
                ? interface->rect().topLeft() + m_dice.pixel(interface->rect().size())
                : m_dice.point();
            interface = interface->childAt(place.x(), place.y());
            break;
        }
        default:
            // the interfaces of Qt's menus do not check for a negative index
            interface = interface->child(m_dice.coin() || !isOwn(interface)
                                             ? m_dice.below(interface->childCount())
                                             : m_dice.number());
        }
    }
    return interface;
}

void StormAssistant::look(QAccessibleInterface *interface)
{
    Storm::check(interface->isValid() != interface->state().invalid,
                 "an interface that is valid says so");
    interface->role();
    interface->rect();
    interface->text(QAccessible::Text(m_dice.between(QAccessible::Name, QAccessible::UserText)));
    interface->text(QAccessible::Text(m_dice.number()));
    interface->window();
    interface->relations(QAccessible::Relation(int(m_dice.bits())));
    interface->foregroundColor();
    interface->backgroundColor();
    interface->interface_cast(QAccessible::InterfaceType(m_dice.number()));
    Storm::check(!isOwn(interface)
                     || (!interface->tableInterface() && !interface->tableCellInterface()
                         && !interface->imageInterface()),
                 "no widget is a table, a cell or a picture");
    if (QAccessibleActionInterface *actions = interface->actionInterface()) {
        const QStringList names = actions->actionNames() << m_dice.text();
        const QString name = m_dice.pick(names);
        actions->localizedActionName(name);
        actions->localizedActionDescription(name);
        actions->keyBindingsForAction(name);
    }
}

void StormAssistant::lookAtChildren(QAccessibleInterface *interface)
{
    if (!isOwn(interface)) {
        return;
    }
    const int count = interface->childCount();
    const int index = m_dice.coin() ? m_dice.between(-1, count) : m_dice.number();
    const QAccessibleInterface *child = interface->child(index);
    Storm::check((child != nullptr) == (index >= 0 && index < count),
                 "an interface has the children that it counts");
    Storm::check(interface->indexOfChild(child) == (child ? index : -1),
                 "a child has the index that it is found at");
    Storm::check(interface->indexOfChild(interface) == -1, "nothing is its own child");
}

void StormAssistant::write(QAccessibleInterface *interface)
{
    interface->setText(QAccessible::Text(m_dice.between(QAccessible::Name, QAccessible::UserText)),
                       m_dice.text());
}

void StormAssistant::act(QAccessibleActionInterface *actions)
{
    const QStringList names = actions->actionNames();
    actions->doAction(names.isEmpty() || m_dice.oneIn(8) ? m_dice.text() : m_dice.pick(names));
}

void StormAssistant::turn(QAccessibleValueInterface *value, bool isOwn)
{
    if (m_dice.coin()) {
        value->setCurrentValue(m_dice.variant());
        return; // a slot may have deleted the widget, and the interface with it
    }
    const QVariant now = value->currentValue();
    Storm::check(
        !isOwn || (now.userType() == QMetaType::Int && now.toInt() >= 0 && now.toInt() <= 100),
        "a value is a percentage");
    Storm::check(!isOwn
                     || (value->minimumValue() == 0 && value->maximumValue() == 100
                         && value->minimumStepSize() == 1),
                 "a value goes from 0 to 100 in steps of 1");
}

void StormAssistant::read(QAccessibleTextInterface *text, bool isOwn)
{
    const int count = text->characterCount();
    const int one = offset(count);
    const int two = offset(count);
    const auto boundary = QAccessible::TextBoundaryType(
        m_dice.between(QAccessible::CharBoundary, QAccessible::NoBoundary));
    int start = 0;
    int end = 0;
    switch (m_dice.below(12)) {
    case 0:
        text->selection(one, &start, &end);
        break;
    case 1:
        text->addSelection(one, two);
        break;
    case 2:
        text->removeSelection(one);
        break;
    case 3:
        text->setSelection(one, two, offset(count));
        break;
    case 4:
        text->setCursorPosition(one);
        break;
    case 5:
        Storm::check(text->text(one, two).size() <= qMax<qint64>(0, qint64(two) - one),
                     "no more is read than was asked for");
        break;
    case 6:
        text->textBeforeOffset(one, boundary, &start, &end);
        break;
    case 7:
        text->textAfterOffset(one, boundary, &start, &end);
        break;
    case 8:
        // Qt's text interfaces loop endlessly when asked for the word at the end of a text
        if (isOwn) {
            text->textAtOffset(one, boundary, &start, &end);
        }
        break;
    case 9:
        text->characterRect(one);
        text->offsetAtPoint(m_dice.point());
        break;
    case 10:
        text->scrollToSubstring(one, two);
        break;
    default:
        text->attributes(one, &start, &end);
        text->cursorPosition();
        text->selectionCount();
    }
}

void StormAssistant::edit(QAccessibleEditableTextInterface *text)
{
    // Qt's text interfaces fill a line with blanks up to any offset until memory runs out, and
    // read beyond the text where the end lies before the start
    const auto [one, two] = std::minmax({ m_dice.below(300), m_dice.below(300) });
    switch (m_dice.below(3)) {
    case 0:
        text->deleteText(one, two);
        break;
    case 1:
        text->insertText(one, m_dice.text());
        break;
    default:
        text->replaceText(one, two, m_dice.text());
    }
}

int StormAssistant::offset(int count)
{
    return m_dice.coin() ? m_dice.number() : m_dice.between(-1, count + 1);
}
