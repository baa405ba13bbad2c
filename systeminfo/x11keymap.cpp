// SPDX-License-Identifier: MIT
#include "x11keymap_p.h"

#include "keysymbols_p.h"
#include "xcbxkb_p.h"

#include <QChar>

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int modifierCount = 8;

bool isOnKeypad(xkb_keysym_t symbol)
{
    return symbol >= XKB_KEY_KP_Space && symbol <= XKB_KEY_KP_9;
}

bool gives(xkb_keysym_t symbol, Qt::Key key)
{
    if (!isTextKey(key)) {
        return symbol != XKB_KEY_NoSymbol && symbol == symbolOf(key);
    }
    const uint character = xkb_keysym_to_utf32(symbol);
    return character == uint(key) || (character != 0 && QChar::toUpper(character) == uint(key));
}

} // namespace

X11Keymap::X11Keymap(xcb_connection_t *connection)
    : m_modifierCodes(modifierCount)
{
    readSymbols(connection);
    readGroup(connection);
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

X11Keymap::~X11Keymap() = default;

void X11Keymap::setGroup(int group)
{
    m_group = group;
}

X11Keymap::Match X11Keymap::find(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    if (!m_keymap) {
        return {};
    }
    const auto masked = [=](Qt::KeyboardModifier modifier, int mask) {
        return modifiers.testFlag(modifier) ? mask : 0;
    };
    const auto mask =
        quint16(masked(Qt::ShiftModifier, XCB_MOD_MASK_SHIFT)
                | masked(Qt::ControlModifier, XCB_MOD_MASK_CONTROL)
                | masked(Qt::AltModifier, m_altMask) | masked(Qt::MetaModifier, m_metaMask));
    QVector<X11Key> keys = keysInGroup(key, mask, m_group);
    if (!keys.isEmpty()) {
        return { keys, true };
    }
    const int groupCount = int(xkb_keymap_num_layouts(m_keymap.get()));
    for (int group = 0; group < groupCount && keys.isEmpty(); ++group) {
        keys = keysInGroup(key, mask, group);
    }
    return { keys, false };
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
    // The bits above the modifiers are mouse buttons and the group.
    int mask = modifiers & 0xff;
    for (const quint16 lock : m_lockMasks) {
        mask &= ~lock;
    }
    return quint16(mask);
}

void X11Keymap::readSymbols(xcb_connection_t *connection)
{
    const int device = xkb_x11_get_core_keyboard_device_id(connection);
    // The server has the whole mapping, so neither files nor the environment are read.
    const std::unique_ptr<xkb_context, Unref> context(xkb_context_new(
        xkb_context_flags(XKB_CONTEXT_NO_DEFAULT_INCLUDES | XKB_CONTEXT_NO_ENVIRONMENT_NAMES)));
    if (device < 0 || !context) {
        return;
    }
    m_keymap.reset(xkb_x11_keymap_new_from_device(context.get(), connection, device,
                                                  XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (m_keymap) {
        m_state.reset(xkb_state_new(m_keymap.get()));
    }
}

void X11Keymap::readGroup(xcb_connection_t *connection)
{
    xcb_xkb_get_state_reply_t *state = xcb_xkb_get_state_reply(
        connection, xcb_xkb_get_state(connection, XCB_XKB_ID_USE_CORE_KBD), nullptr);
    if (state) {
        m_group = state->group;
    }
    std::free(state);
}

void X11Keymap::readModifiers(xcb_connection_t *connection)
{
    xcb_get_modifier_mapping_reply_t *reply =
        xcb_get_modifier_mapping_reply(connection, xcb_get_modifier_mapping(connection), nullptr);
    if (!reply) {
        return;
    }
    const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(reply);
    const int codesPerModifier = reply->keycodes_per_modifier;
    for (int i = 0; i < modifierCount * codesPerModifier; ++i) {
        m_modifierCodes[i / codesPerModifier].append(codes[i]); // 0, for no key, has no symbols
    }
    std::free(reply);
}

QVector<X11Key> X11Keymap::keysInGroup(Qt::Key key, quint16 modifiers, int group) const
{
    QVector<X11Key> keys;
    const auto isFound = [&](xkb_keycode_t code) {
        return std::any_of(keys.cbegin(), keys.cend(), [=](X11Key k) { return k.code == code; });
    };
    // A shortcut may name a key by its symbol without modifiers, by its symbol with Shift, which is
    // then part of the combination, or by its symbol with all the modifiers, as Alt and Print give
    // SysReq.
    for (const quint16 held : { quint16(0), quint16(XCB_MOD_MASK_SHIFT), modifiers }) {
        const bool isShifted = held & XCB_MOD_MASK_SHIFT;
        xkb_state_update_mask(m_state.get(), held, 0, 0, 0, 0, xkb_layout_index_t(group));
        for (xkb_keycode_t code = xkb_keymap_min_keycode(m_keymap.get());
             code <= xkb_keymap_max_keycode(m_keymap.get()); ++code) {
            const xkb_keysym_t symbol = xkb_state_key_get_one_sym(m_state.get(), code);
            // On a keypad, Num Lock and not Shift chooses the shifted symbol.
            if (gives(symbol, key) && !(isShifted && isOnKeypad(symbol)) && !isFound(code)) {
                keys.append({ xcb_keycode_t(code), quint16(modifiers | held) });
            }
        }
    }
    return keys;
}

bool X11Keymap::hasSymbol(xcb_keycode_t code, std::initializer_list<xkb_keysym_t> symbols) const
{
    const xkb_layout_index_t groupCount = xkb_keymap_num_layouts_for_key(m_keymap.get(), code);
    for (xkb_layout_index_t group = 0; group < groupCount; ++group) {
        const xkb_level_index_t levelCount =
            xkb_keymap_num_levels_for_key(m_keymap.get(), code, group);
        for (xkb_level_index_t level = 0; level < levelCount; ++level) {
            const xkb_keysym_t *found = nullptr;
            const int count =
                xkb_keymap_key_get_syms_by_level(m_keymap.get(), code, group, level, &found);
            if (std::find_first_of(found, found + count, symbols.begin(), symbols.end())
                != found + count) {
                return true;
            }
        }
    }
    return false;
}

quint16 X11Keymap::maskOf(std::initializer_list<xkb_keysym_t> symbols, quint16 fallback) const
{
    // The first three modifiers are always Shift, Lock and Control.
    constexpr int firstFreeModifier = 3;
    for (int modifier = firstFreeModifier; m_keymap && modifier < modifierCount; ++modifier) {
        for (const xcb_keycode_t code : m_modifierCodes.at(modifier)) {
            if (hasSymbol(code, symbols)) {
                return quint16(1 << modifier);
            }
        }
    }
    return fallback;
}
