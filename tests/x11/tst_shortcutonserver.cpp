// SPDX-License-Identifier: MIT
#include "otherprogram.h"
#include "realinput.h"

#include <OlvShortcut>

#include <QDir>
#include <QPointer>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <sys/socket.h>

#include <memory>

namespace {

// symbols of X's keysymdef.h
constexpr quint32 symbolControl = 0xffe3;
constexpr quint32 symbolShift = 0xffe1;
constexpr quint32 symbolF5 = 0xffc2;
constexpr quint32 symbolCapsLock = 0xffe5;
constexpr quint32 symbolNumLock = 0xff7f;
constexpr int maskControl = 4;

OlvShortcut *ctrl(Qt::Key key)
{
    return new OlvShortcut(key, true, false, false, false);
}

void setLayout(const char *layout)
{
    QCOMPARE(QProcess::execute(QStringLiteral("setxkbmap"), { QLatin1String(layout) }), 0);
}

/** The sockets that this process has open. */
QSet<int> openSockets()
{
    QSet<int> sockets;
    const QStringList names =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System);
    for (const QString &name : names) {
        int type = 0;
        socklen_t size = sizeof type;
        if (getsockopt(name.toInt(), SOL_SOCKET, SO_TYPE, &type, &size) == 0) {
            sockets.insert(name.toInt());
        }
    }
    return sockets;
}

} // namespace

class TestShortcutOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void firesWhileAnotherWindowHasTheFocus();
    void swallowsNoOtherKeyAndLeavesTheFocus();
    void firesOnceForAKeyThatIsHeld();
    void firesUnderTheLocks_data();
    void firesUnderTheLocks();
    void firesForEachKey_data();
    void firesForEachKey();
    void staysSilentForOtherModifiers();
    void isRefusedWhileAnotherProgramHoldsIt();
    void holdsItAgainstOtherPrograms();
    void activatingAndDestroyingTwiceIsHarmless();
    void secondObjectOfACombinationIsRefused();
    void combinationsThatShareAKeyAreOne();
    void destructorLetsGo();
    void keysThatAreNoneAreRefused_data();
    void keysThatAreNoneAreRefused();
    void followsTheLayout();
    void comesBackWithTheLayoutThatHasTheKey();
    void slotMayDeleteShortcuts();
    void anotherMayTakeOverInASlot();
    void aDeadConnectionIsInactive();

private:
    void pressWithControl(quint32 symbol)
    {
        // A press in the same millisecond as the release before it is a key that repeats; no person
        // is that quick.
        QTest::qWait(5);
        m_input->pressKey(symbolControl);
        m_input->pressKey(symbol);
        m_input->releaseKey(symbol);
        m_input->releaseKey(symbolControl);
    }

    std::unique_ptr<RealInput> m_input;
    /** The socket of the shortcuts' connection. */
    int m_ownSocket = -1;
};

void TestShortcutOnServer::initTestCase()
{
    const QSet<int> before = openSockets();
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QVERIFY(shortcut->active());
    const QSet<int> made = openSockets() - before;
    QCOMPARE(made.count(), 1);
    m_ownSocket = *made.cbegin();
}

void TestShortcutOnServer::init()
{
    setLayout("us");
    m_input = std::make_unique<RealInput>();
    QVERIFY(m_input->isValid());
}

void TestShortcutOnServer::cleanup()
{
    m_input.reset();
}

void TestShortcutOnServer::firesWhileAnotherWindowHasTheFocus()
{
    OtherProgram window({ QStringLiteral("window") });
    QTRY_VERIFY(window.lines().contains(QStringLiteral("focused")));
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    pressWithControl(symbolF5);
    QTRY_COMPARE(activated.count(), 1);
    pressWithControl(symbolF5);
    QTRY_COMPARE(activated.count(), 2);
    shortcut->destroy();
    pressWithControl(symbolF5);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 2);
}

