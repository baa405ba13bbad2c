// SPDX-License-Identifier: MIT
// Another program on the same server, without Qt:
//   otherclient hold SYMBOL MODIFIERS   grabs the key until it is killed; says "held" or "refused"
//   otherclient window                  has a window that says what reaches it: "key CODE",
//                                       "focused" and "unfocused"
#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

int hold(xcb_connection_t *connection, xcb_window_t root, const char *symbol, const char *modifiers)
{
    xcb_key_symbols_t *symbols = xcb_key_symbols_alloc(connection);
    xcb_keycode_t *codes =
        xcb_key_symbols_get_keycode(symbols, xcb_keysym_t(std::strtoul(symbol, nullptr, 0)));
    const xcb_void_cookie_t cookie =
        xcb_grab_key_checked(connection, 0, root, uint16_t(std::strtoul(modifiers, nullptr, 0)),
                             codes[0], XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_generic_error_t *error = xcb_request_check(connection, cookie);
    std::puts(error ? "refused" : "held");
    std::fflush(stdout);
    if (error) {
        return 1;
    }
    while (xcb_generic_event_t *event = xcb_wait_for_event(connection)) {
        std::free(event);
    }
    return 0;
}

int showWindow(xcb_connection_t *connection, const xcb_screen_t *screen)
{
    const xcb_window_t window = xcb_generate_id(connection);
    const uint32_t values[] = { screen->white_pixel,
                                XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_FOCUS_CHANGE };
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 200, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
    xcb_map_window(connection, window);
    xcb_flush(connection);
    while (xcb_generic_event_t *event = xcb_wait_for_event(connection)) {
        const int type = event->response_type & 0x7f;
        if (type == XCB_KEY_PRESS) {
            std::printf("key %d\n", reinterpret_cast<xcb_key_press_event_t *>(event)->detail);
        } else if (type == XCB_FOCUS_IN || type == XCB_FOCUS_OUT) {
            // grabs of the keyboard change the focus too, in events with another mode
            if (reinterpret_cast<xcb_focus_in_event_t *>(event)->mode == XCB_NOTIFY_MODE_NORMAL) {
                std::puts(type == XCB_FOCUS_IN ? "focused" : "unfocused");
            }
        }
        std::fflush(stdout);
        std::free(event);
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection)) {
        return 2;
    }
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    if (argc == 4 && std::strcmp(argv[1], "hold") == 0) {
        return hold(connection, screen->root, argv[2], argv[3]);
    }
    if (argc == 2 && std::strcmp(argv[1], "window") == 0) {
        return showWindow(connection, screen);
    }
    return 2;
}
