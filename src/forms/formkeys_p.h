// SPDX-License-Identifier: MIT
#pragma once

#include "forms/formmember_p.h"
#include "forms/taborder_p.h"

class QEvent;
class QFocusEvent;
class QKeyEvent;

/** The keyboard of a form: who takes the focus, and what the keys do there. */
class FormKeys
{
public:
    /** Lets a member take the focus, unless the application has decided on that. */
    void give(FormMember &member);
    /** Takes that back, unless the application has changed it. */
    void take(FormMember &member);
    /** Restores the order of the tabs, once it has been taken from those that are to lose it. */
    void restoreTabOrder();

    /**
     * Does what @p event, which came to @p widget, asks for; returns whether it is done with. The
     * widget may be gone then, and so may this.
     */
    bool handle(QWidget *widget, FormKind kind, QEvent *event);

private:
    void giveText(FormMember &member, OlvLineEdit *edit);
    bool pressKey(QWidget *widget, FormKind kind, const QKeyEvent &key);
    bool pressKeyOfButton(QWidget *button, const QKeyEvent &key);
    bool pressKeyOfSwitch(QWidget *widget, const QKeyEvent &key);
    bool releaseKey(QWidget *widget, FormKind kind, const QKeyEvent &key);
    void cancelPress();

    TabOrder m_tabOrder;
    QPointer<QWidget> m_pressed;
    bool m_hasComeIn = false;    // the pointer that the press stands for
    bool m_capturesKeys = false; // a shortcut edit has seen a key go down
};
