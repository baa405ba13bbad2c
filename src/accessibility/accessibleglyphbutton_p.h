// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessibleclickable_p.h"

class QPushButton;

/**
 * A push button whose caption is a glyph: an OlvSimpleIconButton, or a button of an OlvControlBar.
 * Its name is its tool tip rather than its caption; all else is as with other push buttons.
 */
class AccessibleGlyphButton : public AccessibleClickable
{
public:
    explicit AccessibleGlyphButton(QWidget *widget);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

protected:
    QString ownName() const override;
    void click() override;

private:
    QPushButton *button() const;
    bool hasMenu() const;
};
