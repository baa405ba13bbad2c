// SPDX-License-Identifier: MIT
#include "otherprogram.h"
#include "realinput.h"

#include <OlvShortcutEdit>

#include <QSignalSpy>
#include <QTest>

namespace {

// symbols of X's keysymdef.h
constexpr quint32 symbolControl = 0xffe3;
constexpr quint32 symbolShift = 0xffe1;
constexpr quint32 symbolF5 = 0xffc2;
constexpr int maskControl = 4;

} // namespace

class TestShortcutEditOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedCombinationWorksInAnotherWindow();
    void clearingAndDestroyingReleaseIt();
    void combinationThatIsTakenLeavesTheOneBefore();
};

void TestShortcutEditOnServer::typedCombinationWorksInAnotherWindow()
{
    OlvShortcutEdit edit;
    edit.resize(200, 30);
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    edit.setFocus();
    QTRY_VERIFY(edit.hasFocus());
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    QSignalSpy valueChanged(&edit, &OlvWidget::valueChanged);

    RealInput input;
    QVERIFY(input.isValid());
    input.pressKey(symbolControl);
    input.pressKey(symbolShift);
    input.pressKey(symbolF5);
    input.releaseKey(symbolF5);
    QTRY_COMPARE(changed.count(), 1);
    input.releaseKey(symbolShift);
    input.releaseKey(symbolControl);
    QCOMPARE(valueChanged.count(), 1);
    QCOMPARE(edit.getValue().toString(), QStringLiteral("Ctrl+Shift+F5"));

    OtherProgram window({ QStringLiteral("window") });
    QTRY_VERIFY(window.lines().contains(QStringLiteral("focused")));
    QTRY_VERIFY(!edit.hasFocus());
    QSignalSpy activated(edit.shortcut(), &OlvShortcut::activated);
    input.pressKey(symbolControl);
    input.pressKey(symbolShift);
    input.pressKey(symbolF5);
    QTRY_COMPARE(activated.count(), 1);
    input.releaseKey(symbolF5);
    input.releaseKey(symbolShift);
    input.releaseKey(symbolControl);
    QCOMPARE(changed.count(), 1);
}

void TestShortcutEditOnServer::clearingAndDestroyingReleaseIt()
{
    const auto canBeHeldElsewhere = [] {
        OtherProgram other(
            { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
        const auto said = [&] {
            return !other.lines().value(0).isEmpty();
        };
        return QTest::qWaitFor(said) && other.lines().first() == QLatin1String("held");
    };
    const auto makeShortcut = [] {
        return new OlvShortcut(Qt::Key_F5, true, false, false, false);
    };
    auto *edit = new OlvShortcutEdit;
    QVERIFY(edit->setShortcut(makeShortcut()));
    QVERIFY(!canBeHeldElsewhere());
    edit->clear();
    QVERIFY(canBeHeldElsewhere());

    QVERIFY(QTest::qWaitFor([&] { return edit->setShortcut(makeShortcut()); }));
    QVERIFY(!canBeHeldElsewhere());
    delete edit;
    QVERIFY(canBeHeldElsewhere());
}

void TestShortcutEditOnServer::combinationThatIsTakenLeavesTheOneBefore()
{
    OlvShortcutEdit edit(new OlvShortcut(Qt::Key_F6, true, false, false, false));
    OtherProgram other(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
    QTRY_COMPARE(other.lines().value(0), QStringLiteral("held"));
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    QTest::keyPress(&edit, Qt::Key_Control);
    QTest::keyClick(&edit, Qt::Key_F5);
    QTest::keyRelease(&edit, Qt::Key_Control);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit.getValue().toString(), QStringLiteral("Ctrl+F6"));
}

QTEST_MAIN(TestShortcutEditOnServer)
#include "tst_shortcuteditonserver.moc"
