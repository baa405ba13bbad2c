// SPDX-License-Identifier: MIT
#pragma once

#include <OlvButton>

/** Adds a button to a form. */
inline OlvButton *addButton(QWidget *parent)
{
    return new OlvButton(QStringLiteral("Save"), parent);
}

/** A button takes the focus where a support serves it, and nowhere else. */
inline bool isServed(const QWidget &button)
{
    return button.focusPolicy() != Qt::NoFocus;
}
