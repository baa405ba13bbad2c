// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessiblewidget_p.h"

/**
 * A widget that is clicked: a button, or a check box while it is checkable, like Qt's own buttons.
 * Its actions are "press" and, while it is checkable, "toggle"; both are a click, whose signals
 * applications are connected to.
 */
class AccessibleClickable : public AccessibleWidget
{
public:
    explicit AccessibleClickable(QWidget *widget);

    QAccessible::Role role() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

protected:
    /** Clicks the widget, which is alive and enabled; a slot may delete it, and this with it. */
    virtual void click() = 0;
    /** For buttons that only the mouse clicks: sends what it sends, so that subclasses get it too.
     */
    void clickWithTheMouse();
};
