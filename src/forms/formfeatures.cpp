// SPDX-License-Identifier: MIT
#include "forms/formfeatures_p.h"

#include "forms/disabledlook_p.h"
#include "forms/formgrid_p.h"
#include "forms/formsizes_p.h"
#include "forms/mirroring_p.h"
#include "forms/readabletext_p.h"

#include <QEvent>

FormFeatures::FormFeatures(OlvFormSupport *support, FormMembers &members, Features features)
    : m_support(support)
    , m_members(members)
    , m_features(features)
{ }

OlvFormSupport::Features FormFeatures::features() const
{
    return m_features;
}

void FormFeatures::set(Features features)
{
    const Features added = features & ~m_features;
    const Features removed = m_features & ~features;
    m_features = features;
    const Guard self(m_support);
    const QVector<QPointer<QWidget>> all = m_members.widgets();
    for (const QPointer<QWidget> &widget : all) {
        if (self) {
            take(widget, removed);
        }
        if (self) {
            give(widget, added);
        }
        if (self) {
            fitTexts(widget); // whether they are faded may have changed
        }
    }
    if (self) {
        restoreTabOrder();
    }
}

void FormFeatures::give(const QPointer<QWidget> &widget)
{
    give(widget, m_features);
}

void FormFeatures::take(const QPointer<QWidget> &widget)
{
    take(widget, m_features);
}

void FormFeatures::restoreTabOrder()
{
    m_keys.restoreTabOrder();
}

void FormFeatures::give(const QPointer<QWidget> &widget, Features features)
{
    const Guard self(m_support);
    FormMember *member = m_members.at(widget);
    if (member && features.testFlag(Feature::NaturalSizes) && FormSizes::isLaidOut(widget)) {
        FormSizes::give(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::Keyboard)) {
        m_keys.give(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::DisabledLook)) {
        DisabledLook::fit(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::Mirroring)) {
        Mirroring::fit(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::ReadableText)) {
        member->hasReadableText = true;
        fitTexts(widget);
    }
}

void FormFeatures::take(const QPointer<QWidget> &widget, Features features)
{
    const Guard self(m_support);
    FormMember *member = m_members.at(widget);
    if (member && features.testFlag(Feature::ReadableText)) {
        member->hasReadableText = false;
        ReadableText::take(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::Mirroring)) {
        Mirroring::take(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::DisabledLook)) {
        DisabledLook::take(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::FocusRing)) {
        m_focus.leave(widget);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::Keyboard)) {
        m_keys.take(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && features.testFlag(Feature::NaturalSizes)) {
        FormSizes::take(*member);
    }
}

bool FormFeatures::handle(QWidget *widget, FormKind kind, QEvent *event)
{
    const Guard self(m_support);
    const QPointer<QWidget> alive(widget);
    fit(alive, event);
    if (self && alive && m_features.testFlag(Feature::FocusRing)) {
        m_focus.handle(widget, kind, event);
    }
    if (self && alive && m_features.testFlag(Feature::Keyboard)) {
        FormGrid::follow(alive, event);
    }
    if (!self || !alive || !m_features.testFlag(Feature::Keyboard)
        || !m_keys.handle(widget, kind, event)) {
        return false;
    }
    if (self && alive && m_features.testFlag(Feature::FocusRing)) {
        m_focus.noteKey(widget, kind);
    }
    return true;
}

/** Keeps up with what changes in a member. */
void FormFeatures::fit(const QPointer<QWidget> &widget, const QEvent *event)
{
    const Guard self(m_support);
    if (m_features.testFlag(Feature::NaturalSizes) && FormSizes::mayChange(event)
        && FormSizes::isLaidOut(widget)) {
        FormSizes::give(*m_members.at(widget));
    }
    FormMember *member = self ? m_members.at(widget) : nullptr;
    if (member && event->type() == QEvent::EnabledChange
        && m_features.testFlag(Feature::DisabledLook)) {
        DisabledLook::fit(*member);
    }
    member = self ? m_members.at(widget) : nullptr;
    if (member && event->type() == QEvent::LayoutDirectionChange
        && m_features.testFlag(Feature::Mirroring)) {
        Mirroring::fit(*member);
    }
    if (self && ReadableText::mayChange(event)) {
        fitTexts(widget);
    }
}

void FormFeatures::fitTexts(const QPointer<QWidget> &widget)
{
    FormMember *member = m_members.at(widget);
    if (member && member->hasReadableText) {
        ReadableText::fit(
            *member, m_features.testFlag(Feature::DisabledLook) && DisabledLook::fades(*member));
    }
}

void FormFeatures::fitTextsLater(const QPointer<QWidget> &widget)
{
    QMetaObject::invokeMethod(
        m_support, [=] { fitTexts(widget); }, Qt::QueuedConnection);
}

void FormFeatures::handleInOther(QWidget *widget, const QEvent *event)
{
    if (m_features.testFlag(Feature::Keyboard)) {
        FormGrid::follow(widget, event);
    }
}

void FormFeatures::handleInText(QWidget *edit, const QLineEdit *text, QEvent *event)
{
    const Guard self(m_support);
    const QPointer<QWidget> alive(edit);
    switch (event->type()) {
    case QEvent::PaletteChange:
        if (ReadableText::isRestored(*m_members.at(edit), text)) {
            fitTextsLater(edit);
        } else {
            fitTexts(edit);
        }
        break;
    case QEvent::Show: // has a style by now
    case QEvent::StyleChange:
        fitTexts(edit);
        break;
    default:
        break;
    }
    if (self && alive && m_features.testFlag(Feature::FocusRing)) {
        m_focus.handle(edit, FormKind::LineEdit, event);
    }
    if (self && alive && m_features.testFlag(Feature::Keyboard)) {
        FormGrid::follow(edit, event);
    }
}

void FormFeatures::fitSizesIn(const QWidget *container)
{
    if (!m_features.testFlag(Feature::NaturalSizes)) {
        return;
    }
    QVector<QPointer<QWidget>> widgets;
    const QWidgetList laidOut = FormSizes::laidOutIn(container);
    for (QWidget *widget : laidOut) {
        if (m_members.at(widget)) {
            widgets.append(widget);
        }
    }
    const Guard self(m_support);
    for (const QPointer<QWidget> &widget : qAsConst(widgets)) {
        if (FormMember *member = self ? m_members.at(widget) : nullptr) {
            FormSizes::give(*member);
        }
    }
}
