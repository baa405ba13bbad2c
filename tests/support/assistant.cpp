// SPDX-License-Identifier: MIT
#include "assistant.h"

#include <QMultiHash>

#include <algorithm>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace {

QMultiHash<const QObject *, QString> &heard()
{
    static QMultiHash<const QObject *, QString> updates;
    return updates;
}

/** Empty for states that Qt tells of itself, such as that of the active window. */
QString inWords(QAccessible::State state)
{
    QStringList words;
    if (state.checkable) {
        words << QStringLiteral("checkable");
    }
    if (state.checked) {
        words << QStringLiteral("checked");
    }
    if (state.pressed) {
        words << QStringLiteral("pressed");
    }
    return words.isEmpty() ? QString() : QStringLiteral("state ") + words.join(QLatin1Char(' '));
}

void hear(QAccessibleEvent *event)
{
    switch (event->type()) {
    case QAccessible::NameChanged:
        heard().insert(event->object(), QStringLiteral("name ") + nameOf(event->object()));
        break;
    case QAccessible::StateChanged: {
        const QString words =
            inWords(static_cast<QAccessibleStateChangeEvent *>(event)->changedStates());
        if (!words.isEmpty()) {
            heard().insert(event->object(), words);
        }
        break;
    }
    case QAccessible::ValueChanged:
        heard().insert(event->object(),
                       QStringLiteral("value ")
                           + static_cast<QAccessibleValueChangeEvent *>(event)->value().toString());
        break;
    case QAccessible::TextUpdated: {
        const auto *update = static_cast<QAccessibleTextUpdateEvent *>(event);
        const int place = update->changePosition();
        heard().insert(event->object(),
                       QStringLiteral("text %1%2 > %3")
                           .arg(place == 0 ? QString() : QStringLiteral("at %1 ").arg(place),
                                update->textRemoved(), update->textInserted()));
        break;
    }
    default:
        break;
    }
}

void setActive(bool active)
{
    // what a platform does when somebody looks; the offscreen one leaves it to its user
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
}

} // namespace

Assistant::Assistant()
    : m_before(QAccessible::installUpdateHandler(hear))
{
    heard().clear();
    setActive(true);
}

Assistant::~Assistant()
{
    leave();
    QAccessible::installUpdateHandler(m_before);
}

QStringList Assistant::heardOf(const QObject *object)
{
    QStringList lines = heard().values(object); // the latest first
    std::reverse(lines.begin(), lines.end());
    heard().remove(object);
    return lines;
}

void Assistant::leave()
{
    setActive(false);
}

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString nameOf(QObject *object)
{
    return accessible(object)->text(QAccessible::Name);
}

QString press()
{
    return QAccessibleActionInterface::pressAction();
}

QString toggle()
{
    return QAccessibleActionInterface::toggleAction();
}

QString doubleClick()
{
    return QStringLiteral("doubleClick");
}

bool act(QObject *object, const QString &action)
{
    QAccessibleActionInterface *actions = accessible(object)->actionInterface();
    if (!actions || !actions->actionNames().contains(action)) {
        return false;
    }
    actions->doAction(action);
    return true;
}
