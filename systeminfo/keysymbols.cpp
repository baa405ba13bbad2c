// SPDX-License-Identifier: MIT
#include "keysymbols_p.h"

#include <QChar>

namespace {

struct NamedKey
{
    Qt::Key key;
    xkb_keysym_t symbol;
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

} // namespace

xkb_keysym_t symbolOf(Qt::Key key)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35) {
        return xkb_keysym_t(XKB_KEY_F1 + (key - Qt::Key_F1));
    }
    for (const NamedKey &named : namedKeys) {
        if (named.key == key) {
            return named.symbol;
        }
    }
    return XKB_KEY_NoSymbol;
}

bool isTextKey(Qt::Key key)
{
    return key >= Qt::Key_Space && uint(key) <= QChar::LastValidCodePoint;
}
