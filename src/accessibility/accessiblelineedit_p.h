// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessiblewidget_p.h"

class QLineEdit;

/**
 * An OlvLineEdit: a group of the text and the password button. The keyboard is in the text, which
 * is what is read out then: so the text is called as the group is.
 */
class AccessibleLineEdit : public AccessibleWidget
{
public:
    explicit AccessibleLineEdit(QWidget *edit);

    QAccessible::State state() const override;
    QAccessibleInterface *focusChild() const override;
    void doAction(const QString &name) override;

protected:
    void nameParts() override;

private:
    QLineEdit *editor() const;

    QString m_given; // the name that the text got from here
};
