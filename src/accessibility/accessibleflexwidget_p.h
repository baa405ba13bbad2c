// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessiblewidget_p.h"

/** An OlvFlexWidget: a window, or a pane within one. */
class AccessibleFlexWidget : public AccessibleWidget
{
public:
    explicit AccessibleFlexWidget(QWidget *panel);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;

protected:
    QString ownName() const override;
};