void TestShortcutOnServer::swallowsNoOtherKeyAndLeavesTheFocus()
{
    OtherProgram window({ QStringLiteral("window") });
    QTRY_VERIFY(window.lines().contains(QStringLiteral("focused")));
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    QTest::qWait(50);
    window.forget();

    m_input->pressKey(symbolControl);
    m_input->pressKey(symbolF5);
    QTRY_COMPARE(activated.count(), 1);
    // the combination is still held
    for (const quint32 symbol : { 0x61U, 0x62U, 0x63U }) { // a, b, c
        m_input->pressKey(symbol);
        m_input->releaseKey(symbol);
    }
    m_input->releaseKey(symbolF5);
    m_input->releaseKey(symbolControl);
    // Control, a, b and c: all but the combination's own key
    QTRY_COMPARE(window.lines().count(), 4);
    QTest::qWait(50);
    const QStringList lines = window.lines();
    QCOMPARE(lines.count(), 4);
    QCOMPARE(lines.filter(QStringLiteral("key ")).count(), 4);
}

void TestShortcutOnServer::firesOnceForAKeyThatIsHeld()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    m_input->pressKey(symbolControl);
    m_input->pressKey(symbolF5);
    QTRY_COMPARE(activated.count(), 1);
    QTest::qWait(1200);
    QCOMPARE(activated.count(), 1);
    m_input->releaseKey(symbolF5);
    QTest::qWait(5);
    m_input->pressKey(symbolF5);
    QTRY_COMPARE(activated.count(), 2);
    m_input->releaseKey(symbolF5);
    m_input->releaseKey(symbolControl);
}

void TestShortcutOnServer::firesUnderTheLocks_data()
{
    QTest::addColumn<QVector<quint32>>("locks");
    QTest::newRow("Caps Lock") << QVector<quint32>({ symbolCapsLock });
    QTest::newRow("Num Lock") << QVector<quint32>({ symbolNumLock });
    QTest::newRow("both") << QVector<quint32>({ symbolCapsLock, symbolNumLock });
}

void TestShortcutOnServer::firesUnderTheLocks()
{
    QFETCH(QVector<quint32>, locks);
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_J));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    const auto toggleLocks = [&] {
        for (const quint32 lock : qAsConst(locks)) {
            m_input->pressKey(lock);
            m_input->releaseKey(lock);
        }
    };
    toggleLocks();
    pressWithControl(0x6a);
    QTRY_COMPARE(activated.count(), 1);
    toggleLocks();
    pressWithControl(0x6a);
    QTRY_COMPARE(activated.count(), 2);
}

void TestShortcutOnServer::firesForEachKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<quint32>("symbol");
    QTest::addColumn<bool>("pressShift");
    QTest::newRow("letter") << int(Qt::Key_Q) << false << 0x71U << false;
    QTest::newRow("letter with Shift") << int(Qt::Key_Q) << true << 0x71U << true;
    QTest::newRow("digit") << int(Qt::Key_7) << false << 0x37U << false;
    // named with Shift, as a key event tells it, and without: it takes Shift either way
    QTest::newRow("exclamation mark with Shift") << int(Qt::Key_Exclam) << true << 0x31U << true;
    QTest::newRow("exclamation mark") << int(Qt::Key_Exclam) << false << 0x31U << true;
    QTest::newRow("space") << int(Qt::Key_Space) << false << 0x20U << false;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << true << 0xff1bU << true;
    QTest::newRow("Tab with Shift") << int(Qt::Key_Backtab) << true << 0xff09U << true;
    QTest::newRow("Return") << int(Qt::Key_Return) << false << 0xff0dU << false;
    QTest::newRow("Page Down") << int(Qt::Key_PageDown) << false << 0xff56U << false;
    QTest::newRow("F12") << int(Qt::Key_F12) << false << 0xffc9U << false;
    QTest::newRow("Print") << int(Qt::Key_Print) << false << 0xff61U << false;
}

