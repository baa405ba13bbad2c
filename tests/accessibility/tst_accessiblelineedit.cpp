// SPDX-License-Identifier: MIT
#include "assistant.h"
#include "testprogram.h"

#include <OlvLineEdit>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QVector>

#include <algorithm>

class TestAccessibleLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsThePartsOfALineEdit();
    void theTextIsCalledAsTheGroupIs();
    void theTextKeepsTheNameThatTheApplicationGaveIt();
    void theFocusGoesToTheText();
    void standsTheEndOfTheText();
    void standsTheEndOfAnotherAsItIsNamed();
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

void TestAccessibleLineEdit::standsTheEndOfAnotherAsItIsNamed()
{
    static QVector<QPointer<OlvLineEdit>> edits;
    const Assistant assistant;
    for (int i = 0; i < 3; ++i) {
        edits.append(new OlvLineEdit);
        edits.last()->show();
    }
    QAccessible::setActive(false);
    for (const QPointer<OlvLineEdit> &edit : qAsConst(edits)) {
        edit->setAccessibleName(QStringLiteral("User"));
    }
    // the first text that gets its name, as somebody begins to look, ends all of them
    const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
        if (event->type() == QAccessible::NameChanged) {
            for (const QPointer<OlvLineEdit> &edit : qAsConst(edits)) {
                delete edit;
            }
        }
    });
    QAccessible::setActive(true);
    QAccessible::installUpdateHandler(before);
    QVERIFY(std::none_of(edits.cbegin(), edits.cend(),
                         [](const QPointer<OlvLineEdit> &edit) { return !edit.isNull(); }));
}

ADD_TEST(TestAccessibleLineEdit, QApplication)
#include "tst_accessiblelineedit.moc"
