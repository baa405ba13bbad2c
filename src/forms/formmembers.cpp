// SPDX-License-Identifier: MIT
#include "forms/formmembers_p.h"

#include <QLineEdit>

void FormMembers::insert(QWidget *widget, FormKind kind)
{
    FormMember member;
    member.widget = widget;
    member.kind = kind;
    m_members.insert(widget, member);
}

void FormMembers::remove(const QObject *widget)
{
    m_members.remove(widget);
}

FormMember *FormMembers::at(const QObject *widget)
{
    const auto found = m_members.find(widget);
    const bool isThere =
        found != m_members.end() && found->widget && isStill(found->widget, found->kind);
    return isThere ? &*found : nullptr;
}

QWidget *FormMembers::editAround(const QWidget *text)
{
    const FormMember *edit = at(text->parentWidget());
    return edit && textOf(edit->widget, edit->kind) == text ? edit->widget.data() : nullptr;
}

QVector<QPointer<QWidget>> FormMembers::widgets() const
{
    QVector<QPointer<QWidget>> widgets;
    for (const FormMember &member : m_members) {
        if (member.widget) {
            widgets.append(member.widget);
        }
    }
    return widgets;
}
