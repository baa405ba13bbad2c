// SPDX-License-Identifier: MIT
#pragma once

#include "forms/focusring_p.h"
#include "forms/formmember_p.h"

class QEvent;

/**
 * Shows a ring around the member that has the focus, when the keyboard brought it there or has been
 * used there since.
 */
class FormFocus
{
public:
    FormFocus() = default;
    ~FormFocus();

    /** Follows the focus: @p event came to @p widget, or to the text of a line edit. */
    void handle(QWidget *widget, FormKind kind, const QEvent *event);
    /** The keyboard has been used on @p widget. */
    void noteKey(QWidget *widget, FormKind kind);
    /** Takes the ring away from @p widget. */
    void leave(const QWidget *widget);

private:
    Q_DISABLE_COPY(FormFocus)

    void follow(QWidget *widget, FormKind kind, Qt::FocusReason reason);
    void surround(QWidget *widget, FormKind kind);

    QPointer<FocusRing> m_ring;    ///< goes with the window that it lies in
    QPointer<QWidget> m_suspended; ///< had the ring when its window lost the focus
};
