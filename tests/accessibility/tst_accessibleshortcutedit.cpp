// SPDX-License-Identifier: MIT
#include "assistant.h"

#include <OlvShortcutEdit>

#include <QTest>

namespace {

/** A shortcut that can always be had. */
class FreeShortcut : public OlvShortcut
{
public:
    explicit FreeShortcut(Qt::Key key)
        : OlvShortcut(key, true, false, false, false)
    { }
    bool active() override
    {
        return true;
    }
};

QString valueOf(OlvShortcutEdit &edit)
{
    return accessible(&edit)->text(QAccessible::Value);
}

} // namespace

class TestAccessibleShortcutEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isCalledByItsHintUnlessItHasAName();
    void itsValueIsTheShortcut();
    void isReadAsAText();
    void takesTheFocus();
    void tellsOfEveryChange();
};

void TestAccessibleShortcutEdit::isCalledByItsHintUnlessItHasAName()
{
    OlvShortcutEdit edit;
    const QString hint = QStringLiteral("请直接在键盘上输入新的快捷键");
    QCOMPARE(nameOf(&edit), hint);
    edit.setAccessibleName(QStringLiteral("Record"));
    QCOMPARE(nameOf(&edit), QStringLiteral("Record"));
    QCOMPARE(accessible(&edit)->text(QAccessible::Description), hint);
}

void TestAccessibleShortcutEdit::itsValueIsTheShortcut()
{
    OlvShortcutEdit edit;
    QCOMPARE(valueOf(edit), QString());
    QVERIFY(edit.setShortcut(new FreeShortcut(Qt::Key_F5)));
    QCOMPARE(valueOf(edit), QStringLiteral("Ctrl+F5"));
    edit.clear();
    QCOMPARE(valueOf(edit), QString());
}

void TestAccessibleShortcutEdit::isReadAsAText()
{
    OlvShortcutEdit edit(new FreeShortcut(Qt::Key_F5));
    edit.resize(200, 30);
    edit.show();
    QAccessibleTextInterface *text = accessible(&edit)->textInterface();
    QVERIFY(text);
    QCOMPARE(text->characterCount(), 7);
    QCOMPARE(text->text(0, 7), QStringLiteral("Ctrl+F5"));
    QCOMPARE(text->text(5, 7), QStringLiteral("F5"));
    QCOMPARE(text->characterRect(0), accessible(&edit)->rect());
    QCOMPARE(text->selectionCount(), 0);
    int start = -1;
    int end = -1;
    QCOMPARE(text->attributes(3, &start, &end), QString());
    QCOMPARE(start, 0);
    QCOMPARE(end, 7);
    QCOMPARE(text->textAtOffset(6, QAccessible::LineBoundary, &start, &end),
             QStringLiteral("Ctrl+F5"));
    QVERIFY(!accessible(&edit)->editableTextInterface());
}

void TestAccessibleShortcutEdit::takesTheFocus()
{
    OlvShortcutEdit edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QVERIFY(accessible(&edit)->state().focusable);
    edit.clearFocus();
    QVERIFY(act(&edit, QAccessibleActionInterface::setFocusAction()));
    QVERIFY(edit.hasFocus());
    QVERIFY(accessible(&edit)->state().focused);
}

void TestAccessibleShortcutEdit::tellsOfEveryChange()
{
    Assistant assistant;
    OlvShortcutEdit edit;
    edit.show();
    QVERIFY(edit.setShortcut(new FreeShortcut(Qt::Key_F5)));
    QCOMPARE(assistant.heardOf(&edit), QStringList{ QStringLiteral("text  > Ctrl+F5") });
    QVERIFY(edit.setShortcut(new FreeShortcut(Qt::Key_F6)));
    QCOMPARE(assistant.heardOf(&edit), QStringList{ QStringLiteral("text Ctrl+F5 > Ctrl+F6") });
    edit.setProperty("HasOlvShortcut", false);
    QCOMPARE(assistant.heardOf(&edit), QStringList{ QStringLiteral("text Ctrl+F6 > ") });
}

QTEST_MAIN(TestAccessibleShortcutEdit)
#include "tst_accessibleshortcutedit.moc"
