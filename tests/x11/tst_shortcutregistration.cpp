// SPDX-License-Identifier: MIT
#include "otherprogram.h"
#include "shortcutkeys.h"

#include <QDir>
#include <QSet>
#include <QSignalSpy>

#include <sys/socket.h>

#include <memory>

namespace {

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

class TestShortcutRegistration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void isRefusedWhileAnotherProgramHoldsIt();
    void holdsItAgainstOtherPrograms();
    void activatingAndDestroyingTwiceIsHarmless();
    void secondObjectOfACombinationIsRefused();
    void combinationsThatShareAKeyAreOne();
    void destructorLetsGo();
    void keysThatAreNoneAreRefused_data();
    void keysThatAreNoneAreRefused();
    void aDeadConnectionIsInactive();

private:
    std::unique_ptr<RealInput> m_input;
    /** The socket of the shortcuts' connection. */
    int m_ownSocket = -1;
};

void TestShortcutRegistration::initTestCase()
{
    const QSet<int> before = openSockets();
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QVERIFY(shortcut->active());
    const QSet<int> made = openSockets() - before;
    QCOMPARE(made.count(), 1);
    m_ownSocket = *made.cbegin();
}

void TestShortcutRegistration::init()
{
    setLayout("us");
    m_input = std::make_unique<RealInput>();
    QVERIFY(m_input->isValid());
}

void TestShortcutRegistration::cleanup()
{
    m_input.reset();
}

void TestShortcutRegistration::isRefusedWhileAnotherProgramHoldsIt()
{
    OtherProgram holder(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
    QTRY_COMPARE(holder.lines(), QStringList({ QStringLiteral("held") }));
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    QVERIFY(!shortcut->active());

    holder.kill();
    QTRY_VERIFY(shortcut->active());
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutRegistration::holdsItAgainstOtherPrograms()
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

void TestShortcutRegistration::activatingAndDestroyingTwiceIsHarmless()
{
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QSignalSpy activated(shortcut.get(), &OlvShortcut::activated);
    shortcut->destroy();
    QVERIFY(shortcut->active());
    QVERIFY(shortcut->active());
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(activated.count(), 1);
    shortcut->destroy();
    shortcut->destroy();
    pressWithControl(*m_input, symbolF5);
    QTest::qWait(100);
    QCOMPARE(activated.count(), 1);
    QVERIFY(shortcut->active());
}

void TestShortcutRegistration::secondObjectOfACombinationIsRefused()
{
    const std::unique_ptr<OlvShortcut> first(ctrl(Qt::Key_F5));
    QSignalSpy activated(first.get(), &OlvShortcut::activated);
    QVERIFY(first->active());
    {
        const std::unique_ptr<OlvShortcut> second(ctrl(Qt::Key_F5));
        QVERIFY(!second->active());
        second->destroy();
    }
    pressWithControl(*m_input, symbolF5);
    QTRY_COMPARE(activated.count(), 1);
}

void TestShortcutRegistration::combinationsThatShareAKeyAreOne()
{
    OlvShortcut plain(Qt::Key_Exclam, true, false, false, false);
    OlvShortcut shifted(Qt::Key_1, true, true, false, false);
    QVERIFY(plain.active());
    QVERIFY(!shifted.active());
    plain.destroy();
    QVERIFY(shifted.active());
}

void TestShortcutRegistration::destructorLetsGo()
{
    ctrl(Qt::Key_F5)->setParent(this);
    auto *shortcut = findChild<OlvShortcut *>();
    QVERIFY(shortcut->active());
    delete shortcut;
    OtherProgram other(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
    QTRY_COMPARE(other.lines(), QStringList({ QStringLiteral("held") }));
}

void TestShortcutRegistration::keysThatAreNoneAreRefused_data()
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

void TestShortcutRegistration::keysThatAreNoneAreRefused()
{
    QFETCH(int, key);
    OlvShortcut shortcut(Qt::Key(key), true, false, false, false);
    QVERIFY(!shortcut.active());
    QVERIFY(!shortcut.active());
}

void TestShortcutRegistration::aDeadConnectionIsInactive()
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

QTEST_MAIN(TestShortcutRegistration)
#include "tst_shortcutregistration.moc"
