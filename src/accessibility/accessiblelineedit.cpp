// SPDX-License-Identifier: MIT
#include "accessibility/accessiblelineedit_p.h"

#include <QLineEdit>

AccessibleLineEdit::AccessibleLineEdit(QWidget *edit)
    : AccessibleWidget(edit, QAccessible::Grouping)
{ }

QAccessible::State AccessibleLineEdit::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    // Qt reports the focus also for a widget whose proxy has it; only the text has the focus here
    if (isValid() && widget()->focusProxy()) {
        state.focused = false;
    }
    return state;
}

QAccessibleInterface *AccessibleLineEdit::focusChild() const
{
    QWidget *proxy = isValid() ? widget()->focusProxy() : nullptr;
    return proxy && proxy == editor() && proxy->hasFocus()
        ? QAccessible::queryAccessibleInterface(proxy)
        : AccessibleWidget::focusChild();
}

void AccessibleLineEdit::doAction(const QString &name)
{
    QLineEdit *text = editor();
    if (name == setFocusAction() && text && actionNames().contains(name)) {
        text->setFocus(Qt::OtherFocusReason); // as a click on the frame does
    } else {
        AccessibleWidget::doAction(name);
    }
}

void AccessibleLineEdit::nameParts()
{
    const QString name = text(QAccessible::Name);
    QLineEdit *edit = editor();
    // a name that the application gave to the text stays
    if (edit && edit->accessibleName() == m_given && name != m_given) {
        m_given = name;
        edit->setAccessibleName(name);
    }
}

QLineEdit *AccessibleLineEdit::editor() const
{
    return isValid() ? object()->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)
                     : nullptr;
}
