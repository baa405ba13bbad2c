// SPDX-License-Identifier: MIT
#include "otherprogram.h"
#include "shortcutkeys.h"
#include "testprogram.h"

#include <QSignalSpy>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace {

// symbols of X's keysymdef.h
constexpr quint32 symbolMenu = 0xff67;
constexpr quint32 symbolRightAlt = 0xffea;
constexpr quint32 symbolA = 0x61;
constexpr quint32 symbolY = 0x79;
constexpr quint32 symbolZ = 0x7a;
constexpr quint32 symbolBracketRight = 0x5d;

constexpr Qt::Key cyrillicA = Qt::Key(0x424); // Ф, on the key of A
constexpr int settleTime = 200;
constexpr int quietTime = 100;

/** The group that the server has in effect. */
int groupInEffect()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_query_pointer_reply_t *reply =
        xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr);
    // two bits above those of the modifiers and the mouse buttons
    const int group = reply ? reply->mask >> 13 & 3 : -1;
    std::free(reply);
    xcb_disconnect(connection);
    return group;
}

} // namespace

/**
 * Keyboards with more than one layout, each of which is a group of the server's keyboard mapping.
 * The input names every key by what the American layout has on it.
 */
class TestShortcutGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void firesOnTheKeyOfTheGroupAlone();
    void leavesTheKeyOfAnotherGroupToTheWindow();
    void neighboursThatChangePlacesAreBothActive();
    void firesOnAnotherGroupsKeyWhereTheGroupHasNone();
    void takesTheFirstOfTheOtherGroupsThatHasIt();
    void theGroupsOwnSymbolGoesFirst();
    void followsTheGroupThatAKeySetsWhileItIsHeld();
    void followsTheGroupWhileItsKeyIsHeld();
    void followsTheGroupAtOnce();
    void followsTheGroupAsOftenAsItChanges();
    void isRegisteredByTheGroupThatWasSetBefore();
    void staysWithTheFirstGroupWhenTheOthersGo();

private:
    void setGroups(const char *layouts, const char *option = "grp:menu_toggle");
    void nextGroup();
    /** Whether Control and a key activate the shortcut. */
    bool fires(quint32 symbol, OlvShortcut &shortcut);
    /** Whether they do not. */
    bool isSilent(quint32 symbol, OlvShortcut &shortcut);

    std::unique_ptr<RealInput> m_input;
};

void TestShortcutGroups::init()
{
    QCOMPARE(QProcess::execute(QStringLiteral("setxkbmap"),
                               { QStringLiteral("-layout"), QStringLiteral("us"),
                                 QStringLiteral("-option"), QString() }),
             0);
    m_input = std::make_unique<RealInput>();
    QVERIFY(m_input->isValid());
}

void TestShortcutGroups::cleanup()
{
    // a test that fails may leave keys behind that are held
    for (const quint32 symbol : { symbolControl, symbolRightAlt, symbolY, symbolZ }) {
        m_input->releaseKey(symbol);
    }
    // and the layout that was chosen stays chosen
    setGroups("us,de,ru");
    for (int group = groupInEffect(); group % 3 != 0; ++group) {
        m_input->pressKey(symbolMenu);
        m_input->releaseKey(symbolMenu);
    }
    QCOMPARE(groupInEffect(), 0);
    m_input.reset();
}

void TestShortcutGroups::setGroups(const char *layouts, const char *option)
{
    QCOMPARE(QProcess::execute(QStringLiteral("setxkbmap"),
                               { QStringLiteral("-layout"), QLatin1String(layouts),
                                 QStringLiteral("-option"), QLatin1String(option) }),
             0);
    QTest::qWait(settleTime);
}

void TestShortcutGroups::nextGroup()
{
    m_input->pressKey(symbolMenu);
    m_input->releaseKey(symbolMenu);
    QTest::qWait(settleTime);
}

bool TestShortcutGroups::fires(quint32 symbol, OlvShortcut &shortcut)
{
    QSignalSpy activated(&shortcut, &OlvShortcut::activated);
    pressWithControl(*m_input, symbol);
    return !activated.isEmpty() || activated.wait(patience);
}

