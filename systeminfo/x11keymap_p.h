// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <Qt>

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>

#include <initializer_list>

/** A key with modifiers, in the server's numbers: what a passive grab is made of. */
struct X11Key
{
    xcb_keycode_t code;
    quint16 modifiers;
};

inline bool operator==(X11Key a, X11Key b)
{
    return a.code == b.code && a.modifiers == b.modifiers;
}

/** The server's keyboard mapping, as it was when this was made. */
class X11Keymap
{
public:
    explicit X11Keymap(xcb_connection_t *connection);
    ~X11Keymap();

    /**
     * Every key that gives @p key, with the modifiers it takes; empty for keys that the layout
     * lacks and for those that cannot be a shortcut.
     */
    QVector<X11Key> keysOf(Qt::Key key, Qt::KeyboardModifiers modifiers) const;
    /** Every combination of the lock modifiers, none included. */
    QVector<quint16> lockCombinations() const;
    /** The modifiers without those of the lock keys. */
    quint16 withoutLocks(quint16 modifiers) const;

private:
    Q_DISABLE_COPY(X11Keymap)

    quint16 maskOf(std::initializer_list<xcb_keysym_t> symbols, quint16 fallback) const;
    void readModifiers(xcb_connection_t *connection);

    xcb_keycode_t m_firstCode;
    xcb_keycode_t m_lastCode;
    xcb_key_symbols_t *m_symbols;
    /** The keycodes of each of the eight modifiers, Shift first. */
    QVector<QVector<xcb_keycode_t>> m_modifierCodes;
    quint16 m_altMask = 0;
    quint16 m_metaMask = 0;
    QVector<quint16> m_lockMasks;
};
