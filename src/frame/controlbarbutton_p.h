// SPDX-License-Identifier: MIT
#pragma once

#include "support/accessibility_p.h"

#include <QPushButton>

/**
 * A button of an OlvControlBar, which accessibility tells from other buttons by this class. It has
 * no meta-object of its own: style sheets and programs go on to find a QPushButton.
 */
class ControlBarButton : public QPushButton
{
public:
    explicit ControlBarButton(QWidget *bar)
        : QPushButton(bar)
    {
        Accessibility::prepare(this);
    }
};
