// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "fakeshortcut.h"
#include "testprogram.h"

#include <OlvShortcutEdit>

#include <QTest>

#include <cstddef>
#include <limits>

namespace {

QString controlF5()
{
    return QStringLiteral("Ctrl+F5");
}

QString controlF6()
{
    return QStringLiteral("Ctrl+F6");
}

/** Shortcuts that all lie at the same address, one after the other. */
class SamePlaceShortcut : public FakeShortcut
{
public:
    using FakeShortcut::FakeShortcut;
    static void *operator new(size_t size)
    {
        static std::max_align_t place[64];
        return size <= sizeof place ? place : nullptr;
    }
    static void operator delete(void * /*place*/) { }
};

/** A shortcut that counts how often it is asked for its text. */
class CountingShortcut : public FakeShortcut
{
public:
    using FakeShortcut::FakeShortcut;
    QString toString() override
    {
        ++asked;
        return FakeShortcut::toString();
    }

    int asked = 0;
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
    void isReadByTheWord_data();
    void isReadByTheWord();
    void standsEveryPartOfTheText_data();
    void standsEveryPartOfTheText();
    void takesTheFocus();
    void tellsOfEveryChange();
    void tellsOfAShortcutThatIsDeleted();
    void tellsOfAShortcutInThePlaceOfTheOneBefore();
    void standsAShortcutThatASlotDeletes();
    void asksTheShortcutOnlyWhileSomebodyLooks();
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
    QVERIFY(edit.setShortcut(new FakeShortcut(controlF5())));
    QCOMPARE(valueOf(edit), QStringLiteral("Ctrl+F5"));
    edit.clear();
    QCOMPARE(valueOf(edit), QString());
}

void TestAccessibleShortcutEdit::isReadAsAText()
{
    OlvShortcutEdit edit(new FakeShortcut(controlF5()));
    edit.resize(200, 30);
    edit.show();
    QAccessibleTextInterface *text = accessible(&edit)->textInterface();
    QVERIFY(text);
    QCOMPARE(text->characterCount(), 7);
    QCOMPARE(text->text(0, 7), QStringLiteral("Ctrl+F5"));
    QCOMPARE(text->text(5, 7), QStringLiteral("F5"));
    QCOMPARE(text->text(5, 4), QString());
    QCOMPARE(text->text(-1, std::numeric_limits<int>::max()), QStringLiteral("Ctrl+F5"));
    QCOMPARE(text->text(std::numeric_limits<int>::max(), -2), QString());
    QCOMPARE(text->text(3, std::numeric_limits<int>::min()), QString());
    QCOMPARE(text->characterRect(0), accessible(&edit)->rect());
    int start = -1;
    int end = -1;
    text->setSelection(0, 2, 5);
    text->addSelection(2, 5);
    QCOMPARE(text->selectionCount(), 0);
    text->selection(0, &start, &end);
    QCOMPARE(start, 0);
    QCOMPARE(end, 0);
    text->setCursorPosition(3);
    QCOMPARE(text->cursorPosition(), 0);
    QCOMPARE(text->offsetAtPoint(accessible(&edit)->rect().center()), -1);
    start = end = -1;
    QCOMPARE(text->attributes(3, &start, &end), QString());
    QCOMPARE(start, 0);
    QCOMPARE(end, 7);
    QCOMPARE(text->textAtOffset(6, QAccessible::LineBoundary, &start, &end),
             QStringLiteral("Ctrl+F5"));
    QVERIFY(!accessible(&edit)->editableTextInterface());
    QVERIFY(accessible(&edit)->state().readOnly);
}

void TestAccessibleShortcutEdit::isReadByTheWord_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("boundary");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("read");
    QTest::addColumn<int>("start");
    const QString keys = QStringLiteral("Ctrl+F5");
    const QString blanks = QStringLiteral(" F5 ");
    const auto word = int(QAccessible::WordBoundary);
    const auto sentence = int(QAccessible::SentenceBoundary);
    QTest::newRow("first word") << keys << word << 0 << QStringLiteral("Ctrl") << 0;
    QTest::newRow("within the first word") << keys << word << 3 << QStringLiteral("Ctrl") << 0;
    QTest::newRow("between the words") << keys << word << 4 << QStringLiteral("+") << 4;
    QTest::newRow("last word") << keys << word << 6 << QStringLiteral("F5") << 5;
    QTest::newRow("behind the last word") << keys << word << 7 << QString() << 7;
    QTest::newRow("the end, however long") << keys << word << -1 << QString() << 7;
    QTest::newRow("beyond the end") << keys << word << 8 << QString() << -1;
    QTest::newRow("before the beginning") << keys << word << -2 << QString() << -1;
    QTest::newRow("no word") << QString() << word << 0 << QString() << -1;
    QTest::newRow("blank before a word") << blanks << word << 0 << QStringLiteral(" ") << 0;
    QTest::newRow("blank behind a word") << blanks << word << 4 << QStringLiteral(" ") << 3;
    QTest::newRow("sentence") << keys << sentence << 3 << keys << 0;
    QTest::newRow("behind the sentence") << keys << sentence << 7 << QString() << 7;
    QTest::newRow("line") << keys << int(QAccessible::LineBoundary) << 7 << keys << 0;
}

