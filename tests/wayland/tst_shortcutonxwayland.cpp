// SPDX-License-Identifier: MIT
#include "fakeportal.h"
#include "notingshortcut.h"
#include "testprogram.h"

#include <QGuiApplication>
#include <QTest>
#include <QWindow>

/**
 * An X11 program on a Wayland desktop, whose X server grants shortcuts but gets no keys while a
 * window of another kind has the focus.
 */
class TestShortcutOnXWayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isNotActiveWithoutAPortal();
    void isOfThePortal();
};

void TestShortcutOnXWayland::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
}

void TestShortcutOnXWayland::isNotActiveWithoutAPortal()
{
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    expectWarning(".*org.freedesktop.portal.Desktop");
    QTRY_COMPARE(shortcut.states, QVector<OlvShortcut::State>{ OlvShortcut::Inactive });
    QVERIFY(!shortcut.active());
}

void TestShortcutOnXWayland::isOfThePortal()
{
    FakePortal portal;
    NotingShortcut shortcut(Qt::Key_F5);
    QVERIFY(!shortcut.active());
    QTRY_VERIFY(shortcut.active());
    portal.press(portalId("F5"));
    QTRY_COMPARE(shortcut.presses, 1);
}

ADD_TEST(TestShortcutOnXWayland, QApplication)
#include "tst_shortcutonxwayland.moc"
