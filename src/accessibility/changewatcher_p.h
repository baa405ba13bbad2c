// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AccessibleWidget;

/**
 * Has an interface look whenever its widget's state may have changed: that lies in dynamic
 * properties, which anybody may write. It exists only while accessibility is active, so that the
 * widgets of a program that nobody looks at are not slowed down.
 */
class ChangeWatcher : public QObject
{
public:
    ChangeWatcher(QObject *widget, AccessibleWidget *accessible);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    AccessibleWidget *m_accessible;
};
