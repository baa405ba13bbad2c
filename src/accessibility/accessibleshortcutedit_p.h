// SPDX-License-Identifier: MIT
#pragma once

#include "accessibility/accessiblewidget_p.h"

class OlvShortcut;

/** An OlvShortcutEdit: its value is the text of its shortcut, which can be read as a text too. */
class AccessibleShortcutEdit : public AccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit AccessibleShortcutEdit(QWidget *editor);

    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    using AccessibleWidget::text;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int *start,
                         int *end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

protected:
    QVariant value() const override;
    void tellValue(const QVariant &before) override;
    void watch(QObject *watcher) override;

private:
    void watchShortcut(OlvShortcut *shortcut, QObject *watcher);

    QMetaObject::Connection m_end; // to the end of the shortcut
};
