// SPDX-License-Identifier: MIT
#include "subjects.h"

#include "fakeshortcut.h"

#include <OlvLineEdit>
#include <OlvShortcutEdit>
#include <OlvSimpleIconButton>

#include <QAccessible>
#include <QFocusEvent>
#include <QLineEdit>

namespace {

using namespace DeletionTable;

OlvLineEdit *asLine(QWidget *widget)
{
    return static_cast<OlvLineEdit *>(widget);
}

void sendFocus(QWidget *widget, QEvent::Type type)
{
    QFocusEvent event(type);
    QCoreApplication::sendEvent(asLine(widget)->lineEdit(), &event);
}

Subject line()
{
    const auto hidePassword = [](QWidget *widget) {
        asLine(widget)->setPassWord(true);
    };
    // the text has not got the name of the line then
    const auto forgetLook = [](QWidget *widget) {
        QAccessible::deleteAccessibleInterface(
            QAccessible::uniqueId(QAccessible::queryAccessibleInterface(widget)));
        asLine(widget)->lineEdit()->setAccessibleName(QString());
        widget->setToolTip(QStringLiteral("tip"));
    };
    return { QStringLiteral("OlvLineEdit"),
             [](QWidget *parent) -> QWidget * { return new OlvLineEdit(parent); },
             {
                 call<OlvLineEdit>("setText",
                                   [](OlvLineEdit *line) { line->setText(QStringLiteral("b")); }),
                 call<OlvLineEdit>("setValue",
                                   [](OlvLineEdit *line) { line->setValue(QStringLiteral("b")); }),
                 call<OlvLineEdit>(
                     "setPlaceholderText",
                     [](OlvLineEdit *line) { line->setPlaceholderText(QStringLiteral("b")); }),
                 call<OlvLineEdit>(
                     "setIcon", [](OlvLineEdit *line) { line->setIcon(QStringLiteral("abcde")); }),
                 { QStringLiteral("setPassWord(true)"), hidePassword },
                 { QStringLiteral("setPassWord(false)"),
                   [](QWidget *widget) { asLine(widget)->setPassWord(false); }, hidePassword },
                 call<OlvLineEdit>("setPwdIcon",
                                   [](OlvLineEdit *line) {
                                       line->setPwdIcon(QStringLiteral("a"), QStringLiteral("b"));
                                   }),
                 { QStringLiteral("click of the password button"),
                   [](QWidget *widget) { widget->findChild<OlvSimpleIconButton *>()->click(); },
                   hidePassword },
                 { QStringLiteral("first look of an assistive program"),
                   [](QWidget *widget) { QAccessible::queryAccessibleInterface(widget); },
                   forgetLook },
                 { QStringLiteral("focus into the text"),
                   [](QWidget *widget) { sendFocus(widget, QEvent::FocusIn); }, nullptr, true },
                 { QStringLiteral("focus out of the text"),
                   [](QWidget *widget) { sendFocus(widget, QEvent::FocusOut); },
                   [](QWidget *widget) { sendFocus(widget, QEvent::FocusIn); }, true },
             } };
}

Subject shortcutField()
{
    const auto hold = [](QWidget *widget) {
        static_cast<OlvShortcutEdit *>(widget)->setShortcut(
            new FakeShortcut(QStringLiteral("text")));
    };
    return { QStringLiteral("OlvShortcutEdit"),
             [](QWidget *parent) -> QWidget * { return new OlvShortcutEdit(parent); },
             {
                 { QStringLiteral("setShortcut"), hold },
                 { QStringLiteral("setShortcut in place of one"),
                   [](QWidget *widget) {
                       static_cast<OlvShortcutEdit *>(widget)->setShortcut(
                           new FakeShortcut(QStringLiteral("other")));
                   },
                   hold },
                 call<OlvShortcutEdit>("setValue",
                                       [](OlvShortcutEdit *edit) {
                                           edit->setValue(
                                               addressOf(new FakeShortcut(QStringLiteral("text"))));
                                       }),
                 { QStringLiteral("clear"),
                   [](QWidget *widget) { static_cast<OlvShortcutEdit *>(widget)->clear(); }, hold },
             } };
}

} // namespace

QVector<Subject> DeletionTable::inputSubjects()
{
    return { line(), shortcutField() };
}
