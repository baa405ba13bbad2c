// SPDX-License-Identifier: MIT
#include "shortcutbackend_p.h"

#include "x11backend_p.h"

#include <QGuiApplication>

namespace {

// A plain pointer is never destroyed, so that a shortcut may read it however late the program
// destroys that shortcut.
ShortcutBackend *backend = nullptr;

} // namespace

ShortcutBackend::~ShortcutBackend()
{
    backend = nullptr;
}

ShortcutBackend *ShortcutBackend::instance()
{
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    // With DISPLAY set, a connection could be made on every platform, but the user presses keys on
    // that server only where the application's windows are on it.
    if (!backend && application && QGuiApplication::platformName() == QLatin1String("xcb")) {
        // It is a child of the application object, since it needs that object's event loop.
        backend = new X11Backend(application);
    }
    return backend;
}

ShortcutBackend *ShortcutBackend::existingInstance()
{
    return backend;
}
