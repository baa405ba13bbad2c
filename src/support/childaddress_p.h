// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QVariant>

/**
 * The child of @p parent, of the class Child, whose address @p property holds; null if there is
 * none.
 *
 * The widgets keep addresses of their children in dynamic properties, which any code may overwrite
 * with any number. So the number is compared with the addresses of the children that are alive, and
 * never turned into a pointer.
 */
template <typename Child> Child *childAtAddress(const QObject *parent, const QVariant &property)
{
    const qulonglong address = property.toULongLong();
    for (QObject *object : parent->children()) {
        auto *child = dynamic_cast<Child *>(object);
        if (child && reinterpret_cast<qulonglong>(child) == address) {
            return child;
        }
    }
    return nullptr;
}

/** The object, unless it is gone or @p property no longer holds its address. */
template <typename Object>
Object *ifAtAddress(const QPointer<Object> &object, const QVariant &property)
{
    const bool isNamed = property.toULongLong() == reinterpret_cast<qulonglong>(object.data());
    return isNamed ? object.data() : nullptr;
}
