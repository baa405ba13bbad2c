// SPDX-License-Identifier: MIT
#pragma once

#include "mouse.h"
#include "pointer.h"

#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

/** Deleting a widget, its parent or a helper of its from a slot, while the widget emits. */
namespace Deletion {

using Slot = std::function<void()>;
using Finder = std::function<QObject *(QWidget *sender)>;

/** An object that a slot deletes. */
struct Victim
{
    const char *name;
    Finder find;
};

/** A way in which a widget comes to emit one of its signals, or a helper of its comes to. */
struct Emission
{
    QByteArray name;
    std::function<QWidget *(QWidget *parent)> make;
    std::function<void(QWidget *sender, const Slot &slot)> connectTo;
    /** Ends with the emission, or starts what leads to it. */
    std::function<void(QWidget *sender)> emitNow;
    QVector<Victim> helpers;
};

template <typename Widget> QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

template <typename Widget, typename Signal>
std::function<void(QWidget *, const Slot &)> toSignal(Signal signal)
{
    return [=](QWidget *sender, const Slot &slot) {
        QObject::connect(static_cast<Widget *>(sender), signal, sender, slot);
    };
}

/** The helper whose address a property holds, while it lives. */
template <typename Object> Finder inProperty(const char *name)
{
    return [=](const QWidget *widget) -> QObject * {
        const QList<QObject *> objects = widget->window()->findChildren<QObject *>();
        for (QObject *object : objects) {
            auto *helper = dynamic_cast<Object *>(object);
            if (helper
                && reinterpret_cast<qulonglong>(helper) == widget->property(name).toULongLong()) {
                return helper;
            }
        }
        return nullptr;
    };
}

template <typename Object> Finder ofClass()
{
    return [](const QWidget *widget) -> QObject * {
        for (QObject *child : widget->children()) {
            if (dynamic_cast<Object *>(child)) {
                return child;
            }
        }
        return nullptr;
    };
}

/** Fires a timer that is a helper as soon as the event loop runs. */
inline void hurry(QWidget *widget, const char *property)
{
    auto *timer = static_cast<QTimer *>(inProperty<QTimer>(property)(widget));
    if (timer) {
        timer->start(1);
    }
}

inline void clickMouse(QWidget *widget)
{
    if (widget) {
        Pointer::enter(*widget);
        Mouse::press(widget, { 5, 5 });
        Mouse::release(widget, { 5, 5 });
    }
}

/** A row for each emission with each of its victims: the sender, its parent and the helpers. */
inline void addRows(const QVector<Emission> &emissions)
{
    QTest::addColumn<Emission>("emission");
    QTest::addColumn<Finder>("victim");
    const Victim sender{ "sender", [](QWidget *widget) {
                            return widget;
                        } };
    const Victim parent{ "parent", [](QWidget *widget) {
                            return widget->parent();
                        } };
    for (const Emission &emission : emissions) {
        const QVector<Victim> victims = QVector<Victim>{ sender, parent } + emission.helpers;
        for (const Victim &victim : victims) {
            QTest::addRow("%s: %s", emission.name.constData(), victim.name)
                << emission << victim.find;
        }
    }
}

/** Has a slot delete the victim while the emission happens; fails unless all else lives on. */
inline void check(const Emission &emission, const Finder &victim)
{
    QWidget window;
    window.resize(400, 300);
    const QPointer<QWidget> parent(new QWidget(&window));
    parent->resize(300, 200);
    const QPointer<QWidget> sender(emission.make(parent));
    window.show();
    QPointer<QObject> target;
    bool emitted = false;
    bool isHelper = false;
    emission.connectTo(sender, [&] {
        if (std::exchange(emitted, true)) {
            return;
        }
        target = victim(sender);
        isHelper = target != sender && target != parent;
        QVERIFY(target);
        delete target;
    });
    emission.emitNow(sender);
    QTRY_VERIFY(emitted);
    QVERIFY(target.isNull());
    QCOMPARE(!sender.isNull(), isHelper);
    QVERIFY(!window.grab().isNull());
    if (isHelper) {
        // what is left works on
        emission.emitNow(sender);
        sender->resize(sender->size() + QSize(10, 10));
        QCoreApplication::processEvents();
        QVERIFY(!window.grab().isNull());
    }
}

} // namespace Deletion

Q_DECLARE_METATYPE(Deletion::Emission)
Q_DECLARE_METATYPE(Deletion::Finder)
