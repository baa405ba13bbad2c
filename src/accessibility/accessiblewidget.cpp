// SPDX-License-Identifier: MIT
#include "accessibility/accessiblewidget_p.h"

#include <OlvWidgets/frame.h>
#include <OlvWidgets/value.h>

#include "accessibility/changewatcher_p.h"

#include <utility>

namespace {

bool isPart(const QAccessibleInterface *child)
{
    const QObject *object = child->object();
    return dynamic_cast<const SwitchRound *>(object) || dynamic_cast<const SliderRound *>(object)
        || dynamic_cast<const OlvResizeItem *>(object);
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

/** What was told last, and who hears of changes: nobody pays for it whom nobody looks at. */
struct AccessibleWidget::Told
{
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
        m_told.reset(new Told{ name(), ownState(), value(), { widget(), this } });
    }
}

void AccessibleWidget::tellChanges()
{
    if (!QAccessible::isActive() || !isValid() || !m_told) {
        return;
    }
    const QString nameBefore = std::exchange(m_told->name, name());
    const QAccessible::State stateBefore = std::exchange(m_told->state, ownState());
    const QVariant valueBefore = std::exchange(m_told->value, value());

    // Qt itself tells the changes of the name that the application gave
    if (nameBefore != m_told->name && widget()->accessibleName().isEmpty()) {
        QAccessibleEvent event(widget(), QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    const QAccessible::State changed = difference(stateBefore, m_told->state);
    if (!(changed == QAccessible::State())) {
        QAccessibleStateChangeEvent event(widget(), changed);
        QAccessible::updateAccessibility(&event);
    }
    if (valueBefore != m_told->value) {
        tellValue(valueBefore);
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
    const int count = isValid() ? QAccessibleWidget::childCount() : 0;
    for (int i = 0; i < count; ++i) {
        QAccessibleInterface *child = QAccessibleWidget::child(i);
        if (child && !isPart(child) && index-- == 0) {
            return child;
        }
    }
    return nullptr;
}

int AccessibleWidget::childCount() const
{
    int count = 0;
    while (child(count)) {
        ++count;
    }
    return count;
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface *wanted) const
{
    int index = 0;
    while (const QAccessibleInterface *candidate = child(index)) {
        if (candidate == wanted) {
            return index;
        }
        ++index;
    }
    return -1;
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
        const QString description = QAccessibleWidget::text(kind);
        return description == name() ? QString() : description;
    }
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

void AccessibleWidget::tellValue(const QVariant & /*before*/)
{
    QAccessibleValueChangeEvent event(widget(), m_told->value);
    QAccessible::updateAccessibility(&event);
}

QString AccessibleWidget::name() const
{
    QString name = widget()->accessibleName();
    if (name.isEmpty()) {
        name = ownName();
    }
    if (name.isEmpty()) {
        name = QAccessibleWidget::text(QAccessible::Name);
    }
    return name.isEmpty() ? widget()->toolTip() : name;
}
