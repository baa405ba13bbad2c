// SPDX-License-Identifier: MIT
#pragma once

#include "forms/formmember_p.h"

#include <QHash>
#include <QVector>

/** The widgets that a support serves. */
class FormMembers
{
public:
    void insert(QWidget *widget, FormKind kind);
    void remove(const QObject *widget);

    /** The member that @p widget is; null for other widgets, and once its destructor has run. */
    FormMember *at(const QObject *widget);
    /** The line edit among the members that @p text is the text of; null for other widgets. */
    QWidget *editAround(const QWidget *text);
    QVector<QPointer<QWidget>> widgets() const;

private:
    QHash<const QObject *, FormMember> m_members;
};
