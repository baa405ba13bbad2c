// SPDX-License-Identifier: MIT
#include "forms/formsupport_p.h"

#include <OlvWidgets/input.h>

#include "forms/disabledlook_p.h"
#include "forms/formsizes_p.h"

#include <QLineEdit>
#include <QWidget>

#include <algorithm>

namespace {

QWidget *asWidget(QObject *object)
{
    return object && object->isWidgetType() ? static_cast<QWidget *>(object) : nullptr;
}

/** The text in a line edit, whose events are a support's business, too; null for other widgets. */
QLineEdit *textOf(const QWidget *widget, FormKind kind)
{
    return kind == FormKind::LineEdit ? static_cast<const OlvLineEdit *>(widget)->lineEdit()
                                      : nullptr;
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
    , m_features(features)
{ }

OlvFormSupport::Features OlvFormSupport::Private::features() const
{
    return m_features;
}

void OlvFormSupport::Private::setFeatures(Features features)
{
    const Features added = features & ~m_features;
    const Features removed = m_features & ~features;
    m_features = features;
    const Guard self(m_support);
    const QVector<QPointer<QWidget>> all = members();
    for (const QPointer<QWidget> &widget : all) {
        if (self) {
            take(widget, removed);
        }
        if (self) {
            give(widget, added);
        }
    }
}

void OlvFormSupport::Private::leave()
{
    supports().removeOne(m_support);
    // a form that deletes its children has taken this from their list already
    const bool formIsDying =
        !m_form || (m_support->parent() == m_form && !m_form->children().contains(m_support));
    if (formIsDying) {
        return;
    }
    // Undoing sends events, whose receivers may delete the form, which must not delete this again.
    m_support->setParent(nullptr);
    const QVector<QPointer<QWidget>> all = members();
    for (const QPointer<QWidget> &widget : all) {
        release(widget);
    }
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
        if (alive && other && other->d->memberAt(alive)) {
            other->d->release(alive);
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

FormMember *OlvFormSupport::Private::memberAt(const QObject *widget)
{
    const auto found = m_members.find(widget);
    const bool isThere =
        found != m_members.end() && found->widget && isStill(found->widget, found->kind);
    return isThere ? &*found : nullptr;
}

/** The line edit among the members that @p text is the text of; null for other widgets. */
QWidget *OlvFormSupport::Private::editAround(const QWidget *text)
{
    const FormMember *edit = memberAt(text->parentWidget());
    return edit && textOf(edit->widget, edit->kind) == text ? edit->widget.data() : nullptr;
}

void OlvFormSupport::Private::adopt(QWidget *widget)
{
    const FormKind kind = formKindOf(widget);
    if (kind == FormKind::None) {
        widget->installEventFilter(m_support);
        return;
    }
    if (memberAt(widget)) {
        return; // installing the filter again would put it in front of the application's
    }
    FormMember member;
    member.widget = widget;
    member.kind = kind;
    m_members.insert(widget, member);
    widget->installEventFilter(m_support);
    if (QLineEdit *text = textOf(widget, kind)) {
        text->installEventFilter(m_support);
    }
    give(widget, m_features);
}

void OlvFormSupport::Private::release(QWidget *widget)
{
    const QPointer<QWidget> alive(widget);
    const Guard self(m_support);
    take(alive, m_features);
    const FormMember *member = self ? memberAt(alive) : nullptr;
    if (!member) {
        return;
    }
    alive->removeEventFilter(m_support);
    if (QLineEdit *text = textOf(alive, member->kind)) {
        text->removeEventFilter(m_support);
    }
    m_members.remove(widget);
}

void OlvFormSupport::Private::give(const QPointer<QWidget> &widget, Features features)
{
    const Guard self(m_support);
    FormMember *member = memberAt(widget);
    if (member && features.testFlag(NaturalSizes) && FormSizes::isLaidOut(widget)) {
        FormSizes::give(*member);
    }
    member = self ? memberAt(widget) : nullptr;
    if (member && features.testFlag(Keyboard)) {
        FormKeys::give(*member);
    }
    member = self ? memberAt(widget) : nullptr;
    if (member && features.testFlag(DisabledLook)) {
        ::DisabledLook::fit(*member);
    }
}

void OlvFormSupport::Private::take(const QPointer<QWidget> &widget, Features features)
{
    const Guard self(m_support);
    FormMember *member = memberAt(widget);
    if (member && features.testFlag(DisabledLook)) {
        ::DisabledLook::take(*member);
    }
    member = self ? memberAt(widget) : nullptr;
    if (member && features.testFlag(FocusRing)) {
        m_focus.leave(widget);
    }
    if (member && features.testFlag(Keyboard)) {
        m_keys.take(*member);
    }
    member = self ? memberAt(widget) : nullptr;
    if (member && features.testFlag(NaturalSizes)) {
        FormSizes::take(*member);
    }
}

QVector<QPointer<QWidget>> OlvFormSupport::Private::members() const
{
    QVector<QPointer<QWidget>> widgets;
    for (const FormMember &member : m_members) {
        if (member.widget) {
            widgets.append(member.widget);
        }
    }
    return widgets;
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
    const FormMember *member = memberAt(widget);
    const FormKind kind = member ? member->kind : FormKind::None;
    const Guard self(m_support);
    const QPointer<QObject> alive(watched);
    if (QWidget *edit = member ? nullptr : editAround(widget)) {
        handleInText(edit, event);
        return !alive;
    }
    if (member && handleInMember(widget, kind, event)) {
        event->accept(); // an ignored key goes on to the parent although it has been filtered out
        return true;
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
        if (m_features.testFlag(NaturalSizes)) {
            fitWidgetsIn(container);
        }
        break;
    default:
        break;
    }
}

bool OlvFormSupport::Private::handleInMember(QWidget *widget, FormKind kind, QEvent *event)
{
    const Guard self(m_support);
    const QPointer<QWidget> alive(widget);
    const bool mayHaveLeft = event->type() == QEvent::ParentChange || event->type() == QEvent::Show;
    if (mayHaveLeft && supportFor(widget) != m_support) {
        settle(widget);
        return false;
    }
    if (m_features.testFlag(NaturalSizes) && FormSizes::mayChange(event)
        && FormSizes::isLaidOut(widget)) {
        FormSizes::give(*memberAt(widget));
    }
    if (self && alive && event->type() == QEvent::EnabledChange
        && m_features.testFlag(DisabledLook)) {
        ::DisabledLook::fit(*memberAt(widget));
    }
    if (self && alive && m_features.testFlag(FocusRing)) {
        m_focus.handle(widget, kind, event);
    }
    if (!self || !alive || !m_features.testFlag(Keyboard) || !m_keys.handle(widget, kind, event)) {
        return false;
    }
    if (self && alive && m_features.testFlag(FocusRing)) {
        m_focus.noteKey(widget, kind);
    }
    return true;
}

void OlvFormSupport::Private::handleInText(QWidget *edit, QEvent *event)
{
    if (m_features.testFlag(FocusRing)) {
        m_focus.handle(edit, FormKind::LineEdit, event);
    }
}

void OlvFormSupport::Private::fitWidgetsIn(const QWidget *container)
{
    QVector<QPointer<QWidget>> widgets;
    const QWidgetList laidOut = FormSizes::laidOutIn(container);
    for (QWidget *widget : laidOut) {
        if (memberAt(widget)) {
            widgets.append(widget);
        }
    }
    const Guard self(m_support);
    for (const QPointer<QWidget> &widget : qAsConst(widgets)) {
        if (FormMember *member = self ? memberAt(widget) : nullptr) {
            FormSizes::give(*member);
        }
    }
}
