// SPDX-License-Identifier: MIT
#include "x11backend_p.h"

#include "xcbxkb_p.h"

#include <OlvSystemInfo/shortcut.h>

#include <QGuiApplication>
#include <QScreen>
#include <QSocketNotifier>

#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

/** The event's type without the bit that says that another program has sent the event. */
int typeOf(const xcb_generic_event_t *event)
{
    return event->response_type & 0x7f;
}

} // namespace

X11Backend::X11Backend(QObject *parent)
    : QObject(parent)
    , m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection) || !setUpKeyboard()) {
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
    withdraw();
    m_keymap.reset();
    delete m_notifier;
    xcb_disconnect(m_connection);
}

bool X11Backend::isOnWayland()
{
    // Older ones have no extension that tells, but name their screens "XWAYLAND0" and so on.
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (screen && screen->name().startsWith(QLatin1String("XWAYLAND"))) {
        return true;
    }
    constexpr char extension[] = "XWAYLAND";
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    xcb_query_extension_reply_t *reply = xcb_query_extension_reply(
        connection,
        xcb_query_extension(connection, sizeof extension - 1, static_cast<const char *>(extension)),
        nullptr);
    const bool isPresent = reply && reply->present;
    std::free(reply);
    xcb_disconnect(connection);
    return isPresent;
}

bool X11Backend::grab(OlvShortcut *shortcut, const ShortcutCombination &combination)
{
    if (!isAlive()) {
        return false;
    }
    const auto registered = m_registrations.constFind(shortcut);
    if (registered != m_registrations.cend() && !registered->keys.isEmpty()) {
        return true;
    }
    const QVector<X11Key> keys = m_keymap->find(combination.key, combination.modifiers).keys;
    readEventsSoon();
    // The server would grant this connection the same keys again, and releasing either grab would
    // release both.
    if (keys.isEmpty() || !isFree(keys) || !grabKeys(keys)) {
        return false;
    }
    m_registrations.insert(shortcut, { combination.key, combination.modifiers, keys });
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

OlvShortcut::State X11Backend::state(OlvShortcut *shortcut) const
{
    const auto registered = m_registrations.constFind(shortcut);
    const bool isGrabbed =
        registered != m_registrations.cend() && !registered->keys.isEmpty() && isAlive();
    return isGrabbed ? OlvShortcut::Active : OlvShortcut::Inactive;
}

/** Has the server tell of changes of the keyboard's mapping and of its group. */
bool X11Backend::setUpKeyboard()
{
    if (!xkb_x11_setup_xkb_extension(
            m_connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
            XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, &m_keyboardEvent, nullptr)) {
        return false;
    }
    constexpr quint16 events = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY
        | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    constexpr quint16 mapParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS
        | XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_VIRTUAL_MODS
        | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    xcb_xkb_select_events_details_t details = {};
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.affectState = XCB_XKB_STATE_PART_GROUP_STATE;
    details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(m_connection, XCB_XKB_ID_USE_CORE_KBD, events, 0, 0, mapParts,
                              mapParts, &details);
    // Without this flag, key events have an extra modifier while a held key sets the group.
    constexpr quint32 flags = XCB_XKB_PER_CLIENT_FLAG_GRABS_USE_XKB_STATE;
    std::free(xcb_xkb_per_client_flags_reply(
        m_connection,
        xcb_xkb_per_client_flags(m_connection, XCB_XKB_ID_USE_CORE_KBD, flags, flags, 0, 0, 0),
        nullptr));
    return true;
}

bool X11Backend::isAlive() const
{
    return m_notifier && !xcb_connection_has_error(m_connection);
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
    const Activations activations = takeActivations();
    for (const QPointer<OlvShortcut> &shortcut : activations) {
        if (shortcut) {
            Q_EMIT shortcut->activated();
        }
    }
}

/** Handles the events that have arrived; returns the shortcuts of this thread that were pressed. */
X11Backend::Activations X11Backend::takeActivations()
{
    const std::lock_guard<std::mutex> lock(mutex());
    Activations activations;
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
        handleEvent(event, &activations);
        std::free(event);
    }
    if (!isAlive()) {
        // A closed socket is always readable, so the notifier would keep the event loop busy.
        m_notifier->setEnabled(false);
    } else if (m_mappingChanged) {
        // A single change may bring hundreds of events, so the mapping is read after the last one.
        m_mappingChanged = false;
        followMapping();
        readEventsSoon();
    }
    return activations;
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
        if (typeOf(event) == m_keyboardEvent) {
            handleKeyboardChange(event);
        }
        break;
    }
}

void X11Backend::handleKeyboardChange(const xcb_generic_event_t *event)
{
    // The second byte of every event of the extension is the kind of event.
    if (event->pad0 != XCB_XKB_STATE_NOTIFY) {
        m_mappingChanged = true;
        return;
    }
    const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
    m_keymap->setGroup(state->group);
    // Presses that are behind this event in the queue were made in the new group.
    moveRegistrations();
}

void X11Backend::handlePress(const xcb_key_press_event_t *press, Activations *activations)
{
    // The press has grabbed the whole keyboard for this connection. It is released before the
    // signal is emitted, so that other keys reach the window that has the focus.
    const xcb_void_cookie_t cookie = xcb_ungrab_keyboard_checked(m_connection, XCB_CURRENT_TIME);
    std::free(xcb_request_check(m_connection, cookie));

    // A held key that repeats is reported as released and pressed at the same time.
    if (press->detail == m_releasedCode && press->time == m_releaseTime) {
        return;
    }
    const X11Key key{ press->detail, m_keymap->withoutLocks(press->state) };
    OlvShortcut *shortcut = holderOf(key);
    if (!shortcut) {
        return;
    }
    if (shortcut->thread() == thread()) {
        activations->append(shortcut);
    } else {
        // Its thread may destroy it as soon as the mutex is unlocked; Qt then drops a queued call.
        QMetaObject::invokeMethod(shortcut, &OlvShortcut::activated, Qt::QueuedConnection);
    }
}

void X11Backend::followMapping()
{
    m_keymap = std::make_unique<X11Keymap>(m_connection);
    moveRegistrations();
}

/** Grabs the keys of the combinations that are on other keys than before. */
void X11Backend::moveRegistrations()
{
    struct Move
    {
        Registration *registration;
        X11Keymap::Match match;
    };
    std::vector<Move> moves;
    const QVector<quint16> locks = m_keymap->lockCombinations();
    // All keys are released before any is grabbed, since one may pass from one combination to
    // another.
    for (Registration &registration : m_registrations) {
        const X11Keymap::Match match = m_keymap->find(registration.key, registration.modifiers);
        // One that has its keys from another group releases them too, since a symbol of the group
        // in effect may need them.
        if (locks != m_locks || registration.keys != match.keys || !match.isInGroup) {
            ungrabKeys(registration.keys);
            registration.keys.clear();
            moves.push_back({ &registration, match });
        }
    }
    m_locks = locks;
    std::stable_partition(moves.begin(), moves.end(),
                          [](const Move &move) { return move.match.isInGroup; });
    for (const Move &move : moves) {
        if (isFree(move.match.keys) && grabKeys(move.match.keys)) {
            move.registration->keys = move.match.keys;
        }
    }
}
