// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class AccessibleWidget;

/**
 * Tells an interface that its widget's state may have changed: the state is kept in dynamic
 * properties, which any code may write. It exists only while accessibility is active, so that
 * programs without assistive technology are not slowed down.
 */
class ChangeWatcher : public QObject
{
public:
    ChangeWatcher(QObject *widget, AccessibleWidget *accessible);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    AccessibleWidget *m_accessible;
};
