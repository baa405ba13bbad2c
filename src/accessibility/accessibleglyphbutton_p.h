// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessibleclickable_p.h"

/**
 * A push button whose caption is a glyph: an OlvSimpleIconButton, or a button of an OlvControlBar.
 * Its name is its tool tip rather than its caption.
 */
class AccessibleGlyphButton : public AccessibleClickable
{
public:
    explicit AccessibleGlyphButton(QWidget *button);

    QAccessible::State state() const override;

protected:
    QString ownName() const override;
    void click() override;
};
