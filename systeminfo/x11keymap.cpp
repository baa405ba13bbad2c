// SPDX-License-Identifier: MIT
#include "x11keymap_p.h"

#include <QChar>

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int modifierCount = 8;
/** The columns of the core keymap that matter: two groups of a plain and a shifted symbol. */
constexpr int columnCount = 4;
constexpr int levelCount = 2;

struct NamedKey
{
    Qt::Key key;
    xcb_keysym_t symbol;
};

constexpr NamedKey namedKeys[] = {
    { Qt::Key_Escape, XKB_KEY_Escape },
    { Qt::Key_Tab, XKB_KEY_Tab },
    { Qt::Key_Backtab, XKB_KEY_ISO_Left_Tab },
    { Qt::Key_Backspace, XKB_KEY_BackSpace },
    { Qt::Key_Return, XKB_KEY_Return },
    { Qt::Key_Enter, XKB_KEY_KP_Enter },
    { Qt::Key_Insert, XKB_KEY_Insert },
    { Qt::Key_Delete, XKB_KEY_Delete },
    { Qt::Key_Pause, XKB_KEY_Pause },
    { Qt::Key_Print, XKB_KEY_Print },
    { Qt::Key_SysReq, XKB_KEY_Sys_Req },
    { Qt::Key_Home, XKB_KEY_Home },
    { Qt::Key_End, XKB_KEY_End },
    { Qt::Key_Left, XKB_KEY_Left },
    { Qt::Key_Up, XKB_KEY_Up },
    { Qt::Key_Right, XKB_KEY_Right },
    { Qt::Key_Down, XKB_KEY_Down },
    { Qt::Key_PageUp, XKB_KEY_Page_Up },
    { Qt::Key_PageDown, XKB_KEY_Page_Down },
    { Qt::Key_Menu, XKB_KEY_Menu },
    { Qt::Key_Help, XKB_KEY_Help },
    { Qt::Key_VolumeDown, XKB_KEY_XF86AudioLowerVolume },
    { Qt::Key_VolumeMute, XKB_KEY_XF86AudioMute },
    { Qt::Key_VolumeUp, XKB_KEY_XF86AudioRaiseVolume },
    { Qt::Key_MediaPlay, XKB_KEY_XF86AudioPlay },
    { Qt::Key_MediaStop, XKB_KEY_XF86AudioStop },
    { Qt::Key_MediaPrevious, XKB_KEY_XF86AudioPrev },
    { Qt::Key_MediaNext, XKB_KEY_XF86AudioNext },
    { Qt::Key_HomePage, XKB_KEY_XF86HomePage },
    { Qt::Key_Calculator, XKB_KEY_XF86Calculator },
};

/** The symbol of a named key; none for text keys, and for keys that are no shortcut. */
xcb_keysym_t symbolOf(Qt::Key key)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35) {
        return xcb_keysym_t(XKB_KEY_F1 + (key - Qt::Key_F1));
    }
    for (const NamedKey &named : namedKeys) {
        if (named.key == key) {
            return named.symbol;
        }
    }
    return XKB_KEY_NoSymbol;
}

/** Whether the key is its own character, in upper case where it has one. */
bool isText(Qt::Key key)
{
    return key >= Qt::Key_Space && uint(key) <= QChar::LastValidCodePoint;
}

bool isOnKeypad(xcb_keysym_t symbol)
{
    return symbol >= XKB_KEY_KP_Space && symbol <= XKB_KEY_KP_9;
}

bool gives(xcb_keysym_t symbol, Qt::Key key)
{
    if (!isText(key)) {
        return symbol != XKB_KEY_NoSymbol && symbol == symbolOf(key);
    }
    const uint character = xkb_keysym_to_utf32(symbol);
    return character == uint(key) || (character != 0 && QChar::toUpper(character) == uint(key));
}

} // namespace