void TestAccessibleShortcutEdit::isReadByTheWord()
{
    QFETCH(QString, name);
    QFETCH(int, boundary);
    QFETCH(int, offset);
    QFETCH(QString, read);
    QFETCH(int, start);
    OlvShortcutEdit edit(new FakeShortcut(name));
    int first = 0;
    int last = 0;
    QCOMPARE(accessible(&edit)->textInterface()->textAtOffset(
                 offset, QAccessible::TextBoundaryType(boundary), &first, &last),
             read);
    QCOMPARE(first, start);
    QCOMPARE(last, start + read.size());
}

void TestAccessibleShortcutEdit::standsEveryPartOfTheText_data()
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("part");
    QTest::newRow("nothing") << 3 << 3 << QString();
    QTest::newRow("end before start") << 5 << 2 << QString();
    QTest::newRow("end far before start") << most << least << QString();
    QTest::newRow("from before the text") << -3 << 4 << QStringLiteral("Ctrl");
    QTest::newRow("from far before the text") << least << 4 << QStringLiteral("Ctrl");
    QTest::newRow("before the text") << -3 << -1 << QString();
    QTest::newRow("far before the text") << least << least + 1 << QString();
    QTest::newRow("beyond the text") << 5 << 8 << QStringLiteral("F5");
    QTest::newRow("far beyond the text") << 5 << most << QStringLiteral("F5");
    QTest::newRow("behind the text") << 7 << 9 << QString();
    QTest::newRow("far behind the text") << most - 1 << most << QString();
    QTest::newRow("everything there is") << least << most << QStringLiteral("Ctrl+F5");
}

void TestAccessibleShortcutEdit::standsEveryPartOfTheText()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(QString, part);
    OlvShortcutEdit edit(new FakeShortcut(controlF5()));
    QAccessibleTextInterface *text = accessible(&edit)->textInterface();
    QCOMPARE(text->text(start, end), part);
    edit.clear();
    QCOMPARE(text->text(start, end), QString());
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
    QVERIFY(edit.setShortcut(new FakeShortcut(controlF5())));
    QCOMPARE(assistant.heardOf(&edit), QStringList{ QStringLiteral("text  > Ctrl+F5") });
    QVERIFY(edit.setShortcut(new FakeShortcut(controlF6())));
    QCOMPARE(assistant.heardOf(&edit), QStringList{ QStringLiteral("text Ctrl+F5 > Ctrl+F6") });
    edit.setProperty("HasOlvShortcut", false);
    QCOMPARE(assistant.heardOf(&edit), QStringList{ QStringLiteral("text Ctrl+F6 > ") });
}

void TestAccessibleShortcutEdit::tellsOfAShortcutThatIsDeleted()
{
    OlvShortcutEdit edit(new FakeShortcut(controlF5()));
    edit.show();
    Assistant assistant;
    QStringList heard;
    delete edit.shortcut();
    QTRY_COMPARE((heard += assistant.heardOf(&edit)),
                 QStringList{ QStringLiteral("text Ctrl+F5 > ") });
    QVERIFY(edit.setShortcut(new FakeShortcut(controlF6())));
    delete edit.shortcut();
    QTRY_COMPARE((heard += assistant.heardOf(&edit)).last(), QStringLiteral("text Ctrl+F6 > "));
}

void TestAccessibleShortcutEdit::tellsOfAShortcutInThePlaceOfTheOneBefore()
{
    OlvShortcutEdit edit(new SamePlaceShortcut(controlF5()));
    edit.show();
    Assistant assistant;
    const QVariant place = edit.property("OlvShortcut");
    delete edit.shortcut();
    QVERIFY(edit.setShortcut(new SamePlaceShortcut(controlF6())));
    QCOMPARE(edit.property("OlvShortcut"), place);
    QCOMPARE(assistant.heardOf(&edit), QStringList{ QStringLiteral("text Ctrl+F5 > Ctrl+F6") });
}

void TestAccessibleShortcutEdit::standsAShortcutThatASlotDeletes()
{
    OlvShortcutEdit edit;
    connect(&edit, &OlvShortcutEdit::shortcutChanged, this, [&] { delete edit.shortcut(); });
    edit.show();
    Assistant assistant; // hears of the signal after that slot
    QVERIFY(edit.setShortcut(new FakeShortcut(controlF5())));
    QCOMPARE(assistant.heardOf(&edit),
             (QStringList{ QStringLiteral("text  > Ctrl+F5"), QStringLiteral("text Ctrl+F5 > ") }));
}

void TestAccessibleShortcutEdit::asksTheShortcutOnlyWhileSomebodyLooks()
{
    auto *shortcut = new CountingShortcut(controlF5());
    OlvShortcutEdit edit(shortcut);
    QVERIFY(accessible(&edit));
    shortcut->asked = 0;
    edit.setProperty("mine", 1);
    QCOMPARE(shortcut->asked, 0);
    const Assistant assistant;
    edit.setProperty("mine", 2);
    QVERIFY(shortcut->asked > 0);
}

ADD_TEST(TestAccessibleShortcutEdit, QApplication)
#include "tst_accessibleshortcutedit.moc"
