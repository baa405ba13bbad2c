// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/forms.h>

#include "forms/formfeatures_p.h"
#include "forms/formmembers_p.h"

#include <QEvent>
#include <QPointer>
#include <QVector>

/**
 * The members of a form, and the events that change who is one.
 *
 * A form consists of its members, which are widgets of the library, and of the widgets that hold
 * others; the support filters the events of all of them. Nothing is connected to them: that a
 * member is deleted is an event, too.
 */
class Q_DECL_HIDDEN OlvFormSupport::Private
{
public:
    Private(OlvFormSupport *support, QWidget *form, Features features);

    Features features() const;
    void setFeatures(Features features);
    bool handle(QObject *watched, QEvent *event);
    /** Undoes everything; the last thing that is called. */
    void leave();

    /** Has every widget from @p root on served by the support that it belongs to now. */
    static void settle(QWidget *root);

private:
    using Guard = QPointer<OlvFormSupport>;

    static OlvFormSupport *supportFor(const QWidget *widget);
    static QVector<QPointer<QWidget>> widgetsFrom(QWidget *root);
    static void settleOne(QWidget *widget);

    void adopt(QWidget *widget);
    void release(QWidget *widget);

    void handleInContainer(QWidget *container, QEvent *event);
    bool handleInMember(QWidget *widget, FormKind kind, QEvent *event);

    OlvFormSupport *const m_support;
    const QPointer<QWidget> m_form;
    FormMembers m_members;
    FormFeatures m_given;
};
