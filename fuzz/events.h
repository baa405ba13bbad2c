// SPDX-License-Identifier: MIT
#pragma once

class Dice;
class QEvent;
class QObject;
class QWidget;

/** Events of every kind, sent as Qt would send them; the receiver may be gone after each. */
namespace Events {

/** Whether an event is one of these, and not one that Qt or the library sends. */
bool isSending(const QEvent &event);
/** Mouse, key, wheel, focus, enter and leave, timer, input method, drag and drop, changes. */
void sendAny(Dice &dice, QWidget *receiver);
/** The pointer comes in, presses and releases: what widgets take for a click. */
void click(Dice &dice, QWidget *receiver);
/** The pointer rests on the widget, so that Qt shows its tool tip, or hides another. */
void askForTip(Dice &dice, QWidget *receiver);
/** A timer event with the identifier of the receiver's timer, or any other. */
void sendTimer(Dice &dice, QObject *receiver);
/** Draws the widget into an image of any size, format and number of device pixels. */
void paint(Dice &dice, QWidget *widget);

} // namespace Events
