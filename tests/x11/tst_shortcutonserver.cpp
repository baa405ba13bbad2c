// SPDX-License-Identifier: MIT
#include "otherprogram.h"
#include "shortcutkeys.h"
#include "testprogram.h"

#include <QPointer>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr quint32 symbolCapsLock = 0xffe5;
constexpr quint32 symbolNumLock = 0xff7f;
constexpr quint32 symbolAlt = 0xffe9;
constexpr quint32 symbolPrint = 0xff61;

} // namespace

class TestShortcutOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void firesWhileAnotherWindowHasTheFocus();
    void swallowsNoOtherKeyAndLeavesTheFocus();
    void firesOnceForAKeyThatIsHeld();
    void firesUnderTheLocks_data();
    void firesUnderTheLocks();
    void firesForEachKey_data();
    void firesForEachKey();
    void firesForWhatAKeyGivesWithAlt();
    void staysSilentForOtherModifiers();
    void followsTheLayout();
    void comesBackWithTheLayoutThatHasTheKey();
    void waitsWhereALayoutMovesItToAKeyThatIsTaken();
    void ofTwoThatALayoutMovesToOneKeyOneIsActive();
    void slotMayDeleteShortcuts();
    void anotherMayTakeOverInASlot();

private:
    std::unique_ptr<RealInput> m_input;
};

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
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(activated.count(), 1);
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(activated.count(), 2);
    shortcut->destroy();
    pressWithControl(*m_input, symbolF5);
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
    pressWithControl(*m_input, 0x6a);
    QTRY_COMPARE(activated.count(), 1);
    toggleLocks();
    pressWithControl(*m_input, 0x6a);
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
    // Shift is part of the combination whether or not the shortcut names it.
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
    pressWithControl(*m_input, symbol);
    if (pressShift) {
        m_input->releaseKey(symbolShift);
    }
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutOnServer::firesForWhatAKeyGivesWithAlt()
{
    // Print gives it where Alt is held
    OlvShortcut shortcut(Qt::Key_SysReq, true, false, true, false);
    QSignalSpy activated(&shortcut, &OlvShortcut::activated);
    QVERIFY(shortcut.active());
    m_input->pressKey(symbolAlt);
    pressWithControl(*m_input, symbolPrint);
    m_input->releaseKey(symbolAlt);
    QTRY_COMPARE(activated.count(), 1);
    OlvShortcut withoutAlt(Qt::Key_SysReq, true, false, false, false);
    QVERIFY(!withoutAlt.active());
}

void TestShortcutOnServer::staysSilentForOtherModifiers()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Q));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    m_input->pressKey(0x71);
    m_input->releaseKey(0x71);
    m_input->pressKey(symbolShift);
    pressWithControl(*m_input, 0x71);
    m_input->releaseKey(symbolShift);
    pressWithControl(*m_input, 0x77);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 0);
}

void TestShortcutOnServer::followsTheLayout()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_Z));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    pressWithControl(*m_input, 0x7a);
    QTRY_COMPARE(activated.count(), 1);

    // y and z are exchanged; the input still uses the keys of the layout before
    setLayout("de");
    QTest::qWait(200);
    pressWithControl(*m_input, 0x79);
    QTRY_COMPARE(activated.count(), 2);
    pressWithControl(*m_input, 0x7a);
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
    QTRY_VERIFY(!shortcut->active());
    pressWithControl(*m_input, 0x7a);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 0);
    QVERIFY(cyrillic->active());
    pressWithControl(*m_input, 0x7a);
    QTRY_COMPARE(cyrillicActivated.count(), 1);

    setLayout("us");
    QTest::qWait(200);
    pressWithControl(*m_input, 0x7a);
    QTRY_COMPARE(activated.count(), 1);
    QCOMPARE(cyrillicActivated.count(), 1);
}

void TestShortcutOnServer::waitsWhereALayoutMovesItToAKeyThatIsTaken()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_A));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(shortcut->active());
    OtherProgram other(
        { QStringLiteral("hold"), QStringLiteral("0x71"), QString::number(maskControl) });
    QTRY_COMPARE(other.lines(), QStringList({ QStringLiteral("held") }));

    // a and q are exchanged; the input still uses the keys of the layout before
    setLayout("fr");
    QTRY_VERIFY(!shortcut->active());
    pressWithControl(*m_input, 0x71);
    pressWithControl(*m_input, 0x61);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 0);

    other.kill();
    QTRY_VERIFY(shortcut->active());
    pressWithControl(*m_input, 0x71);
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutOnServer::ofTwoThatALayoutMovesToOneKeyOneIsActive()
{
    // two keys in the American layout, but one key with Shift in the French one
    OlvShortcut ampersand(Qt::Key_Ampersand, true, true, false, false);
    OlvShortcut one(Qt::Key_1, true, false, false, false);
    // the change of layout by the test before may not have been handled yet
    QTRY_VERIFY(ampersand.active() && one.active());
    QSignalSpy firstActivated(&ampersand, &OlvShortcut::activated);
    QSignalSpy secondActivated(&one, &OlvShortcut::activated);

    setLayout("fr");
    QTest::qWait(200);
    QCOMPARE(int(ampersand.active()) + int(one.active()), 1);
    m_input->pressKey(symbolShift);
    pressWithControl(*m_input, 0x31);
    m_input->releaseKey(symbolShift);
    QTRY_COMPARE(firstActivated.count() + secondActivated.count(), 1);
    QCOMPARE(secondActivated.count(), int(one.active()));

    setLayout("us");
    QTRY_VERIFY(ampersand.active() && one.active());
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
    // both presses may be read at once, and the second is of a shortcut that is deleted by then
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
    pressWithControl(*m_input, symbolF5);
    QTRY_VERIFY(takenOver);
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(activated.count(), 1);
}

ADD_TEST(TestShortcutOnServer, QApplication)
#include "tst_shortcutonserver.moc"
