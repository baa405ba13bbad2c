// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/** What the widgets know of their accessibility. */
namespace Accessibility {

/**
 * Makes Qt ask this library for the interface of @p widget, also when it has made one of its own
 * already. Each class that has an interface here calls it in its constructor. It costs next to
 * nothing while nobody looks.
 */
void prepare(QWidget *widget);

/** Has Qt ask again for the interface of @p widget, which may have made another one already. */
void renew(QWidget *widget);

} // namespace Accessibility
