// SPDX-License-Identifier: MIT
#pragma once

#include "shortcutbackend_p.h"
#include "x11keymap_p.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>

#include <memory>

class QSocketNotifier;

/**
 * Shortcuts on an X server: passive grabs on the root window, over a connection of this library's
 * own.
 *
 * Qt's connection cannot be used, since it gets no event when the keyboard mapping changes.
 */
class X11Backend : public QObject, public ShortcutBackend
{
public:
    explicit X11Backend(QObject *parent);
    ~X11Backend() override;

    /** Whether the server is one for X11 programs on a Wayland desktop. */
    static bool isOnWayland();

protected:
    bool grab(OlvShortcut *shortcut, const ShortcutCombination &combination) override;
    void release(OlvShortcut *shortcut) override;
    OlvShortcut::State state(OlvShortcut *shortcut) const override;

private:
    struct Registration
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        /** Empty while no layout has the key, or another has taken it. */
        QVector<X11Key> keys;
    };
    using Activations = QVector<QPointer<OlvShortcut>>;

    bool setUpKeyboard();
    bool isAlive() const;
    bool grabKeys(const QVector<X11Key> &keys);
    void ungrabKeys(const QVector<X11Key> &keys);
    bool isFree(const QVector<X11Key> &keys) const;
    OlvShortcut *holderOf(X11Key key) const;
    void readEvents();
    void readEventsSoon();
    Activations takeActivations();
    void handleEvent(const xcb_generic_event_t *event, Activations *activations);
    void handlePress(const xcb_key_press_event_t *press, Activations *activations);
    void handleKeyboardChange(const xcb_generic_event_t *event);
    void followMapping();
    void moveRegistrations();

    xcb_connection_t *m_connection;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    QSocketNotifier *m_notifier = nullptr;
    /** The type that all events of the XKB extension have. */
    quint8 m_keyboardEvent = 0;
    std::unique_ptr<X11Keymap> m_keymap;
    /** The lock modifiers that every key is grabbed with. */
    QVector<quint16> m_locks;
    QHash<OlvShortcut *, Registration> m_registrations;
    bool m_mappingChanged = false;
    xcb_keycode_t m_releasedCode = 0;
    xcb_timestamp_t m_releaseTime = 0;
};
