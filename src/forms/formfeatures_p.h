// SPDX-License-Identifier: MIT
#pragma once

#include <OlvWidgets/forms.h>

#include "forms/formfocus_p.h"
#include "forms/formkeys_p.h"
#include "forms/formmembers_p.h"

class QEvent;

/**
 * What a support gives its members.
 *
 * Giving and taking send events: their receivers may delete the member, others, or the support
 * and this with it.
 */
class FormFeatures
{
public:
    FormFeatures(OlvFormSupport *support, FormMembers &members, OlvFormSupport::Features features);

    OlvFormSupport::Features features() const;
    /** Takes from each member what is left out of @p features, and gives it what is new. */
    void set(OlvFormSupport::Features features);

    /** Gives a member all that the form is given. */
    void give(const QPointer<QWidget> &widget);
    /** Takes that back. */
    void take(const QPointer<QWidget> &widget);
    /** Restores the tab order of members that lost the keyboard feature. */
    void restoreTabOrder();

    /** Does what @p event asks for that came to a member; returns whether it is done with. */
    bool handle(QWidget *widget, FormKind kind, QEvent *event);
    /** Does what @p event asks for that came to another widget in the form. */
    void handleInOther(QWidget *widget, const QEvent *event);
    /** Does what @p event asks for that came to @p text, the text of a line edit. */
    void handleInText(QWidget *edit, const QLineEdit *text, QEvent *event);
    /** Fits the sizes of the members that are laid out in @p container. */
    void fitSizesIn(const QWidget *container);

private:
    Q_DISABLE_COPY(FormFeatures)
    using Feature = OlvFormSupport::Feature;
    using Features = OlvFormSupport::Features;
    using Guard = QPointer<OlvFormSupport>;

    void give(const QPointer<QWidget> &widget, Features features);
    void take(const QPointer<QWidget> &widget, Features features);
    void fit(const QPointer<QWidget> &widget, const QEvent *event);
    void fitTexts(const QPointer<QWidget> &widget);
    void fitTextsLater(const QPointer<QWidget> &widget);

    OlvFormSupport *const m_support;
    FormMembers &m_members;
    Features m_features;
    FormKeys m_keys;
    FormFocus m_focus;
};
