// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvShortcut>

#include <QElapsedTimer>
#include <QPointer>
#include <QTest>

/** What holds without an X server, here on Qt's offscreen platform. */
class TestShortcut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNotActiveWithoutAServer();
    void readsAsUsersExpect_data();
    void readsAsUsersExpect();
    void isFoundByItsAddressWhileItLives();
};

void TestShortcut::isNotActiveWithoutAServer()
{
    // a server that has none of this program's windows does not count
    qputenv("DISPLAY", ":99");
    OlvShortcut shortcut(Qt::Key_A, true, false, false, false);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!shortcut.active());
    QVERIFY(!shortcut.active());
    QVERIFY(clock.elapsed() < 1000);
    QCOMPARE(shortcut.state(), OlvShortcut::Inactive);
    shortcut.destroy();
    shortcut.destroy();
    qunsetenv("DISPLAY");
}

void TestShortcut::readsAsUsersExpect_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("modifiers");
    QTest::addColumn<QString>("text");
    const auto row = [](int key, const char *modifiers, const char *text) {
        QTest::addRow("%s", text) << key << QString::fromLatin1(modifiers)
                                  << QString::fromUtf8(text);
    };
    row(Qt::Key_A, "cs", "Ctrl+Shift+A");
    row(Qt::Key_A, "", "A");
    row(Qt::Key_F5, "c", "Ctrl+F5");
    row(Qt::Key_Escape, "", "Esc");
    row(Qt::Key_Exclam, "c", "Ctrl+!");
    row(Qt::Key_Space, "m", "Meta+Space");
    row(Qt::Key_Print, "a", "Alt+Print");
    row(Qt::Key_Delete, "csam", "Meta+Ctrl+Alt+Shift+Del");
    row(Qt::Key_Super_L, "", "Super_L");
    row(Qt::Key_Super_R, "c", "Ctrl+Super_R");
    row(Qt::Key_Shift, "c", "Ctrl+Shift");
    row(Qt::Key_AltGr, "", "AltGr");
    row(Qt::Key_unknown, "cs", "Ctrl+Shift+");
    row(Qt::Key_unknown, "", "");
    row(0, "a", "Alt+");
}

void TestShortcut::readsAsUsersExpect()
{
    QFETCH(int, key);
    QFETCH(QString, modifiers);
    QFETCH(QString, text);
    const auto has = [&](char modifier) {
        return modifiers.contains(QLatin1Char(modifier));
    };
    OlvShortcut shortcut(Qt::Key(key), has('c'), has('s'), has('a'), has('m'));
    QCOMPARE(shortcut.toString(), text);
}

void TestShortcut::isFoundByItsAddressWhileItLives()
{
    auto *parent = new QObject;
    const QPointer<OlvShortcut> shortcut(
        new OlvShortcut(Qt::Key_A, false, false, false, false, parent));
    const auto address = reinterpret_cast<qulonglong>(shortcut.data());
    QCOMPARE(shortcut->parent(), parent);
    QCOMPARE(OlvShortcut::fromAddress(address), shortcut.data());
    QCOMPARE(OlvShortcut::fromAddress(address + 1), nullptr);
    QCOMPARE(OlvShortcut::fromAddress(0), nullptr);
    delete parent;
    QVERIFY(shortcut.isNull());
    QCOMPARE(OlvShortcut::fromAddress(address), nullptr);
}

ADD_TEST(TestShortcut, QApplication)
#include "tst_shortcut.moc"
