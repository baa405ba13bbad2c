// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvShortcut>

#include <QTest>

/** The windows are on a server, but the shortcuts' own connection to it fails. */
class TestShortcutWithoutConnection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isNotActive();
    void canBeLetGoOfAllTheSame();
};

void TestShortcutWithoutConnection::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    // Qt has its connection already, so that only those made from now on fail
    qputenv("DISPLAY", "no server");
}

void TestShortcutWithoutConnection::isNotActive()
{
    OlvShortcut shortcut(Qt::Key_F5, true, false, false, false);
    QVERIFY(!shortcut.active());
    QVERIFY(!shortcut.active());
    OlvShortcut other(Qt::Key_F6, true, false, false, false);
    QVERIFY(!other.active());
    QCOMPARE(other.toString(), QStringLiteral("Ctrl+F6"));
}

void TestShortcutWithoutConnection::canBeLetGoOfAllTheSame()
{
    OlvShortcut shortcut(Qt::Key_F5, true, false, false, false);
    QVERIFY(!shortcut.active());
    shortcut.destroy();
    shortcut.destroy();
    QVERIFY(!shortcut.active());
}

ADD_TEST(TestShortcutWithoutConnection, QApplication)
#include "tst_shortcutwithoutconnection.moc"
