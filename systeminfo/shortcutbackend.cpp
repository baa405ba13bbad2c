// SPDX-License-Identifier: MIT
#include "shortcutbackend_p.h"

#ifdef OLV_HAS_PORTAL_SHORTCUTS
#include "portalbackend_p.h"
#endif
#ifdef OLV_HAS_X11_SHORTCUTS
#include "x11backend_p.h"
#endif

#include <QGuiApplication>
#include <QThread>

namespace {

using Lock = std::lock_guard<std::mutex>;

// Made by the first registration and deleted with the application object. A plain pointer is never
// destroyed, so a shortcut that outlives the statics of this library can still read it.
ShortcutBackend *backend = nullptr;

/**
 * What suits the desktop that the application's windows are on; null for none. It is a child of
 * @p application, since it needs that object's event loop.
 */
ShortcutBackend *makeBackend(QGuiApplication *application)
{
    Q_UNUSED(application)
    // With DISPLAY set, a connection could be made on every platform, but the user presses keys on
    // that server only where the application's windows are on it.
    const QString platform = QGuiApplication::platformName();
    const bool isX11 = platform == QLatin1String("xcb");
#ifdef OLV_HAS_X11_SHORTCUTS
    // A server for X11 programs on Wayland grants shortcuts, but has no keys while a window of
    // another kind has the focus.
    if (isX11 && !X11Backend::isOnWayland()) {
        return new X11Backend(application);
    }
#endif
#ifdef OLV_HAS_PORTAL_SHORTCUTS
    if (isX11 || platform.startsWith(QLatin1String("wayland"))) {
        return new PortalBackend(application);
    }
#endif
    Q_UNUSED(isX11)
    return nullptr;
}

} // namespace

bool ShortcutBackend::registerShortcut(OlvShortcut *shortcut,
                                       const ShortcutCombination &combination)
{
    const Lock lock(mutex());
    ShortcutBackend *registrar = instanceOfThisThread();
    return registrar && registrar->grab(shortcut, combination);
}

void ShortcutBackend::unregisterShortcut(OlvShortcut *shortcut)
{
    const Lock lock(mutex());
    if (backend) {
        backend->release(shortcut);
    }
}

OlvShortcut::State ShortcutBackend::stateOf(const OlvShortcut *shortcut)
{
    const Lock lock(mutex());
    return backend ? backend->state(const_cast<OlvShortcut *>(shortcut)) : OlvShortcut::Inactive;
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
    if (!backend) {
        backend = makeBackend(application);
    }
    return backend;
}
