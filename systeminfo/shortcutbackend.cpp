// SPDX-License-Identifier: MIT
#include "shortcutbackend_p.h"

#include "x11backend_p.h"

#include <QGuiApplication>
#include <QThread>

namespace {

using Lock = std::lock_guard<std::mutex>;

// Made by the first registration and deleted with the application object. A plain pointer is never
// destroyed, so a shortcut that outlives the statics of this library can still read it.
ShortcutBackend *backend = nullptr;

} // namespace

bool ShortcutBackend::registerShortcut(OlvShortcut *shortcut, Qt::Key key,
                                       Qt::KeyboardModifiers modifiers)
{
    const Lock lock(mutex());
    ShortcutBackend *registrar = instanceOfThisThread();
    return registrar && registrar->grab(shortcut, key, modifiers);
}

void ShortcutBackend::unregisterShortcut(OlvShortcut *shortcut)
{
    const Lock lock(mutex());
    if (backend) {
        backend->release(shortcut);
    }
}

ShortcutBackend::~ShortcutBackend() = default;

std::mutex &ShortcutBackend::mutex()
{
    static auto *const mutex = new std::mutex;
    return *mutex;
}

void ShortcutBackend::withdraw()
{
    const Lock lock(mutex());
    backend = nullptr;
}

/** Null in every thread but the application's, and where there is no desktop for shortcuts. */
ShortcutBackend *ShortcutBackend::instanceOfThisThread()
{
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application || application->thread() != QThread::currentThread()) {
        return nullptr;
    }
    // With DISPLAY set, a connection could be made on every platform, but the user presses keys on
    // that server only where the application's windows are on it.
    if (!backend && QGuiApplication::platformName() == QLatin1String("xcb")) {
        // It is a child of the application object, since it needs that object's event loop.
        backend = new X11Backend(application);
    }
    return backend;
}
