// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/**
 * What the widgets know of their accessibility: when to have Qt ask for their interfaces. The code
 * that makes the interfaces registers itself here, so that no widget depends on it.
 */
namespace Accessibility {

/**
 * Makes Qt ask this library for the interface of @p widget, also when it has made one of its own
 * already. Each class that has an interface here calls it in its constructor. It costs next to
 * nothing while accessibility is not active.
 */
void prepare(QWidget *widget);

/**
 * Has prepare() call @p install before all else: at each call, since Qt forgets what is installed
 * with each application object. Called once, when the library is loaded.
 */
void setInstaller(void (*install)());

} // namespace Accessibility
