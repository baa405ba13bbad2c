// SPDX-License-Identifier: MIT
#include "keyplay.h"
#include "portalscene.h"
#include "testprogram.h"

#include <OlvShortcutEdit>

#include <QPointer>
#include <QTest>

#include <memory>

/** A field whose shortcuts a desktop's portal grants late, or refuses. */
class TestShortcutEditPortal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void takesItOverOnceItIsGranted();
    void keepsTheOneBeforeWhenItIsRefused();
    void lastOneCounts();
    void clearGivesUpWhatIsPending();
    void goesWithWhatIsPending();
    void mayBeDeletedWhenItIsGranted();
    void keepsWhatTheDesktopTakesBack();

private:
    void type(const char *events)
    {
        play(*m_edit, QString::fromLatin1(events));
    }
    QString value() const
    {
        return m_edit->getValue().toString();
    }

    PortalScene m_scene;
    std::unique_ptr<OlvShortcutEdit> m_edit;
    QStringList m_signals;
};

void TestShortcutEditPortal::init()
{
    m_scene.begin();
    m_edit = std::make_unique<OlvShortcutEdit>();
    m_signals.clear();
    connect(m_edit.get(), &OlvShortcutEdit::shortcutChanged, this, [this](OlvShortcut *shortcut) {
        m_signals.append(QStringLiteral("shortcut ") + shortcut->toString());
    });
    connect(m_edit.get(), &OlvWidget::valueChanged, this, [this](const QVariant &value) {
        m_signals.append(QStringLiteral("value ") + value.toString());
    });
}

void TestShortcutEditPortal::cleanup()
{
    m_edit.reset();
    m_scene.end();
}

void TestShortcutEditPortal::takesItOverOnceItIsGranted()
{
    auto *shortcut = new NotingShortcut(Qt::Key_F5);
    QVERIFY(!m_edit->setShortcut(shortcut));
    QCOMPARE(m_edit->shortcut(), nullptr);
    QCOMPARE(value(), QStringLiteral("nullptr"));
    QVERIFY(!m_edit->setShortcut(shortcut)); // which changes nothing
    QCOMPARE(m_signals, QStringList());
    QTRY_COMPARE(
        m_signals,
        QStringList({ QStringLiteral("shortcut Ctrl+F5"), QStringLiteral("value Ctrl+F5") }));
    QCOMPARE(m_edit->shortcut(), shortcut);
    m_scene.portal->press(portalId("F5"));
    QTRY_COMPARE(shortcut->presses, 1);
    QCOMPARE(m_scene.portal->calls().count(), 2);
}

void TestShortcutEditPortal::keepsTheOneBeforeWhenItIsRefused()
{
    type("+ctrl +f5 -f5 -ctrl");
    QTRY_COMPARE(value(), QStringLiteral("Ctrl+F5"));
    m_signals.clear();
    m_scene.portal->refusesAll = true;
    const QPointer<OlvShortcut> refused(new NotingShortcut(Qt::Key_A));
    expectWarning("they have not been confirmed");
    QVERIFY(!m_edit->setShortcut(refused));
    QVERIFY(refused);
    QTRY_VERIFY(!refused);
    QCOMPARE(value(), QStringLiteral("Ctrl+F5"));
    QCOMPARE(m_signals, QStringList());
    QCOMPARE(m_scene.portal->bound(), QStringList{ portalId("F5") });
}

void TestShortcutEditPortal::lastOneCounts()
{
    const QPointer<OlvShortcut> first(new NotingShortcut(Qt::Key_F5));
    QVERIFY(!m_edit->setShortcut(first));
    type("+ctrl +a -a -ctrl");
    QVERIFY(!first);
    QTRY_COMPARE(value(), QStringLiteral("Ctrl+A"));
    QCOMPARE(m_scene.portal->bound(), QStringList{ portalId("a") });
    // in place of the one that is held, which is released
    type("+ctrl +b -b -ctrl");
    QCOMPARE(value(), QStringLiteral("Ctrl+A"));
    QTRY_COMPARE(value(), QStringLiteral("Ctrl+B"));
    QTRY_COMPARE(m_scene.portal->bound(), QStringList{ portalId("b") });
}

void TestShortcutEditPortal::clearGivesUpWhatIsPending()
{
    const QPointer<OlvShortcut> shortcut(new NotingShortcut(Qt::Key_F5));
    QVERIFY(!m_edit->setShortcut(shortcut));
    m_edit->clear();
    QVERIFY(!shortcut);
    QTest::qWait(settlingTime);
    QCOMPARE(m_signals, QStringList());
    QCOMPARE(m_scene.portal->bound(), QStringList());
}

void TestShortcutEditPortal::goesWithWhatIsPending()
{
    const QPointer<OlvShortcut> shortcut(new NotingShortcut(Qt::Key_F5));
    QVERIFY(!m_edit->setShortcut(shortcut));
    QTest::qWait(60);
    m_edit.reset();
    QVERIFY(!shortcut);
    QTest::qWait(settlingTime);
    QCOMPARE(m_scene.portal->bound(), QStringList());
}

void TestShortcutEditPortal::mayBeDeletedWhenItIsGranted()
{
    const QPointer<OlvShortcut> shortcut(new NotingShortcut(Qt::Key_F5));
    QVERIFY(!m_edit->setShortcut(shortcut));
    connect(m_edit.get(), &OlvShortcutEdit::shortcutChanged, this, [this] { m_edit.reset(); });
    QTRY_VERIFY(!m_edit);
    QVERIFY(!shortcut);
}

void TestShortcutEditPortal::keepsWhatTheDesktopTakesBack()
{
    auto *shortcut = new NotingShortcut(Qt::Key_F5);
    QVERIFY(!m_edit->setShortcut(shortcut));
    QTRY_COMPARE(m_edit->shortcut(), shortcut);
    m_signals.clear();
    expectWarning("the portal has ended");
    m_scene.portal.reset();
    QTRY_COMPARE(shortcut->state(), OlvShortcut::Inactive);
    QCOMPARE(value(), QStringLiteral("Ctrl+F5"));
    QCOMPARE(m_signals, QStringList());
}

ADD_TEST(TestShortcutEditPortal, QApplication)
#include "tst_shortcuteditportal.moc"
