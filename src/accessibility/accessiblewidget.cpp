// SPDX-License-Identifier: MIT
#include "accessibility/accessiblewidget_p.h"

#include <OlvWidgets/frame.h>
#include <OlvWidgets/value.h>

#include "accessibility/changewatcher_p.h"
#include "accessibility/spokentext_p.h"

#include <QPointer>

#include <utility>

namespace {

bool isPart(const QWidget *child)
{
    return dynamic_cast<const SwitchRound *>(child) || dynamic_cast<const SliderRound *>(child)
        || dynamic_cast<const OlvResizeItem *>(child);
}

QAccessible::State difference(QAccessible::State before, QAccessible::State now)
{
    QAccessible::State changed;
    changed.checkable = before.checkable != now.checkable;
    changed.checked = before.checked != now.checked;
    changed.pressed = before.pressed != now.pressed;
    return changed;
}

} // namespace

/** The state that was reported last; it exists only while accessibility is active. */
struct AccessibleWidget::Told
{
    explicit Told(AccessibleWidget *accessible)
        : name(accessible->nameToTell())
        , state(accessible->ownState())
        , value(accessible->value())
        , watcher(accessible->widget(), accessible)
    { }

    QString name;
    QAccessible::State state;
    QVariant value;
    ChangeWatcher watcher;
};

AccessibleWidget::AccessibleWidget(QWidget *widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{ }

AccessibleWidget::~AccessibleWidget() = default;

void AccessibleWidget::setWatching(bool watching)
{
    if (!watching || !isValid()) {
        m_told.reset();
    } else if (!m_told) {
        m_told = std::make_unique<Told>(this);
        watch(&m_told->watcher);
        nameParts();
    }
}

void AccessibleWidget::tellChanges()
{
    if (!QAccessible::isActive() || !isValid() || !m_told) {
        return;
    }
    const QString nameBefore = std::exchange(m_told->name, nameToTell());
    const QAccessible::State stateBefore = std::exchange(m_told->state, ownState());
    const QVariant valueBefore = std::exchange(m_told->value, value());
    const QAccessible::State changed = difference(stateBefore, m_told->state);
    const bool hasOtherValue = valueBefore != m_told->value;
    // Qt itself reports changes of the accessible name that the application has set
    const bool hasOtherName = nameBefore != m_told->name && widget()->accessibleName().isEmpty();

    // an update handler may delete the widget, and this interface with it, or stop the watching
    const QPointer<QObject> watcher(&m_told->watcher);
    if (hasOtherName) {
        QAccessibleEvent event(widget(), QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    if (watcher && !(changed == QAccessible::State())) {
        QAccessibleStateChangeEvent event(widget(), changed);
        QAccessible::updateAccessibility(&event);
    }
    if (watcher && hasOtherValue) {
        tellValue(valueBefore);
    }
    if (watcher) {
        nameParts();
    }
}

QWindow *AccessibleWidget::window() const
{
    return isValid() ? QAccessibleWidget::window() : nullptr;
}

QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>
AccessibleWidget::relations(QAccessible::Relation match) const
{
    return isValid() ? QAccessibleWidget::relations(match)
                     : QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>();
}

QAccessibleInterface *AccessibleWidget::focusChild() const
{
    return isValid() ? QAccessibleWidget::focusChild() : nullptr;
}

QAccessibleInterface *AccessibleWidget::parent() const
{
    return isValid() ? QAccessibleWidget::parent() : nullptr;
}

QAccessibleInterface *AccessibleWidget::child(int index) const
{
    return QAccessible::queryAccessibleInterface(children().value(index));
}

int AccessibleWidget::childCount() const
{
    return int(children().size());
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface *child) const
{
    return child ? int(children().indexOf(qobject_cast<QWidget *>(child->object()))) : -1;
}

QString AccessibleWidget::text(QAccessible::Text kind) const
{
    if (!isValid()) {
        return QString();
    }
    switch (kind) {
    case QAccessible::Name:
        return name();
    case QAccessible::Value:
        return value().toString();
    case QAccessible::Description: {
        // the tool tip may be the name already
        const QString description = SpokenText::plain(QAccessibleWidget::text(kind));
        return description == name() ? QString() : description;
    }
    case QAccessible::Accelerator:
        // Qt shows a label's mnemonic, which works only if the buddy accepts the focus
        return widget()->focusPolicy() == Qt::NoFocus ? QString() : QAccessibleWidget::text(kind);
    default:
        return QAccessibleWidget::text(kind);
    }
}

QRect AccessibleWidget::rect() const
{
    return isValid() ? QAccessibleWidget::rect() : QRect();
}

QAccessible::State AccessibleWidget::state() const
{
    if (!isValid()) {
        QAccessible::State gone;
        gone.invalid = true;
        return gone;
    }
    const QAccessible::State own = ownState();
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = own.checkable;
    state.checked = own.checked;
    state.pressed = own.pressed;
    return state;
}

QColor AccessibleWidget::foregroundColor() const
{
    return isValid() ? QAccessibleWidget::foregroundColor() : QColor();
}

QColor AccessibleWidget::backgroundColor() const
{
    return isValid() ? QAccessibleWidget::backgroundColor() : QColor();
}

QStringList AccessibleWidget::actionNames() const
{
    return isValid() ? QAccessibleWidget::actionNames() : QStringList();
}

void AccessibleWidget::doAction(const QString &name)
{
    if (isValid()) {
        QAccessibleWidget::doAction(name);
    }
}

QVariant AccessibleWidget::property(const char *name) const
{
    return isValid() ? object()->property(name) : QVariant();
}

QString AccessibleWidget::ownName() const
{
    return QString();
}

QAccessible::State AccessibleWidget::ownState() const
{
    return QAccessible::State();
}

QVariant AccessibleWidget::value() const
{
    return QVariant();
}

void AccessibleWidget::watch(QObject * /*watcher*/) { }

void AccessibleWidget::nameParts() { }

void AccessibleWidget::tellValue(const QVariant & /*before*/)
{
    QAccessibleValueChangeEvent event(widget(), m_told->value);
    QAccessible::updateAccessibility(&event);
}

QWidgetList AccessibleWidget::children() const
{
    QWidgetList result;
    if (isValid()) {
        for (QObject *object : object()->children()) {
            auto *child = qobject_cast<QWidget *>(object);
            if (child && !child->isWindow() && !isPart(child)) {
                result << child;
            }
        }
    }
    return result;
}

QString AccessibleWidget::name() const
{
    QString name = widget()->accessibleName();
    if (name.isEmpty()) {
        name = readableOwnName();
    }
    if (name.isEmpty()) {
        name = QAccessibleWidget::text(QAccessible::Name);
    }
    return name.isEmpty() ? SpokenText::plain(widget()->toolTip()) : name;
}

QString AccessibleWidget::readableOwnName() const
{
    const QString own = ownName();
    return SpokenText::isReadable(own) ? own : QString();
}

/** The name without the accessible name of the application, whose changes Qt reports itself. */
QString AccessibleWidget::nameToTell() const
{
    if (widget()->accessibleName().isEmpty()) {
        return name();
    }
    const QString own = readableOwnName();
    return own.isEmpty() && m_told ? m_told->name : own;
}