X11Keymap::X11Keymap(xcb_connection_t *connection)
    : m_firstCode(xcb_get_setup(connection)->min_keycode)
    , m_lastCode(xcb_get_setup(connection)->max_keycode)
    , m_symbols(xcb_key_symbols_alloc(connection))
    , m_modifierCodes(modifierCount)
{
    readModifiers(connection);
    m_altMask = maskOf({ XKB_KEY_Alt_L, XKB_KEY_Alt_R }, XCB_MOD_MASK_1);
    m_metaMask = maskOf({ XKB_KEY_Super_L, XKB_KEY_Super_R }, XCB_MOD_MASK_4);
    for (const quint16 mask : { quint16(XCB_MOD_MASK_LOCK), maskOf({ XKB_KEY_Num_Lock }, 0),
                                maskOf({ XKB_KEY_Scroll_Lock }, 0) }) {
        if (mask != 0 && !m_lockMasks.contains(mask)) {
            m_lockMasks.append(mask);
        }
    }
}

X11Keymap::~X11Keymap()
{
    xcb_key_symbols_free(m_symbols);
}

QVector<X11Key> X11Keymap::keysOf(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QVector<X11Key> keys;
    const auto masked = [=](Qt::KeyboardModifier modifier, int mask) {
        return modifiers.testFlag(modifier) ? mask : 0;
    };
    const int mask = masked(Qt::ShiftModifier, XCB_MOD_MASK_SHIFT)
        | masked(Qt::ControlModifier, XCB_MOD_MASK_CONTROL) | masked(Qt::AltModifier, m_altMask)
        | masked(Qt::MetaModifier, m_metaMask);
    for (int code = m_firstCode; code <= m_lastCode; ++code) {
        for (int column = 0; column < columnCount; ++column) {
            const xcb_keysym_t symbol =
                xcb_key_symbols_get_keysym(m_symbols, xcb_keycode_t(code), column);
            const bool isShifted = column % levelCount != 0;
            // what stands shifted on a keypad is chosen by Num Lock, not by Shift
            if (!gives(symbol, key) || (isShifted && isOnKeypad(symbol))) {
                continue;
            }
            const int shift = isShifted ? XCB_MOD_MASK_SHIFT : 0;
            keys.append({ xcb_keycode_t(code), quint16(mask | shift) });
            break;
        }
    }
    return keys;
}

QVector<quint16> X11Keymap::lockCombinations() const
{
    QVector<quint16> combinations{ 0 };
    for (const quint16 lock : m_lockMasks) {
        const QVector<quint16> before = combinations;
        for (const quint16 combination : before) {
            combinations.append(combination | lock);
        }
    }
    return combinations;
}

quint16 X11Keymap::withoutLocks(quint16 modifiers) const
{
    // the bits above the modifiers are mouse buttons and the group of the layout
    int mask = modifiers & 0xff;
    for (const quint16 lock : m_lockMasks) {
        mask &= ~lock;
    }
    return quint16(mask);
}

quint16 X11Keymap::maskOf(std::initializer_list<xcb_keysym_t> symbols, quint16 fallback) const
{
    // Shift, Lock and Control have places of their own
    constexpr int firstFreeModifier = 3;
    for (int modifier = firstFreeModifier; modifier < modifierCount; ++modifier) {
        for (const xcb_keycode_t code : m_modifierCodes.at(modifier)) {
            for (int column = 0; column < columnCount; ++column) {
                const xcb_keysym_t symbol = xcb_key_symbols_get_keysym(m_symbols, code, column);
                if (std::find(symbols.begin(), symbols.end(), symbol) != symbols.end()) {
                    return quint16(1 << modifier);
                }
            }
        }
    }
    return fallback;
}

void X11Keymap::readModifiers(xcb_connection_t *connection)
{
    xcb_get_modifier_mapping_reply_t *reply =
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr);
    if (!reply) {
        return;
    }
    const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(reply);
    for (int modifier = 0; modifier < modifierCount; ++modifier) {
        for (int i = 0; i < reply->keycodes_per_modifier; ++i) {
            const xcb_keycode_t code = codes[modifier * reply->keycodes_per_modifier + i];
            if (code != 0) {
                m_modifierCodes[modifier].append(code);
            }
        }
    }
    std::free(reply);
}
