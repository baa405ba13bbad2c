// SPDX-License-Identifier: MIT
#include "opensockets.h"
#include "otherprogram.h"
#include "shortcutkeys.h"
#include "testprogram.h"

#include <QAbstractEventDispatcher>
#include <QSignalSpy>

#include <memory>

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
    void stateIsKnownAtOnce();
    void combinationsThatShareAKeyAreOne();
    void destructorLetsGo();
    void keysThatAreNoneAreRefused_data();
    void keysThatAreNoneAreRefused();
    void modifiersThatNoKeyGivesAreThoseOfHabit_data();
    void modifiersThatNoKeyGivesAreThoseOfHabit();
    void connectionGoesWithTheApplication();
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

void TestShortcutRegistration::stateIsKnownAtOnce()
{
    const std::unique_ptr<OlvShortcut> first(ctrl(Qt::Key_F5));
    const std::unique_ptr<OlvShortcut> second(ctrl(Qt::Key_F5));
    const QSignalSpy changes(first.get(), &OlvShortcut::stateChanged);
    first->setDescription(QStringLiteral("Nobody is asked here"));
    QCOMPARE(first->state(), OlvShortcut::Inactive);
    QVERIFY(first->active() && !second->active());
    QCOMPARE(first->state(), OlvShortcut::Active);
    QCOMPARE(second->state(), OlvShortcut::Inactive);
    first->destroy();
    QCOMPARE(first->state(), OlvShortcut::Inactive);
    QCOMPARE(changes.count(), 0);
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

void TestShortcutRegistration::modifiersThatNoKeyGivesAreThoseOfHabit_data()
{
    QTest::addColumn<bool>("alt");
    QTest::addColumn<int>("mask");
    QTest::newRow("Alt") << true << 8;
    QTest::newRow("Super") << false << 64;
}

void TestShortcutRegistration::modifiersThatNoKeyGivesAreThoseOfHabit()
{
    QFETCH(bool, alt);
    QFETCH(int, mask);
    QCOMPARE(QProcess::execute(QStringLiteral("xmodmap"),
                               { QStringLiteral("-e"), QStringLiteral("clear mod1"),
                                 QStringLiteral("-e"), QStringLiteral("clear mod4") }),
             0);
    QTest::qWait(200);
    OlvShortcut shortcut(Qt::Key_F5, false, false, alt, !alt);
    QVERIFY(shortcut.active());
    OtherProgram other(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(mask) });
    QTRY_COMPARE(other.lines(), QStringList({ QStringLiteral("refused") }));
}

void TestShortcutRegistration::connectionGoesWithTheApplication()
{
    const QString program = QStringLiteral(OLV_SHORTCUT_AND_LEAVE);
    const int without = QProcess::execute(program, QStringList());
    QVERIFY(without >= 0);
    QCOMPARE(QProcess::execute(program, { QStringLiteral("shortcut") }), without);
}

void TestShortcutRegistration::aDeadConnectionIsInactive()
{
    // This is the last function, since the lost connection is not replaced by a new one.
    const std::unique_ptr<OlvShortcut> shortcut(ctrl(Qt::Key_F5));
    QVERIFY(shortcut->active());
    QVERIFY(m_ownSocket >= 0);
    QCOMPARE(shutdown(m_ownSocket, SHUT_RDWR), 0);
    QTest::qWait(50);
    QVERIFY(!shortcut->active());
    shortcut->destroy();
    const std::unique_ptr<OlvShortcut> later(ctrl(Qt::Key_F6));
    QVERIFY(!later->active());
    // A closed socket is always readable, so an enabled notifier would keep the event loop busy.
    QSignalSpy awake(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake);
    QTest::qWait(200);
    QVERIFY2(awake.count() < 200, QByteArray::number(awake.count()).constData());
}

ADD_TEST(TestShortcutRegistration, QApplication)
#include "tst_shortcutregistration.moc"
