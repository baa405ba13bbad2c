// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/**
 * The events that a pointer sends when it clicks an OlvButton or an OlvIconButton, so that whatever
 * clicks one without a pointer goes the way that subclasses and event filters expect.
 */
namespace MouseClick {

/** Presses the button in its middle; returns whether the pointer had to come into it first. */
bool press(const QPointer<QWidget> &button);
/** Lets go, which clicks the button; then has the pointer go where it came from. */
void release(const QPointer<QWidget> &button, bool hasComeIn);
/** Takes a press back: lets go outside the button. */
void cancel(const QPointer<QWidget> &button, bool hasComeIn);

} // namespace MouseClick
