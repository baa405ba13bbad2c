// SPDX-License-Identifier: MIT
#include "everydeed.h"

#include "assistant.h"
#include "mouse.h"
#include "pointer.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QCursor>
#include <QInputMethodEvent>
#include <QTest>
#include <QWheelEvent>

namespace {

using namespace DeletionTable;

Deed sending(const char *name, std::function<void(QWidget *)> act,
             std::function<void(QWidget *)> prepare = nullptr)
{
    return { QString::fromLatin1(name), std::move(act), std::move(prepare), true };
}

template <typename Event, typename... Arguments> Deed sent(const char *name, Arguments... arguments)
{
    return sending(name, [=](QWidget *widget) {
        Event event(arguments...);
        QCoreApplication::sendEvent(widget, &event);
    });
}

Deed key(const char *name, QEvent::Type type, int code)
{
    return sent<QKeyEvent>(name, type, code, Qt::NoModifier, QStringLiteral("a"));
}

void enter(QWidget *widget)
{
    Pointer::enter(*widget);
}

void press(QWidget *widget)
{
    Mouse::press(widget, { 5, 5 });
}

void enterAndPress(QWidget *widget)
{
    enter(widget);
    press(widget);
}

void release(QWidget *widget)
{
    Mouse::release(widget, { 5, 5 });
}

void leave(QWidget *widget)
{
    Pointer::leave(*widget);
}

QVector<Deed> input()
{
    const QPoint place(5, 5);
    return {
        sending("enter", enter),
        sending("leave", leave, enter),
        sending("press", press),
        sending("move",
                [](QWidget *widget) {
                    Mouse::move(widget, { 5, 5 });
                }),
        sending("leave while pressed", leave, enterAndPress),
        sending("release inside", release, enterAndPress),
        sending("release outside", release, press),
        sent<QMouseEvent>("double-click", QEvent::MouseButtonDblClick, place, QCursor::pos(),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier),
        sent<QWheelEvent>("wheel", QPointF(place), QPointF(place), QPoint(0, 10), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false),
        key("press a key", QEvent::KeyPress, Qt::Key_A),
        key("release a key", QEvent::KeyRelease, Qt::Key_A),
        key("press Control", QEvent::KeyPress, Qt::Key_Control),
        key("release Control", QEvent::KeyRelease, Qt::Key_Control),
        sending("input method",
                [](QWidget *widget) {
                    QInputMethodEvent event;
                    event.setCommitString(QStringLiteral("x"));
                    QCoreApplication::sendEvent(widget, &event);
                }),
        sent<QFocusEvent>("focus in", QEvent::FocusIn),
        sent<QFocusEvent>("focus out", QEvent::FocusOut),
        sent<QTimerEvent>("timer", 1),
        sent<QEvent>("an unknown event", QEvent::User),
    };
}

QVector<Deed> setters()
{
    const auto on = [](const char *name, void (*act)(QWidget *)) -> Deed {
        return { QString::fromLatin1(name), act };
    };
    const auto handedOn = [](const char *name, void (*act)(QWidget *)) -> Deed {
        return { QString::fromLatin1(name), act, nullptr, false, true };
    };
    return {
        on("setFocus", [](QWidget *widget) { widget->setFocus(); }),
        on("resize", [](QWidget *widget) { widget->resize(150, 50); }),
        on("hide", [](QWidget *widget) { widget->hide(); }),
        { QStringLiteral("show"), [](QWidget *widget) { widget->show(); },
          [](QWidget *widget) {
              widget->hide();
          } },
        on("close", [](QWidget *widget) { widget->close(); }),
        handedOn("setEnabled", [](QWidget *widget) { widget->setEnabled(false); }),
        handedOn(
            "setFont",
            [](QWidget *widget) { widget->setFont(QFont(QStringLiteral("DejaVu Sans"), 20)); }),
        on("setPalette", [](QWidget *widget) { widget->setPalette(Qt::red); }),
        on("setStyleSheet",
           [](QWidget *widget) { widget->setStyleSheet(QStringLiteral("color:red")); }),
        on("setToolTip", [](QWidget *widget) { widget->setToolTip(QStringLiteral("tip")); }),
        on("setAccessibleName",
           [](QWidget *widget) { widget->setAccessibleName(QStringLiteral("name")); }),
        on("setAccessibleDescription",
           [](QWidget *widget) { widget->setAccessibleDescription(QStringLiteral("text")); }),
        on("setWindowTitle",
           [](QWidget *widget) { widget->setWindowTitle(QStringLiteral("title")); }),
        on("setWindowModified", [](QWidget *widget) { widget->setWindowModified(true); }),
        handedOn("setLayoutDirection",
                 [](QWidget *widget) { widget->setLayoutDirection(Qt::RightToLeft); }),
        handedOn("setLocale", [](QWidget *widget) { widget->setLocale(QLocale::c()); }),
        on("raise", [](QWidget *widget) { widget->raise(); }),
        on("repaint", [](QWidget *widget) { widget->repaint(); }),
        on("setProperty", [](QWidget *widget) { widget->setProperty("property", 1); }),
        on("addAction", [](QWidget *widget) { widget->addAction(new QAction(widget->parent())); }),
        on("setMouseTracking", [](QWidget *widget) { widget->setMouseTracking(true); }),
        on("setAcceptDrops", [](QWidget *widget) { widget->setAcceptDrops(true); }),
    };
}

} // namespace

QVector<Deed> DeletionTable::everyDeed()
{
    return input() + setters();
}

QVector<Deed> DeletionTable::everyAction()
{
    QVector<Deed> deeds;
    for (const QString &action :
         { press(), toggle(), doubleClick(), QAccessibleActionInterface::setFocusAction() }) {
        deeds.append({ QStringLiteral("action ") + action, [=](QWidget *widget) {
                          act(widget, action);
                      } });
    }
    return deeds;
}
