// SPDX-License-Identifier: MIT
#include "notingshortcut.h"
#include "testprogram.h"

#include <QTest>

namespace {

QStringList warnings;
OlvShortcut *watched = nullptr;

/** A message handler of an application that looks at its shortcuts. */
void noteWarning(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &text)
{
    warnings += text + QLatin1Char(' ') + QString::number(int(watched->state()));
}

} // namespace

/** A Wayland desktop without a session bus. */
class TestShortcutWithoutBus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isToldInOneWarning();
};

void TestShortcutWithoutBus::isToldInOneWarning()
{
    NotingShortcut one(Qt::Key_F5);
    NotingShortcut two(Qt::Key_F6);
    watched = &one;
    const QtMessageHandler before = qInstallMessageHandler(noteWarning);
    const bool isActive = one.active() || two.active() || one.active();
    const bool isWarned = QTest::qWaitFor([] { return !warnings.isEmpty(); }, patience);
    // nothing more comes later, or when they are asked for again
    const bool isActiveLater = one.active() || two.active();
    QTest::qWait(100);
    qInstallMessageHandler(before);
    QVERIFY(!isActive && isWarned && !isActiveLater);
    QCOMPARE(warnings,
             QStringList{ QStringLiteral("No shortcuts %1, %2: there is no session bus 0")
                              .arg(portalId("F5"), portalId("F6")) });
    QCOMPARE(one.state(), OlvShortcut::Inactive);
    QCOMPARE(one.states, QVector<OlvShortcut::State>());
}

ADD_TEST(TestShortcutWithoutBus, QApplication)
#include "tst_shortcutwithoutbus.moc"