void TestShortcutOnServer::firesForEachKey()
{
    QFETCH(int, key);
    QFETCH(bool, shift);
    QFETCH(quint32, symbol);
    QFETCH(bool, pressShift);
    OlvShortcut shortcut(Qt::Key(key), true, shift, false, false);
    QSignalSpy activated(&shortcut, &OlvShortcut::activated);
    QVERIFY(shortcut.active());
    if (pressShift) {
        m_input->pressKey(symbolShift);
    }
    pressWithControl(symbol);
    if (pressShift) {
        m_input->releaseKey(symbolShift);
    }
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutOnServer::staysSilentForOtherModifiers()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Q));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    m_input->pressKey(0x71);
    m_input->releaseKey(0x71);
    m_input->pressKey(symbolShift);
    pressWithControl(0x71);
    m_input->releaseKey(symbolShift);
    pressWithControl(0x77);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 0);
}

void TestShortcutOnServer::isRefusedWhileAnotherProgramHoldsIt()
{
    OtherProgram holder(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
    QTRY_COMPARE(holder.lines(), QStringList({ QStringLiteral("held") }));
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(!shortcut->active());

    holder.kill();
    QTRY_VERIFY(shortcut->active());
    pressWithControl(symbolF5);
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutOnServer::holdsItAgainstOtherPrograms()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QVERIFY(shortcut->active());
    OtherProgram other(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
    QTRY_COMPARE(other.lines(), QStringList({ QStringLiteral("refused") }));
    shortcut->destroy();
    OtherProgram later(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
    QTRY_COMPARE(later.lines(), QStringList({ QStringLiteral("held") }));
}

void TestShortcutOnServer::activatingAndDestroyingTwiceIsHarmless()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    shortcut->destroy();
    QVERIFY(shortcut->active());
    QVERIFY(shortcut->active());
    pressWithControl(symbolF5);
    QTRY_COMPARE(activated.count(), 1);
    shortcut->destroy();
    shortcut->destroy();
    pressWithControl(symbolF5);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 1);
    QVERIFY(shortcut->active());
}

void TestShortcutOnServer::secondObjectOfACombinationIsRefused()
{
    const std::unique_ptr<OlvShortcut> first(ctrl(Qt::Key_F5));
    QSignalSpy activated(first.get(), &OlvShortcut::activated);
    QVERIFY(first->active());
    {
        const std::unique_ptr<OlvShortcut> second(ctrl(Qt::Key_F5));
        QVERIFY(!second->active());
        second->destroy();
    }
    pressWithControl(symbolF5);
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutOnServer::combinationsThatShareAKeyAreOne()
{
    OlvShortcut plain(Qt::Key_Exclam, true, false, false, false);
    OlvShortcut shifted(Qt::Key_1, true, true, false, false);
    QVERIFY(plain.active());
    QVERIFY(!shifted.active());
    plain.destroy();
    QVERIFY(shifted.active());
}

void TestShortcutOnServer::destructorLetsGo()
{
    ctrl(Qt::Key_F5)->setParent(this);
    auto *shortcut = findChild<OlvShortcut *>();
    QVERIFY(shortcut->active());
    delete shortcut;
    OtherProgram other(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
    QTRY_COMPARE(other.lines(), QStringList({ QStringLiteral("held") }));
}

void TestShortcutOnServer::keysThatAreNoneAreRefused_data()
{
    QTest::addColumn<int>("key");
    for (const Qt::Key key :
         { Qt::Key(0), Qt::Key_unknown, Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta,
           Qt::Key_AltGr, Qt::Key_Super_L, Qt::Key_Super_R, Qt::Key_CapsLock, Qt::Key_NumLock,
           Qt::Key_ScrollLock, Qt::Key_Hyper_L, Qt::Key_Mode_switch, Qt::Key_Kanji, Qt::Key(0x4e2d),
           Qt::Key_F35, Qt::Key(1) }) {
        QTest::addRow("0x%x", uint(key)) << int(key);
    }
}

void TestShortcutOnServer::keysThatAreNoneAreRefused()
{
    QFETCH(int, key);
    OlvShortcut shortcut(Qt::Key(key), true, false, false, false);
    QVERIFY(!shortcut.active());
    QVERIFY(!shortcut.active());
}

void TestShortcutOnServer::followsTheLayout()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    pressWithControl(0x7a);
    QTRY_COMPARE(activated.count(), 1);

    // y and z change places; the input still means the places of the layout before
    setLayout("de");
    QTest::qWait(200);
    pressWithControl(0x79);
    QTRY_COMPARE(activated.count(), 2);
    pressWithControl(0x7a);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 2);

    OtherProgram other(
        { QStringLiteral("hold"), QStringLiteral("0x79"), QString::number(maskControl) });
    QTRY_COMPARE(other.lines(), QStringList({ QStringLiteral("held") }));
}

void TestShortcutOnServer::comesBackWithTheLayoutThatHasTheKey()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    const std::unique_ptr<OlvShortcut> cyrillic(ctrl(Qt::Key(0x42f))); // Я, on the same key
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QSignalSpy cyrillicActivated(cyrillic.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    QVERIFY(!cyrillic->active());

    setLayout("ru");
    QTest::qWait(200);
    QVERIFY(!shortcut->active());
    pressWithControl(0x7a);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 0);
    QVERIFY(cyrillic->active());
    pressWithControl(0x7a);
    QTRY_COMPARE(cyrillicActivated.count(), 1);

    setLayout("us");
    QTest::qWait(200);
    pressWithControl(0x7a);
    QTRY_COMPARE(activated.count(), 1);
    QCOMPARE(cyrillicActivated.count(), 1);
}

