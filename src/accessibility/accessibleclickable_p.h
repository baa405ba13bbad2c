// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessiblewidget_p.h"

/**
 * A widget that is clicked: it has the action "press", and "toggle" where it is checkable. Both are
 * a click, since that is what applications listen to.
 */
class AccessibleClickable : public AccessibleWidget
{
public:
    using AccessibleWidget::AccessibleWidget;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;

protected:
    /** Clicks the widget, which is there and enabled; a slot may delete it, and this with it. */
    virtual void click() = 0;
};
