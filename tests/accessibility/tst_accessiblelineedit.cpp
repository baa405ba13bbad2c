// SPDX-License-Identifier: MIT
#include "assistant.h"

#include <OlvLineEdit>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

class TestAccessibleLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsThePartsOfALineEdit();
    void theTextIsCalledAsTheGroupIs();
    void theTextKeepsTheNameThatTheApplicationGaveIt();
    void theFocusGoesToTheText();
    void standsTheEndOfTheText();
};

namespace {

QLineEdit *textOf(OlvLineEdit &edit)
{
    return edit.findChild<QLineEdit *>();
}

} // namespace

void TestAccessibleLineEdit::groupsThePartsOfALineEdit()
{
    OlvLineEdit edit;
    edit.setPlaceholderText(QStringLiteral("Password"));
    edit.setPassWord(true);
    edit.setAccessibleName(QStringLiteral("Log-in"));
    QAccessibleInterface *interface = accessible(&edit);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Log-in"));
    QCOMPARE(interface->childCount(), 2);
    QCOMPARE(interface->child(0)->role(), QAccessible::EditableText);
    QCOMPARE(interface->child(1)->text(QAccessible::Name), QStringLiteral("显示密码"));
}

void TestAccessibleLineEdit::theTextIsCalledAsTheGroupIs()
{
    Assistant assistant;
    QWidget form;
    auto *edit = new OlvLineEdit;
    auto *rows = new QFormLayout(new QWidget(&form));
    rows->addRow(QStringLiteral("&Name"), edit);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QCOMPARE(nameOf(edit), QStringLiteral("Name"));
    QCOMPARE(nameOf(textOf(*edit)), QStringLiteral("Name"));
    assistant.heardOf(textOf(*edit));

    textOf(*edit)->clearFocus();
    edit->setAccessibleName(QStringLiteral("User"));
    textOf(*edit)->setFocus();
    QCOMPARE(nameOf(textOf(*edit)), QStringLiteral("User"));
    QCOMPARE(assistant.heardOf(textOf(*edit)), QStringList{ QStringLiteral("name User") });
    edit->setAccessibleName(QString());
    edit->setToolTip(QStringLiteral("as others see it"));
    QCOMPARE(nameOf(textOf(*edit)), QStringLiteral("Name"));
}

void TestAccessibleLineEdit::theTextKeepsTheNameThatTheApplicationGaveIt()
{
    OlvLineEdit edit;
    edit.setAccessibleName(QStringLiteral("Log-in"));
    textOf(edit)->setAccessibleName(QStringLiteral("Password"));
    const Assistant assistant;
    edit.show();
    QCOMPARE(nameOf(textOf(edit)), QStringLiteral("Password"));
    edit.setProperty("state", QStringLiteral("edit"));
    QCOMPARE(nameOf(textOf(edit)), QStringLiteral("Password"));
}

void TestAccessibleLineEdit::theFocusGoesToTheText()
{
    OlvLineEdit edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    const QString action = QAccessibleActionInterface::setFocusAction();
    QVERIFY(act(&edit, action));
    QVERIFY(textOf(edit)->hasFocus());
    edit.setFocus();
    edit.setEnabled(false);
    QVERIFY(!act(&edit, action));
    accessible(&edit)->actionInterface()->doAction(action);
    QVERIFY(!textOf(edit)->hasFocus());
}

void TestAccessibleLineEdit::standsTheEndOfTheText()
{
    const Assistant assistant;
    OlvLineEdit edit;
    edit.show();
    delete textOf(edit);
    edit.setAccessibleName(QStringLiteral("Log-in"));
    edit.setIcon(QChar(0xf007));
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QVERIFY(act(&edit, QAccessibleActionInterface::setFocusAction()));
    QVERIFY(edit.hasFocus());
}

QTEST_MAIN(TestAccessibleLineEdit)
#include "tst_accessiblelineedit.moc"