bool TestShortcutGroups::isSilent(quint32 symbol, OlvShortcut &shortcut)
{
    QSignalSpy activated(&shortcut, &OlvShortcut::activated);
    pressWithControl(*m_input, symbol);
    return activated.isEmpty() && !activated.wait(quietTime);
}

void TestShortcutGroups::firesOnTheKeyOfTheGroupAlone()
{
    setGroups("us,de");
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QVERIFY(shortcut->active());
    QVERIFY(fires(symbolZ, *shortcut));
    QVERIFY(isSilent(symbolY, *shortcut));
    nextGroup();
    QVERIFY(isSilent(symbolZ, *shortcut));
    QVERIFY(fires(symbolY, *shortcut));
    QVERIFY(shortcut->active());
    nextGroup();
    QVERIFY(fires(symbolZ, *shortcut));
    QVERIFY(isSilent(symbolY, *shortcut));
}

void TestShortcutGroups::leavesTheKeyOfAnotherGroupToTheWindow()
{
    setGroups("us,de");
    OtherProgram window({ QStringLiteral("window") });
    QTRY_VERIFY(window.lines().contains(QStringLiteral("focused")));
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QVERIFY(shortcut->active());
    const auto keysOfWindow = [&](quint32 symbol) {
        window.forget();
        pressWithControl(*m_input, symbol);
        QTest::qWait(quietTime);
        return int(window.lines().filter(QStringLiteral("key ")).count());
    };
    // Control comes to the window in either case
    QCOMPARE(keysOfWindow(symbolZ), 1);
    QCOMPARE(keysOfWindow(symbolY), 2);
    nextGroup();
    QCOMPARE(keysOfWindow(symbolZ), 2);
    QCOMPARE(keysOfWindow(symbolY), 1);
}

void TestShortcutGroups::neighboursThatChangePlacesAreBothActive()
{
    setGroups("us,de");
    const std::unique_ptr<OlvShortcut> y(ctrl(Qt::Key_Y));
    const std::unique_ptr<OlvShortcut> z(ctrl(Qt::Key_Z));
    QVERIFY(y->active());
    QVERIFY(z->active());
    for (int round = 0; round < 2; ++round) {
        QVERIFY(fires(symbolY, *y));
        QVERIFY(fires(symbolZ, *z));
        nextGroup();
        QVERIFY(y->active());
        QVERIFY(z->active());
        QVERIFY(fires(symbolZ, *y));
        QVERIFY(fires(symbolY, *z));
        nextGroup();
    }
}

void TestShortcutGroups::firesOnAnotherGroupsKeyWhereTheGroupHasNone()
{
    setGroups("us,de,ru");
    const std::unique_ptr<OlvShortcut> cyrillic(ctrl(cyrillicA));
    QVERIFY(cyrillic->active());
    for (int group = 0; group < 3; ++group) {
        QVERIFY(fires(symbolA, *cyrillic));
        nextGroup();
    }
    // another has the key, and the first to take it keeps it
    const std::unique_ptr<OlvShortcut> latin(ctrl(Qt::Key_A));
    QVERIFY(!latin->active());
    cyrillic->destroy();
    QVERIFY(latin->active());
    QVERIFY(fires(symbolA, *latin));
}

void TestShortcutGroups::takesTheFirstOfTheOtherGroupsThatHasIt()
{
    setGroups("us,de,ru");
    const std::unique_ptr<OlvShortcut> y(ctrl(Qt::Key_Y));
    const std::unique_ptr<OlvShortcut> z(ctrl(Qt::Key_Z));
    QVERIFY(y->active());
    QVERIFY(z->active());
    nextGroup();
    nextGroup();
    // the Russian layout has neither, and the American one comes before the German one
    QVERIFY(y->active());
    QVERIFY(z->active());
    QVERIFY(fires(symbolZ, *z));
    QVERIFY(isSilent(symbolY, *z));
    QVERIFY(fires(symbolY, *y));
}

