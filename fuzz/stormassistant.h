// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

#include <functional>

class Dice;
class QWidget;

/**
 * Acts as an assistive program that is hostile: it asks the accessible interfaces for anything,
 * with any arguments, triggers their actions, and is told of changes. Only one may exist at a time.
 */
class StormAssistant
{
public:
    using Listener = std::function<void(const QAccessibleEvent &)>;

    /** @p listener is called with each update, while the change is still being made. */
    StormAssistant(Dice &dice, Listener listener);
    ~StormAssistant();

    /** Switches accessibility on or off, as the desktop does for an assistive program. */
    static void setActive(bool active);

    /** Does one thing with the interface of @p widget, or a related one; that may delete it. */
    void ask(QWidget *widget);

private:
    Q_DISABLE_COPY(StormAssistant)

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
