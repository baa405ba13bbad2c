// SPDX-License-Identifier: MIT
#include "realinput.h"

#include <QWidget>

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

#include <cstdlib>

namespace {

/** The display that a compositor runs on, where there is one; else that of DISPLAY. */
xcb_connection_t *connectToServer()
{
    const QByteArray outer = qgetenv("OLV_OUTER_DISPLAY");
    return xcb_connect(outer.isEmpty() ? nullptr : outer.constData(), nullptr);
}

} // namespace

struct RealInput::Server
{
    Server()
        : connection(connectToServer())
        , symbols(xcb_key_symbols_alloc(connection))
        , root(xcb_connection_has_error(connection)
                   ? xcb_window_t(XCB_WINDOW_NONE)
                   : xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root)
    { }
    ~Server()
    {
        xcb_key_symbols_free(symbols);
        xcb_disconnect(connection);
    }
    Q_DISABLE_COPY(Server)

    xcb_connection_t *connection;
    xcb_key_symbols_t *symbols;
    xcb_window_t root;
};

RealInput::RealInput()
    : m_server(std::make_unique<Server>())
{ }

RealInput::~RealInput() = default;

bool RealInput::isValid() const
{
    if (xcb_connection_has_error(m_server->connection)) {
        return false;
    }
    const xcb_query_extension_reply_t *extension =
        xcb_get_extension_data(m_server->connection, &xcb_test_id);
    return extension && extension->present;
}

void RealInput::moveTo(QPoint place)
{
    send(XCB_MOTION_NOTIFY, 0, place);
}

void RealInput::moveTo(const QWidget &widget, QPoint place)
{
    moveTo(widget.mapToGlobal(place));
}

void RealInput::press(Button button)
{
    send(XCB_BUTTON_PRESS, quint8(button));
}

void RealInput::release(Button button)
{
    send(XCB_BUTTON_RELEASE, quint8(button));
}

void RealInput::click(Button button)
{
    press(button);
    release(button);
}

void RealInput::pressKey(quint32 symbol)
{
    send(XCB_KEY_PRESS, keycodeOf(symbol));
}

void RealInput::releaseKey(quint32 symbol)
{
    send(XCB_KEY_RELEASE, keycodeOf(symbol));
}

QRect RealInput::geometryOf(quintptr window) const
{
    xcb_connection_t *connection = m_server->connection;
    const auto id = xcb_window_t(window);
    xcb_get_geometry_reply_t *size =
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, id), nullptr);
    xcb_translate_coordinates_reply_t *place = xcb_translate_coordinates_reply(
        connection, xcb_translate_coordinates(connection, id, m_server->root, 0, 0), nullptr);
    const QRect geometry =
        size && place ? QRect(place->dst_x, place->dst_y, size->width, size->height) : QRect();
    std::free(size);
    std::free(place);
    return geometry;
}

QImage RealInput::screen() const
{
    xcb_connection_t *connection = m_server->connection;
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const quint16 width = screen->width_in_pixels;
    const quint16 height = screen->height_in_pixels;
    xcb_get_image_reply_t *reply =
        xcb_get_image_reply(connection,
                            xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_server->root, 0,
                                          0, width, height, ~0U),
                            nullptr);
    const QImage picture = reply
        ? QImage(xcb_get_image_data(reply), width, height, QImage::Format_RGB32).copy()
        : QImage();
    std::free(reply);
    return picture;
}

void RealInput::send(quint8 type, quint8 detail, QPoint place)
{
    xcb_test_fake_input(m_server->connection, type, detail, XCB_CURRENT_TIME, m_server->root,
                        qint16(place.x()), qint16(place.y()), 0);
    // a reply to a later request shows that the server has taken the earlier one
    std::free(xcb_get_input_focus_reply(m_server->connection,
                                        xcb_get_input_focus(m_server->connection), nullptr));
}

quint8 RealInput::keycodeOf(quint32 symbol) const
{
    xcb_keycode_t *codes = xcb_key_symbols_get_keycode(m_server->symbols, symbol);
    const quint8 code = codes ? codes[0] : XCB_NO_SYMBOL;
    std::free(codes);
    return code;
}
