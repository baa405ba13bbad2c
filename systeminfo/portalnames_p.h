// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <Qt>

/**
 * The combination as the portal takes it, with the name that keyboard layouts have for the key:
 * "CTRL+SHIFT+a". Empty for what cannot be a shortcut.
 */
QString portalTrigger(Qt::Key key, Qt::KeyboardModifiers modifiers);

/**
 * A name for the portal that is the same in every run of the program, so that the desktop can
 * remember what its user has chosen for it: that of the program and @p text, with an underscore for
 * everything that the portal does not allow.
 */
QString portalName(const QString &text);
