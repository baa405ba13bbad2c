// SPDX-License-Identifier: MIT
// What assistive programs get to know of the focus in a form that has a support.
#include "assistant.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

namespace {

QString setFocusAction()
{
    return QAccessibleActionInterface::setFocusAction();
}

/** The widgets of a form that are said to have the focus. */
QVector<QObject *> saidToBeFocused(WidgetForm &form)
{
    QVector<QObject *> focused;
    const QList<QWidget *> widgets = form.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        QAccessibleInterface *interface = accessible(widget);
        if (interface && interface->state().focused) {
            focused.append(widget);
        }
    }
    return focused;
}

} // namespace

class TestAccessibleForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellThatTheyTakeTheFocus();
    void tellTheOneThatHasTheFocus();
    void leadToTheFocus();
    void nameTheKeyOfTheirLabel();
    void tellNothingOfTheSupport();
};

void TestAccessibleForms::tellThatTheyTakeTheFocus()
{
    WidgetForm form;
    const QVector<QWidget *> widgets{ form.wifi, form.volume, form.mail, form.save };
    for (QWidget *widget : widgets) {
        QVERIFY(!accessible(widget)->state().focusable);
    }
    auto *support = new OlvFormSupport(&form);
    for (QWidget *widget : widgets) {
        QVERIFY(accessible(widget)->state().focusable);
    }
    const auto *eye = form.password->findChild<OlvSimpleIconButton *>();
    QVERIFY(!accessible(const_cast<OlvSimpleIconButton *>(eye))->state().focusable);
    delete support;
    for (QWidget *widget : widgets) {
        QVERIFY(!accessible(widget)->state().focusable);
    }
}

void TestAccessibleForms::tellTheOneThatHasTheFocus()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.name->setFocus();
    QCOMPARE(saidToBeFocused(form), QVector<QObject *>{ form.name->lineEdit() });
    QCOMPARE(accessible(form.name)->focusChild(), accessible(form.name->lineEdit()));
    form.wifi->setFocus();
    QCOMPARE(saidToBeFocused(form), QVector<QObject *>{ form.wifi });
    form.save->setFocus();
    QCOMPARE(saidToBeFocused(form), QVector<QObject *>{ form.save });
}

void TestAccessibleForms::leadToTheFocus()
{
    WidgetForm form;
    QVERIFY(!act(form.save, setFocusAction()));
    new OlvFormSupport(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    QVERIFY(act(form.save, setFocusAction()));
    QCOMPARE(QApplication::focusWidget(), form.save);
    QVERIFY(act(form.name, setFocusAction()));
    QCOMPARE(QApplication::focusWidget(), form.name->lineEdit());
    QVERIFY(act(form.volume, setFocusAction()));
    QCOMPARE(QApplication::focusWidget(), form.volume);
}

void TestAccessibleForms::nameTheKeyOfTheirLabel()
{
    WidgetForm form;
    QCOMPARE(accessible(form.wifi)->text(QAccessible::Accelerator), QString());
    new OlvFormSupport(&form);
    QCOMPARE(accessible(form.wifi)->text(QAccessible::Accelerator), QStringLiteral("Alt+W"));
    QCOMPARE(accessible(form.name)->text(QAccessible::Accelerator), QStringLiteral("Alt+N"));
}

/** Assistive programs see the same parts in the same places. */
void TestAccessibleForms::tellNothingOfTheSupport()
{
    WidgetForm form;
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    const int before = accessible(&form)->childCount();
    new OlvFormSupport(&form);
    QTest::keyClick(&form, Qt::Key_Tab);
    QTest::keyClick(&form, Qt::Key_Tab);
    QCoreApplication::processEvents();
    QCOMPARE(accessible(&form)->childCount(), before);
}

ADD_TEST(TestAccessibleForms, QApplication)
#include "tst_accessibleforms.moc"
