// SPDX-License-Identifier: MIT
#include "keyplay.h"
#include "otherprogram.h"
#include "shortcutkeys.h"
#include "testprogram.h"

#include <OlvShortcutEdit>

#include <QSignalSpy>
#include <QTest>

class TestShortcutEditOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void triesEveryCombinationThatIsReleased_data();
    void triesEveryCombinationThatIsReleased();
    void typedCombinationWorksInAnotherWindow();
    void clearingAndDestroyingReleaseIt();
    void combinationThatIsTakenLeavesTheOneBefore();
};

void TestShortcutEditOnServer::triesEveryCombinationThatIsReleased_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QStringList>("taken");
    const auto row = [](const char *events, const char *taken) {
        const QString texts = QString::fromLatin1(taken);
        QTest::newRow(events) << QString::fromLatin1(events)
                              << (texts.isEmpty() ? QStringList() : texts.split(QLatin1Char(' ')));
    };
    row("+f5 -f5", "F5");
    row("+ctrl +f5 -f5", "Ctrl+F5");
    row("+shift +f5 -f5", "Shift+F5");
    row("+alt +f5 -f5", "Alt+F5");
    row("+meta +f5 -f5", "Meta+F5");
    row("+shift +ctrl +a -a", "Ctrl+Shift+A");
    row("+ctrl +shift +a -a -shift -ctrl", "Ctrl+Shift+A");
    row("+alt +ctrl +a -a -alt -ctrl", "Ctrl+Alt+A");
    row("+alt +meta +f5 -f5", "Meta+Alt+F5");
    row("+meta +shift +f5 -f5", "Meta+Shift+F5");
    row("+shift +alt +meta +ctrl +f5 -f5", "Meta+Ctrl+Alt+Shift+F5");
    row("+back -back", "Backspace");
    // the modifiers are those that are still held
    row("+ctrl +shift +a -shift -a", "Ctrl+A");
    row("+ctrl +shift +a -ctrl -a", "Shift+A");
    row("+alt +meta +a -meta -a", "Alt+A");
    row("+ctrl +a -ctrl -a", "A");
    // the key is the one pressed last, which may be held still
    row("+ctrl +a +b -a", "Ctrl+B");
    row("+a +b -a -b", "B");
    row("+a +b -b +c -a -c", "B C");
    // one after the other
    row("+ctrl +a -a -ctrl +b -b", "Ctrl+A B");
    row("+ctrl +a -a +b -b -ctrl", "Ctrl+A Ctrl+B");
    row("+ctrl +a -a +shift -a", "Ctrl+A Ctrl+Shift+A");
    row("+a -a +ctrl -ctrl +b -b", "A B");
    // no combination
    row("+ctrl +shift -shift -ctrl", "");
    row("+ctrl -ctrl -a", "");
    row("-a", "");
}

void TestShortcutEditOnServer::triesEveryCombinationThatIsReleased()
{
    QFETCH(QString, events);
    QFETCH(QStringList, taken);
    OlvShortcutEdit edit;
    QStringList shortcuts;
    QStringList values;
    connect(&edit, &OlvShortcutEdit::shortcutChanged, this,
            [&](OlvShortcut *shortcut) { shortcuts.append(shortcut->toString()); });
    connect(&edit, &OlvWidget::valueChanged, this,
            [&](const QVariant &value) { values.append(value.toString()); });
    play(edit, events);
    QCOMPARE(shortcuts, taken);
    QCOMPARE(values, taken);
    QCOMPARE(edit.getValue().toString(), taken.value(taken.size() - 1, QStringLiteral("nullptr")));
}

void TestShortcutEditOnServer::typedCombinationWorksInAnotherWindow()
{
    OlvShortcutEdit edit;
    edit.resize(200, 30);
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit, patience));
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
        return QTest::qWaitFor(said) && other.lines().value(0) == QLatin1String("held");
    };
    auto *edit = new OlvShortcutEdit;
    QVERIFY(edit->setShortcut(ctrl(Qt::Key_F5)));
    QVERIFY(!canBeHeldElsewhere());
    edit->clear();
    QVERIFY(canBeHeldElsewhere());

    QVERIFY(QTest::qWaitFor([&] { return edit->setShortcut(ctrl(Qt::Key_F5)); }));
    QVERIFY(!canBeHeldElsewhere());
    delete edit;
    QVERIFY(canBeHeldElsewhere());
}

void TestShortcutEditOnServer::combinationThatIsTakenLeavesTheOneBefore()
{
    OlvShortcutEdit edit(ctrl(Qt::Key_F6));
    OtherProgram other(
        { QStringLiteral("hold"), QString::number(symbolF5), QString::number(maskControl) });
    QTRY_COMPARE(other.lines().value(0), QStringLiteral("held"));
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit, patience));
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    QTest::keyPress(&edit, Qt::Key_Control);
    QTest::keyClick(&edit, Qt::Key_F5);
    QTest::keyRelease(&edit, Qt::Key_Control);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit.getValue().toString(), QStringLiteral("Ctrl+F6"));
}

ADD_TEST(TestShortcutEditOnServer, QApplication)
#include "tst_shortcuteditonserver.moc"
