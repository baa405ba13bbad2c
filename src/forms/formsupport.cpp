// SPDX-License-Identifier: MIT
#include "forms/formsupport_p.h"

#include <QLineEdit>
#include <QWidget>

#include <algorithm>

namespace {

QWidget *asWidget(QObject *object)
{
    return object && object->isWidgetType() ? static_cast<QWidget *>(object) : nullptr;
}

} // namespace

/** All supports, the oldest first. */
static QVector<OlvFormSupport *> &supports()
{
    // never deleted: a support may live as long as the application's statics do
    static auto *all = new QVector<OlvFormSupport *>;
    return *all;
}

OlvFormSupport::OlvFormSupport(QWidget *form, Features features)
    : QObject(form)
    , d(std::make_unique<Private>(this, form, features))
{
    supports().append(this);
    if (form) {
        Private::settle(form);
    }
}

OlvFormSupport::~OlvFormSupport()
{
    d->leave();
}

OlvFormSupport::Features OlvFormSupport::features() const
{
    return d->features();
}

void OlvFormSupport::setFeatures(Features features)
{
    d->setFeatures(features);
}

bool OlvFormSupport::eventFilter(QObject *watched, QEvent *event)
{
    return d->handle(watched, event);
}

OlvFormSupport::Private::Private(OlvFormSupport *support, QWidget *form, Features features)
    : m_support(support)
    , m_form(form)
    , m_given(support, m_members, features)
{ }

OlvFormSupport::Features OlvFormSupport::Private::features() const
{
    return m_given.features();
}

void OlvFormSupport::Private::setFeatures(Features features)
{
    m_given.set(features);
}

void OlvFormSupport::Private::leave()
{
    supports().removeOne(m_support);
    // when the form deletes its children, it has already removed this from their list
    const bool formIsDying =
        !m_form || (m_support->parent() == m_form && !m_form->children().contains(m_support));
    if (formIsDying) {
        return;
    }
    // Undoing sends events, whose receivers may delete the form, which must not delete this again.
    m_support->setParent(nullptr);
    const QVector<QPointer<QWidget>> all = m_members.widgets();
    for (const QPointer<QWidget> &widget : all) {
        release(widget);
    }
    m_given.restoreTabOrder();
    if (m_form) {
        settle(m_form);
    }
}

void OlvFormSupport::Private::settle(QWidget *root)
{
    const QVector<QPointer<QWidget>> widgets = widgetsFrom(root);
    for (const QPointer<QWidget> &widget : widgets) {
        if (widget) {
            settleOne(widget);
        }
    }
}

/** The support of the nearest form around a widget, or null. */
OlvFormSupport *OlvFormSupport::Private::supportFor(const QWidget *widget)
{
    const QVector<OlvFormSupport *> &all = supports();
    for (const QWidget *around = widget; around; around = around->parentWidget()) {
        const auto found = std::find_if(all.cbegin(), all.cend(), [=](const auto *support) {
            return support->d->m_form == around;
        });
        if (found != all.cend()) {
            return *found;
        }
        if (around->isWindow()) {
            break;
        }
    }
    return nullptr;
}

/**
 * A widget and those in it that may belong to the same form. A window in it is among them, since it
 * may become a part of the form, but what is in that is not.
 */
QVector<QPointer<QWidget>> OlvFormSupport::Private::widgetsFrom(QWidget *root)
{
    QVector<QPointer<QWidget>> widgets{ root };
    for (int i = 0; i < widgets.size(); ++i) {
        const QWidget *widget = widgets.at(i);
        if ((widget->isWindow() && widget != root) || !holdsOthers(formKindOf(widget))) {
            continue;
        }
        for (QObject *child : widget->children()) {
            if (QWidget *inner = asWidget(child)) {
                widgets.append(inner);
            }
        }
    }
    return widgets;
}

void OlvFormSupport::Private::settleOne(QWidget *widget)
{
    const QPointer<QWidget> alive(widget);
    const Guard wanted(supportFor(widget));
    QVector<Guard> others;
    for (OlvFormSupport *support : qAsConst(supports())) {
        if (support != wanted) {
            others.append(support);
        }
    }
    for (const Guard &other : qAsConst(others)) {
        if (alive && other && other->d->m_members.at(alive)) {
            other->d->release(alive);
            if (other) {
                other->d->m_given.restoreTabOrder();
            }
        }
        if (alive && other) {
            alive->removeEventFilter(other);
        }
    }
    if (alive && wanted) {
        wanted->d->adopt(alive);
    } else if (alive && alive->isWindow() && alive->parentWidget()) {
        // it may become a part of the form around it
        if (OlvFormSupport *around = supportFor(alive->parentWidget())) {
            alive->installEventFilter(around);
        }
    }
}

void OlvFormSupport::Private::adopt(QWidget *widget)
{
    const FormKind kind = formKindOf(widget);
    if (kind == FormKind::None) {
        widget->installEventFilter(m_support);
        return;
    }
    if (m_members.at(widget)) {
        return; // installing the filter again would put it in front of the application's
    }
    m_members.insert(widget, kind);
    widget->installEventFilter(m_support);
    if (QLineEdit *text = textOf(widget, kind)) {
        text->installEventFilter(m_support);
    }
    m_given.give(widget);
}

void OlvFormSupport::Private::release(QWidget *widget)
{
    const QPointer<QWidget> alive(widget);
    const Guard self(m_support);
    m_given.take(alive);
    const FormMember *member = self ? m_members.at(alive) : nullptr;
    if (!member) {
        return;
    }
    alive->removeEventFilter(m_support);
    if (QLineEdit *text = textOf(alive, member->kind)) {
        text->removeEventFilter(m_support);
    }
    m_members.remove(widget);
}

bool OlvFormSupport::Private::handle(QObject *watched, QEvent *event)
{
    QWidget *widget = asWidget(watched);
    if (!widget) {
        return false;
    }
    if (event->type() == QEvent::Destroy) {
        m_members.remove(widget);
        return false;
    }
    const FormMember *member = m_members.at(widget);
    const FormKind kind = member ? member->kind : FormKind::None;
    const Guard self(m_support);
    const QPointer<QObject> alive(watched);
    if (QWidget *edit = member ? nullptr : m_members.editAround(widget)) {
        m_given.handleInText(edit, static_cast<QLineEdit *>(widget), event);
        return !alive;
    }
    if (member && handleInMember(widget, kind, event)) {
        event->accept(); // an ignored key goes on to the parent although it has been filtered out
        return true;
    }
    if (!member) {
        m_given.handleInOther(widget, event);
    }
    if (self && alive && holdsOthers(kind)) {
        handleInContainer(widget, event);
    }
    return !alive; // Qt must not deliver the event to a deleted widget
}

void OlvFormSupport::Private::handleInContainer(QWidget *container, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ChildPolished:
        // not before it is polished: until then it may be under construction
        if (QWidget *child = asWidget(static_cast<QChildEvent *>(event)->child())) {
            settle(child);
        }
        break;
    case QEvent::ParentChange:
    case QEvent::Show: // its flags may have made it a window, or a part of the form
        settle(container);
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutRequest:
        m_given.fitSizesIn(container);
        break;
    default:
        break;
    }
}

bool OlvFormSupport::Private::handleInMember(QWidget *widget, FormKind kind, QEvent *event)
{
    const bool mayHaveLeft = event->type() == QEvent::ParentChange || event->type() == QEvent::Show;
    if (mayHaveLeft && supportFor(widget) != m_support) {
        settle(widget);
        return false;
    }
    return m_given.handle(widget, kind, event);
}
