// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <Qt>

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon.h>

#include <initializer_list>
#include <memory>

/** A key and modifiers in the server's numbers, as a passive grab takes them. */
struct X11Key
{
    xcb_keycode_t code;
    quint16 modifiers;
};

inline bool operator==(X11Key a, X11Key b)
{
    return a.code == b.code && a.modifiers == b.modifiers;
}

/**
 * The server's keyboard mapping, as it was when this was made, with the group (the layout, where
 * the user has several) that is in effect.
 */
class X11Keymap
{
public:
    /** The keys that give a symbol. */
    struct Match
    {
        /** Empty for what no group has, and for what cannot be a shortcut. */
        QVector<X11Key> keys;
        /** Whether it is the group in effect that has them, not another. */
        bool isInGroup = false;
    };

    /** Reads the mapping and the group; the connection must have its XKB extension set up. */
    explicit X11Keymap(xcb_connection_t *connection);
    ~X11Keymap();

    void setGroup(int group);
    /**
     * The keys that give @p key, with the modifiers they take: those of the group in effect, or
     * else of the first group that has any.
     */
    Match find(Qt::Key key, Qt::KeyboardModifiers modifiers) const;
    /** Every combination of the lock modifiers, none included. */
    QVector<quint16> lockCombinations() const;
    /** The modifiers without those of the lock keys. */
    quint16 withoutLocks(quint16 modifiers) const;

private:
    Q_DISABLE_COPY(X11Keymap)

    struct Unref
    {
        void operator()(xkb_context *context) const
        {
            xkb_context_unref(context);
        }
        void operator()(xkb_keymap *keymap) const
        {
            xkb_keymap_unref(keymap);
        }
        void operator()(xkb_state *state) const
        {
            xkb_state_unref(state);
        }
    };

    void readSymbols(xcb_connection_t *connection);
    void readGroup(xcb_connection_t *connection);
    void readModifiers(xcb_connection_t *connection);
    QVector<X11Key> keysInGroup(Qt::Key key, quint16 modifiers, int group) const;
    bool hasSymbol(xcb_keycode_t code, std::initializer_list<xkb_keysym_t> symbols) const;
    quint16 maskOf(std::initializer_list<xkb_keysym_t> symbols, quint16 fallback) const;

    /** Null where the mapping could not be read. */
    std::unique_ptr<xkb_keymap, Unref> m_keymap;
    /** For looking up what keys give; it does not follow the keyboard's own state. */
    std::unique_ptr<xkb_state, Unref> m_state;
    int m_group = 0;
    /** The keycodes of each of the eight modifiers, Shift first. */
    QVector<QVector<xcb_keycode_t>> m_modifierCodes;
    quint16 m_altMask = 0;
    quint16 m_metaMask = 0;
    QVector<quint16> m_lockMasks;
};
