// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessiblewidget_p.h"

/**
 * A widget that is clicked: a button, or where it is checkable a check box, as it is with Qt's own
 * buttons. It has the action "press", and "toggle" where it is checkable. Both are a click, since
 * that is what applications listen to.
 */
class AccessibleClickable : public AccessibleWidget
{
public:
    explicit AccessibleClickable(QWidget *widget);

    QAccessible::Role role() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

protected:
    /** Clicks the widget, which is there and enabled; a slot may delete it, and this with it. */
    virtual void click() = 0;
    /** For buttons that only the mouse clicks: sends what it sends, so that subclasses get it too.
     */
    void clickWithTheMouse();
};
