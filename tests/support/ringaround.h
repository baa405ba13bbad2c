// SPDX-License-Identifier: MIT
#pragma once

#include <QFocusFrame>
#include <QWidget>

/** The ring that a form support shows in @p window; null before the first time. */
inline QFocusFrame *ringIn(const QWidget &window)
{
    return window.findChild<QFocusFrame *>();
}

inline bool hasRing(const QWidget &window)
{
    const QFocusFrame *ring = ringIn(window);
    return ring && ring->isVisible();
}

/** Brings the focus again, as Tab does it: the only widget that takes it has it from the start. */
inline void tabTo(QWidget *widget)
{
    widget->clearFocus();
    widget->setFocus(Qt::TabFocusReason);
}
