// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessiblewidget_p.h"

class QLineEdit;

/**
 * An OlvLineEdit: a group of the text and the password button. The text gets the focus and is what
 * assistive programs read out, so it takes the name of the group.
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
