// SPDX-License-Identifier: MIT
#include "subjects.h"

#include "mouse.h"
#include "pointer.h"
#include "resizehandles.h"

#include <OlvControlBar>
#include <OlvDragWidget>
#include <OlvMoveWidget>
#include <OlvResizeWidget>

#include <QPushButton>

namespace {

using namespace DeletionTable;

/** The buttons of a bar that has one of the application's. */
enum Button { Custom, Float, Bottom, Top, Minimise, Maximise, Close };

QPushButton *buttonOf(const QWidget *bar, Button button)
{
    return bar->findChildren<QPushButton *>().at(button);
}

Deed click(const char *name, Button button, std::function<void(QWidget *)> prepare = nullptr)
{
    return { QString::fromLatin1(name), [=](QWidget *bar) { buttonOf(bar, button)->click(); },
             std::move(prepare) };
}

Subject controlBar()
{
    const auto checked = [](Button button) {
        return [=](QWidget *bar) {
            buttonOf(bar, button)->click();
        };
    };
    const auto translate = [](QWidget *bar) {
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(bar, &event);
    };
    return { QStringLiteral("OlvControlBar"),
             [](QWidget *parent) -> QWidget * {
                 return new OlvControlBar({ u'a', u'b', u'c', u'd', u'e', u'f', u'g', u'h' },
                                          parent, { QStringLiteral("one") });
             },
             {
                 click("click one of the application's", Custom),
                 click("click float", Float),
                 click("click keep at the bottom", Bottom),
                 click("click keep on top instead of at the bottom", Top, checked(Bottom)),
                 click("click keep at the bottom instead of on top", Bottom, checked(Top)),
                 click("click minimise", Minimise),
                 click("click maximise", Maximise),
                 click("click restore", Maximise, checked(Maximise)),
                 click("click close", Close),
                 { QStringLiteral("press maximise by the mouse"),
                   [](QWidget *bar) {
                       Mouse::press(buttonOf(bar, Maximise), { 5, 5 });
                   },
                   nullptr, true },
                 { QStringLiteral("release maximise by the mouse"),
                   [](QWidget *bar) {
                       Mouse::release(buttonOf(bar, Maximise), { 5, 5 });
                   },
                   [](QWidget *bar) {
                       Pointer::enter(*buttonOf(bar, Maximise));
                       Mouse::press(buttonOf(bar, Maximise), { 5, 5 });
                   },
                   true },
                 { QStringLiteral("another language"), translate, nullptr, true, true },
             } };
}

template <typename Helper> Helper *helperOf(const QWidget *target)
{
    for (QObject *child : target->children()) {
        if (auto *helper = dynamic_cast<Helper *>(child)) {
            return helper;
        }
    }
    return nullptr;
}

void pressTarget(QWidget *target)
{
    Mouse::press(target, { 10, 10 });
}

/** What is done to one of a target's handles. */
Deed dragHandle(const char *name, OlvResizeItem *Handles::*handle)
{
    const auto press = [=](QWidget *target) {
        Mouse::press(handlesOf(*target).*handle, { 1, 1 });
    };
    const auto drag = [=](QWidget *target) {
        Mouse::move(handlesOf(*target).*handle, { 9, 9 });
    };
    return { QString::fromLatin1(name), drag, press, true };
}

Subject target()
{
    const auto make = [](QWidget *parent) {
        auto *target = new QWidget(parent);
        auto *mover = new OlvMoveWidget(target);
        mover->setMoveArea(QRect());
        new OlvResizeWidget(target, 5);
        return target;
    };
    const auto changeArea = [](QWidget *target) {
        helperOf<OlvMoveWidget>(target)->setMoveArea(QRect(1, 1, 5, 5));
    };
    const auto reset = [](QWidget *target) {
        helperOf<OlvResizeWidget>(target)->reset();
    };
    return { QStringLiteral("moved and resized widget"),
             make,
             {
                 { QStringLiteral("setMoveArea"), changeArea },
                 { QStringLiteral("press in the area"), pressTarget, nullptr, true },
                 { QStringLiteral("drag in the area"),
                   [](QWidget *target) {
                       Mouse::move(target, { 15, 15 });
                   },
                   pressTarget, true },
                 { QStringLiteral("release in the area"),
                   [](QWidget *target) { Mouse::release(target); }, pressTarget, true },
                 { QStringLiteral("press the corner"),
                   [](QWidget *target) {
                       Mouse::press(handlesOf(*target).corner, { 1, 1 });
                   },
                   nullptr, true },
                 dragHandle("drag the right edge", &Handles::right),
                 dragHandle("drag the bottom edge", &Handles::bottom),
                 dragHandle("drag the corner", &Handles::corner),
                 { QStringLiteral("reset"), reset,
                   [](QWidget *target) {
                       target->resize(180, 70);
                   } },
                 { QStringLiteral("setPartners"),
                   [](QWidget *target) {
                       handlesOf(*target).right->setPartners(nullptr, nullptr);
                   } },
             },
             true };
}

Subject placeholder()
{
    return { QStringLiteral("OlvDragWidget"),
             [](QWidget *parent) -> QWidget * { return new OlvDragWidget(parent); },
             {} };
}

} // namespace

QVector<Subject> DeletionTable::frameSubjects()
{
    return { controlBar(), target(), placeholder() };
}
