// SPDX-License-Identifier: MIT
#include "x11backend_p.h"

#include <OlvSystemInfo/shortcut.h>

#include <QSocketNotifier>

#include <cstdlib>

namespace {

/** The event's type without the bit that marks it as sent by another program. */
int typeOf(const xcb_generic_event_t *event)
{
    return event->response_type & 0x7f;
}

} // namespace

X11Backend::X11Backend(QObject *parent)
    : QObject(parent)
    , m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection)) {
        return;
    }
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    m_keymap = std::make_unique<X11Keymap>(m_connection);
    m_locks = m_keymap->lockCombinations();
    m_notifier =
        new QSocketNotifier(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] { readEvents(); });
}

X11Backend::~X11Backend()
{
    m_keymap.reset();
    delete m_notifier;
    xcb_disconnect(m_connection);
}

bool X11Backend::grab(OlvShortcut *shortcut, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (!isAlive()) {
        return false;
    }
    const auto registered = m_registrations.constFind(shortcut);
    if (registered != m_registrations.cend() && !registered->keys.isEmpty()) {
        return true;
    }
    const QVector<X11Key> keys = m_keymap->keysOf(key, modifiers);
    readEventsSoon();
    // The server would grant this connection the same keys again, and letting go of either would
    // let go of both.
    if (keys.isEmpty() || !isFree(keys) || !grabKeys(keys)) {
        return false;
    }
    m_registrations.insert(shortcut, { key, modifiers, keys });
    return true;
}

void X11Backend::release(OlvShortcut *shortcut)
{
    const Registration registration = m_registrations.take(shortcut);
    if (!registration.keys.isEmpty() && isAlive()) {
        ungrabKeys(registration.keys);
        readEventsSoon();
    }
}

bool X11Backend::isAlive()
{
    if (!m_notifier) {
        return false;
    }
    if (xcb_connection_has_error(m_connection)) {
        m_notifier->setEnabled(false);
        return false;
    }
    return true;
}

bool X11Backend::grabKeys(const QVector<X11Key> &keys)
{
    QVector<xcb_void_cookie_t> cookies;
    for (const X11Key key : keys) {
        for (const quint16 lock : qAsConst(m_locks)) {
            cookies.append(xcb_grab_key_checked(m_connection, 0, m_root, key.modifiers | lock,
                                                key.code, XCB_GRAB_MODE_ASYNC,
                                                XCB_GRAB_MODE_ASYNC));
        }
    }
    bool granted = true;
    for (const xcb_void_cookie_t cookie : qAsConst(cookies)) {
        if (xcb_generic_error_t *error = xcb_request_check(m_connection, cookie)) {
            granted = false;
            std::free(error);
        }
    }
    if (!granted) {
        ungrabKeys(keys);
    }
    return granted && isAlive();
}

void X11Backend::ungrabKeys(const QVector<X11Key> &keys)
{
    for (const X11Key key : keys) {
        for (const quint16 lock : qAsConst(m_locks)) {
            xcb_ungrab_key(m_connection, key.code, m_root, key.modifiers | lock);
        }
    }
    xcb_flush(m_connection);
}

bool X11Backend::isFree(const QVector<X11Key> &keys) const
{
    for (const X11Key key : keys) {
        if (holderOf(key)) {
            return false;
        }
    }
    return true;
}

OlvShortcut *X11Backend::holderOf(X11Key key) const
{
    for (auto it = m_registrations.cbegin(); it != m_registrations.cend(); ++it) {
        if (it->keys.contains(key)) {
            return it.key();
        }
    }
    return nullptr;
}

void X11Backend::readEventsSoon()
{
    // Sending a request and waiting for a reply also move the events that have arrived from the
    // socket to the queue of the connection, and the notifier only watches the socket.
    QMetaObject::invokeMethod(
        this, [this] { readEvents(); }, Qt::QueuedConnection);
}

void X11Backend::readEvents()
{
    Activations activations;
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
        handleEvent(event, &activations);
        std::free(event);
    }
    if (!isAlive()) {
        return;
    }
    // once for the hundreds of notices that a single change may bring
    if (m_mappingChanged) {
        m_mappingChanged = false;
        followMapping();
        readEventsSoon();
    }
    for (const QPointer<OlvShortcut> &shortcut : qAsConst(activations)) {
        if (shortcut) {
            Q_EMIT shortcut->activated();
        }
    }
}

void X11Backend::handleEvent(const xcb_generic_event_t *event, Activations *activations)
{
    switch (typeOf(event)) {
    case XCB_KEY_PRESS:
        handlePress(reinterpret_cast<const xcb_key_press_event_t *>(event), activations);
        break;
    case XCB_KEY_RELEASE: {
        const auto *release = reinterpret_cast<const xcb_key_release_event_t *>(event);
        m_releasedCode = release->detail;
        m_releaseTime = release->time;
        break;
    }
    case XCB_MAPPING_NOTIFY:
        m_mappingChanged = true;
        break;
    default:
        break;
    }
}

void X11Backend::handlePress(const xcb_key_press_event_t *press, Activations *activations)
{
    // The press has given this connection the whole keyboard. It is handed back before anybody
    // hears of the press: no other key is swallowed then, and the focus stays.
    const xcb_void_cookie_t cookie = xcb_ungrab_keyboard_checked(m_connection, XCB_CURRENT_TIME);
    std::free(xcb_request_check(m_connection, cookie));

    // A key that repeats is told as released and pressed at the same time.
    if (press->detail == m_releasedCode && press->time == m_releaseTime) {
        return;
    }
    const X11Key key{ press->detail, m_keymap->withoutLocks(press->state) };
    if (OlvShortcut *shortcut = holderOf(key)) {
        activations->append(shortcut);
    }
}

void X11Backend::followMapping()
{
    m_keymap = std::make_unique<X11Keymap>(m_connection);
    const QVector<quint16> locks = m_keymap->lockCombinations();
    // All that move let go before any takes: a key may go from one combination to another.
    QVector<OlvShortcut *> moved;
    for (auto it = m_registrations.begin(); it != m_registrations.end(); ++it) {
        if (locks != m_locks || it->keys != m_keymap->keysOf(it->key, it->modifiers)) {
            ungrabKeys(it->keys);
            it->keys.clear();
            moved.append(it.key());
        }
    }
    m_locks = locks;
    for (OlvShortcut *shortcut : qAsConst(moved)) {
        Registration &registration = m_registrations[shortcut];
        const QVector<X11Key> keys = m_keymap->keysOf(registration.key, registration.modifiers);
        if (isFree(keys) && grabKeys(keys)) {
            registration.keys = keys;
        }
    }
}