void TestShortcutOnServer::slotMayDeleteShortcuts()
{
    const QPointer<OlvShortcut> first(ctrl(Qt::Key_F5));
    const QPointer<OlvShortcut> second(ctrl(Qt::Key_F6));
    QVERIFY(first->active());
    QVERIFY(second->active());
    QSignalSpy secondActivated(second, &OlvShortcut::activated);
    connect(first, &OlvShortcut::activated, this, [=] {
        delete second;
        delete first;
    });
    m_input->pressKey(symbolControl);
    for (const quint32 symbol : { symbolF5, symbolF5 + 1 }) {
        m_input->pressKey(symbol);
        m_input->releaseKey(symbol);
    }
    m_input->releaseKey(symbolControl);
    // both presses may be read together: the second must not reach what is deleted by then
    QTRY_VERIFY(first.isNull());
    QVERIFY(second.isNull());
    QTest::qWait(50);
    QCOMPARE(secondActivated.count(), 0);
}

void TestShortcutOnServer::anotherMayTakeOverInASlot()
{
    const QPointer<OlvShortcut> first(ctrl(Qt::Key_F5));
    const std::unique_ptr<OlvShortcut> second(ctrl(Qt::Key_F5));
    QSignalSpy activated(second.get(), &OlvShortcut::activated);
    QVERIFY(first->active());
    bool takenOver = false;
    connect(first, &OlvShortcut::activated, this, [&] {
        delete first;
        takenOver = second->active();
    });
    pressWithControl(symbolF5);
    QTRY_VERIFY(takenOver);
    pressWithControl(symbolF5);
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutOnServer::aDeadConnectionIsInactive()
{
    // the last function: no connection is made in place of the one that is lost
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QVERIFY(shortcut->active());
    QVERIFY(m_ownSocket >= 0);
    QCOMPARE(shutdown(m_ownSocket, SHUT_RDWR), 0);
    QTest::qWait(50);
    QVERIFY(!shortcut->active());
    shortcut->destroy();
    const std::unique_ptr<OlvShortcut> later(ctrl(Qt::Key_F6));
    QVERIFY(!later->active());
}

QTEST_MAIN(TestShortcutOnServer)
#include "tst_shortcutonserver.moc"
