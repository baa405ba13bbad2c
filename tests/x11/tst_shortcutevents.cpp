// SPDX-License-Identifier: MIT
#include "shortcutkeys.h"
#include "testprogram.h"

#include <QSignalSpy>

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <thread>

/** Presses that the shortcuts' connection takes from its socket while it waits for something else.
 */
class TestShortcutEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsOfAPressWhileItReadsTheMapping();
    void tellsOfAPressWhileAnotherIsRegistered();
    void tellsOfAPressWhileAnotherIsRefused();
    void tellsOfAPressWhileAnotherIsLetGoOf();
};

namespace {

constexpr int tries = 20;

/** A client of the server that can have the server to itself, and presses keys meanwhile. */
class Server
{
public:
    Server()
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_symbols(xcb_key_symbols_alloc(m_connection))
    {
        // a key that repeats brings other events, with which a press that was missed is told
        const quint32 off = XCB_AUTO_REPEAT_MODE_OFF;
        xcb_change_keyboard_control(m_connection, XCB_KB_AUTO_REPEAT_MODE, &off);
        finish();
    }
    ~Server()
    {
        xcb_key_symbols_free(m_symbols);
        xcb_disconnect(m_connection);
    }
    Q_DISABLE_COPY(Server)

    /** Has every other client's request wait until release(). */
    void hold()
    {
        xcb_grab_server(m_connection);
        finish();
    }
    void release()
    {
        xcb_ungrab_server(m_connection);
        finish();
    }
    /** Gives a key that no shortcut has another symbol, of which every client is told. */
    void changeMapping()
    {
        ++m_symbol;
        const xcb_keycode_t lastCode = xcb_get_setup(m_connection)->max_keycode;
        xcb_change_keyboard_mapping(m_connection, 1, lastCode, 1, &m_symbol);
        finish();
    }
    void press(quint32 symbol)
    {
        send(XCB_KEY_PRESS, symbol);
    }
    void letGo(quint32 symbol)
    {
        send(XCB_KEY_RELEASE, symbol);
    }

private:
    void send(quint8 type, quint32 symbol)
    {
        xcb_keycode_t *codes = xcb_key_symbols_get_keycode(m_symbols, symbol);
        xcb_test_fake_input(m_connection, type, codes[0], XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0,
                            0);
        std::free(codes);
        finish();
    }
    /** A reply to a later request shows that the server has taken the earlier ones. */
    void finish()
    {
        std::free(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

    xcb_connection_t *m_connection;
    xcb_key_symbols_t *m_symbols;
    xcb_keysym_t m_symbol = 0x61;
};

/** How many presses are told in a row, of the tries, at which @p meanwhile runs. */
template <typename Meanwhile> int countTold(Server &server, Meanwhile meanwhile)
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    if (!shortcut->active()) {
        return -1;
    }
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    int told = 0;
    for (bool isTold = true; isTold && told < tries; told += int(isTold)) {
        server.press(symbolControl);
        QTest::qWait(10);
        meanwhile();
        // no other event comes until the key is let go of
        isTold = !activated.isEmpty() || activated.wait(patience);
        server.letGo(symbolF5);
        server.letGo(symbolControl);
        QTest::qWait(10);
        activated.clear();
    }
    return told;
}

} // namespace

void TestShortcutEvents::tellsOfAPressWhileItReadsTheMapping()
{
    Server server;
    std::thread presses;
    const int told = countTold(server, [&] {
        if (presses.joinable()) {
            presses.join();
        }
        presses = std::thread([&] {
            server.hold();
            server.changeMapping();
            // the library asks for the mapping now, and waits
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            server.press(symbolF5);
            server.release();
        });
    });
    presses.join();
    QCOMPARE(told, tries);
}

void TestShortcutEvents::tellsOfAPressWhileAnotherIsRegistered()
{
    Server server;
    const std::unique_ptr<OlvShortcut> other(ctrl(Qt::Key_F6));
    const int told = countTold(server, [&] {
        server.press(symbolF5);
        other->active();
        other->destroy();
    });
    QCOMPARE(told, tries);
}

void TestShortcutEvents::tellsOfAPressWhileAnotherIsRefused()
{
    Server server;
    const std::unique_ptr<OlvShortcut> other(ctrl(Qt::Key_F5));
    const int told = countTold(server, [&] {
        server.press(symbolF5);
        QVERIFY(!other->active());
    });
    QCOMPARE(told, tries);
}

void TestShortcutEvents::tellsOfAPressWhileAnotherIsLetGoOf()
{
    Server server;
    const std::unique_ptr<OlvShortcut> other(ctrl(Qt::Key_F6));
    const int told = countTold(server, [&] {
        QVERIFY(other->active());
        QTest::qWait(10);
        server.press(symbolF5);
        other->destroy();
    });
    QCOMPARE(told, tries);
}

ADD_TEST(TestShortcutEvents, QApplication)
#include "tst_shortcutevents.moc"
