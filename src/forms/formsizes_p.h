// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QEvent;
struct FormMember;

/** Natural sizes: what layouts get to know of the widgets of a form. */
namespace FormSizes {

/** Whether a layout or a splitter gives @p widget its size; an application gives it to others. */
bool isLaidOut(const QWidget *widget);
/** The widgets that the layouts of @p container, or a splitter, give their sizes. */
QWidgetList laidOutIn(const QWidget *container);

/**
 * Gives a member, which is laid out, its natural size as its minimum size, and a size policy, as
 * far as the application has set neither; gives it again when it has changed. The member may have
 * been deleted afterwards.
 */
void give(FormMember &member);
/**
 * Takes back what was given, unless the application has changed it. The member may have been
 * deleted afterwards.
 */
void take(FormMember &member);
/** Whether @p event, which came to a member, may have changed its natural size. */
bool mayChange(const QEvent *event);

} // namespace FormSizes
