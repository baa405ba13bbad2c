// SPDX-License-Identifier: MIT
#pragma once

class Dice;
class QObject;
class QWidget;

/** Events of every kind, sent as Qt would send them; the receiver may be gone after each. */
namespace Events {

/** Mouse, key, wheel, focus, enter and leave, timer, input method, drag and drop, changes. */
void sendAny(Dice &dice, QWidget *receiver);
/** The pointer comes in, presses and releases: what widgets take for a click. */
void click(Dice &dice, QWidget *receiver);
/** The pointer rests on it: what has Qt show its tool tip, or hide the one that is shown. */
void askForTip(Dice &dice, QWidget *receiver);
/** A timer's event, with the identity of one of the receiver's timers, or any other. */
void sendTimer(Dice &dice, QObject *receiver);
/** Draws the widget into an image of any size, format and number of device pixels. */
void paint(Dice &dice, QWidget *widget);

} // namespace Events
