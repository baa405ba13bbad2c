// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QStringList>

/**
 * A program that looks at this one through its accessibility, for as long as it lives: it switches
 * that on and takes down the updates. One at a time.
 */
class Assistant
{
public:
    Assistant();
    ~Assistant();

    /**
     * What was told of @p object since the last time, in the order it came: "name NAME",
     * "state BIT..." (of checkable, checked and pressed), "value VALUE" or "text OLD > NEW".
     */
    QStringList heardOf(const QObject *object);

    /** Stops looking early; it takes down what is told all the same. */
    static void leave();

private:
    Q_DISABLE_COPY(Assistant)

    QAccessible::UpdateHandler m_before;
};

/** The interface that a program from outside gets; null when there is none. */
QAccessibleInterface *accessible(QObject *object);
/** Its name. */
QString nameOf(QObject *object);
/** The names of actions. */
QString press();
QString toggle();
QString doubleClick();
/** Does an action through it; false when it has no such action. */
bool act(QObject *object, const QString &action);
