// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QVector>
#include <QWidget>

#include <functional>

/** A kind of widget that has an interface of the library's. */
struct AccessibleKind
{
    const char *name;
    QAccessible::Role role;
    std::function<QWidget *(QWidget *)> make;
};

/** All of them. */
const QVector<AccessibleKind> &accessibleKinds();

/** Waits for what the widgets have put off: the helpers of a panel that has gone are freed then. */
bool waitForDeferred();

/** Calls everything that an interface has; what it says is none of this function's business. */
void callAll(QAccessibleInterface *interface);