void TestShortcutGroups::theGroupsOwnSymbolGoesFirst()
{
    setGroups("us,de");
    // the German layout has the plus on the key of the bracket, and the bracket on no such key
    const std::unique_ptr<OlvShortcut> bracket(ctrl(Qt::Key_BracketRight));
    const std::unique_ptr<OlvShortcut> plus(ctrl(Qt::Key_Plus));
    QVERIFY(bracket->active());
    QVERIFY(plus->active());
    QVERIFY(fires(symbolBracketRight, *bracket));
    nextGroup();
    QVERIFY(plus->active());
    QVERIFY(!bracket->active());
    QVERIFY(fires(symbolBracketRight, *plus));
    nextGroup();
    QVERIFY(plus->active());
    QVERIFY(bracket->active());
    QVERIFY(fires(symbolBracketRight, *bracket));
}

void TestShortcutGroups::followsTheGroupThatAKeySetsWhileItIsHeld()
{
    setGroups("us,de", "grp:switch");
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QVERIFY(shortcut->active());
    m_input->pressKey(symbolRightAlt);
    QTest::qWait(settleTime);
    QVERIFY(isSilent(symbolZ, *shortcut));
    QVERIFY(fires(symbolY, *shortcut));
    m_input->releaseKey(symbolRightAlt);
    QTest::qWait(settleTime);
    QVERIFY(fires(symbolZ, *shortcut));
    QVERIFY(isSilent(symbolY, *shortcut));
}

void TestShortcutGroups::followsTheGroupWhileItsKeyIsHeld()
{
    setGroups("us,de");
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QVERIFY(shortcut->active());
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    m_input->pressKey(symbolControl);
    m_input->pressKey(symbolZ);
    QTRY_COMPARE(activated.count(), 1);
    nextGroup();
    m_input->releaseKey(symbolZ);
    m_input->releaseKey(symbolControl);
    QCOMPARE(activated.count(), 1);
    QVERIFY(fires(symbolY, *shortcut));
    QVERIFY(isSilent(symbolZ, *shortcut));
}

void TestShortcutGroups::followsTheGroupAtOnce()
{
    setGroups("us,de");
    const std::unique_ptr<OlvShortcut> y(ctrl(Qt::Key_Y));
    const std::unique_ptr<OlvShortcut> z(ctrl(Qt::Key_Z));
    QVERIFY(y->active());
    QVERIFY(z->active());
    QSignalSpy yActivated(y.get(), &OlvShortcut::activated);
    QSignalSpy zActivated(z.get(), &OlvShortcut::activated);
    // The key is grabbed for Z when it is pressed, but has changed to Y before.
    m_input->pressKey(symbolMenu);
    m_input->releaseKey(symbolMenu);
    m_input->pressKey(symbolControl);
    m_input->pressKey(symbolZ);
    m_input->releaseKey(symbolZ);
    m_input->releaseKey(symbolControl);
    QTRY_COMPARE(yActivated.count(), 1);
    QCOMPARE(zActivated.count(), 0);
}

void TestShortcutGroups::followsTheGroupAsOftenAsItChanges()
{
    setGroups("us,de");
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QVERIFY(shortcut->active());
    for (int round = 0; round < 50; ++round) {
        m_input->pressKey(symbolMenu);
        m_input->releaseKey(symbolMenu);
        if (round % 7 == 0) {
            QTest::qWait(1);
        }
    }
    QTest::qWait(settleTime);
    QVERIFY(fires(symbolZ, *shortcut));
    QVERIFY(isSilent(symbolY, *shortcut));
}

void TestShortcutGroups::isRegisteredByTheGroupThatWasSetBefore()
{
    setGroups("us,de");
    nextGroup();
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QVERIFY(shortcut->active());
    QVERIFY(isSilent(symbolZ, *shortcut));
    QVERIFY(fires(symbolY, *shortcut));
}

void TestShortcutGroups::staysWithTheFirstGroupWhenTheOthersGo()
{
    setGroups("us,de");
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QVERIFY(shortcut->active());
    nextGroup();
    QVERIFY(fires(symbolY, *shortcut));
    setGroups("us");
    QVERIFY(fires(symbolZ, *shortcut));
    QVERIFY(isSilent(symbolY, *shortcut));
}

ADD_TEST(TestShortcutGroups, QApplication)
#include "tst_shortcutgroups.moc"
