// SPDX-License-Identifier: MIT
#pragma once

#include "forms/formmember_p.h"

class QEvent;
class QFocusEvent;
class QKeyEvent;

/** The keyboard of a form: who takes the focus, and what the keys do there. */
class FormKeys
{
public:
    /** Lets a member take the focus, unless the application has decided on that. */
    static void give(FormMember &member);
    /** Takes that back, unless the application has changed it. */
    void take(FormMember &member);

    /**
     * Does what @p event, which came to @p widget, asks for; returns whether it is done with. The
     * widget may be gone then, and so may this.
     */
    bool handle(QWidget *widget, FormKind kind, QEvent *event);

private:
    bool pressKey(QWidget *widget, FormKind kind, const QKeyEvent &key);
    bool pressKeyOfButton(QWidget *button, const QKeyEvent &key);
    bool pressKeyOfSwitch(QWidget *widget, const QKeyEvent &key);
    bool releaseKey(QWidget *widget, FormKind kind, const QKeyEvent &key);
    void cancelPress();

    QPointer<QWidget> m_pressed;
    bool m_hasComeIn = false;    // the pointer that the press stands for
    bool m_capturesKeys = false; // a shortcut edit has seen a key go down
};
