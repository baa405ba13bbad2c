// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

#include <functional>

class Dice;
class QWidget;

/**
 * A program that looks at this one through its accessibility: it asks anything of the interfaces,
 * with hostile arguments, has them do whatever they offer, and hears of the changes. One at a time.
 */
class Assistant
{
public:
    using Listener = std::function<void(const QAccessibleEvent &)>;

    /** @p listener is called with each update that is told, in the midst of the change. */
    Assistant(Dice &dice, Listener listener);
    ~Assistant();

    /** Switches accessibility on or off, as the desktop does when somebody begins to look. */
    static void setActive(bool active);

    /** Asks the interface of @p widget, or one beside it, for one thing; which may delete it. */
    void ask(QWidget *widget);

private:
    Q_DISABLE_COPY(Assistant)

    QAccessibleInterface *reach(QAccessibleInterface *interface);
    void look(QAccessibleInterface *interface);
    void lookAtChildren(QAccessibleInterface *interface);
    void write(QAccessibleInterface *interface);
    void act(QAccessibleActionInterface *actions);
    void turn(QAccessibleValueInterface *value, bool isOwn);
    void read(QAccessibleTextInterface *text, bool isOwn);
    void edit(QAccessibleEditableTextInterface *text);
    int offset(int count);

    Dice &m_dice;
};
