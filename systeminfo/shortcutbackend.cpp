// SPDX-License-Identifier: MIT
#include "shortcutbackend_p.h"

#include "x11backend_p.h"

#include <QGuiApplication>

namespace {

// Made for the first shortcut, gone with the application object, whose event loop it needs.
ShortcutBackend *backend = nullptr;

void deleteBackend()
{
    delete backend;
    backend = nullptr;
}

} // namespace

ShortcutBackend::~ShortcutBackend() = default;

ShortcutBackend *ShortcutBackend::instance()
{
    // With DISPLAY set, a connection could be made on every platform: only where the windows are on
    // that server does the user press keys there.
    if (!backend && qobject_cast<QGuiApplication *>(QCoreApplication::instance())
        && QGuiApplication::platformName() == QLatin1String("xcb")) {
        backend = new X11Backend;
        qAddPostRoutine(deleteBackend);
    }
    return backend;
}

ShortcutBackend *ShortcutBackend::existingInstance()
{
    return backend;
}
