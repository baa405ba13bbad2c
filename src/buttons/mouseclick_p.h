// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/**
 * The events that a pointer sends when it clicks an OlvButton or an OlvIconButton, so that
 * subclasses and event filters get the same events from a click without a pointer.
 */
namespace MouseClick {

/** Presses the button in its middle; returns whether the pointer had to come into it first. */
bool press(const QPointer<QWidget> &button);
/** Releases inside, which clicks the button; then sends the leave event if press() sent an enter.
 */
void release(const QPointer<QWidget> &button, bool hasComeIn);
/** Cancels a press: releases outside the button. */
void cancel(const QPointer<QWidget> &button, bool hasComeIn);

} // namespace MouseClick
