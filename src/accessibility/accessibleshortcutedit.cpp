// SPDX-License-Identifier: MIT
#include "accessibility/accessibleshortcutedit_p.h"

#include <OlvWidgets/input.h>

AccessibleShortcutEdit::AccessibleShortcutEdit(QWidget *editor)
    : AccessibleWidget(editor, QAccessible::HotkeyField)
{ }

void *AccessibleShortcutEdit::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface) {
        return static_cast<QAccessibleTextInterface *>(this);
    }
    return AccessibleWidget::interface_cast(type);
}

void AccessibleShortcutEdit::selection(int /*index*/, int *start, int *end) const
{
    *start = 0;
    *end = 0;
}

int AccessibleShortcutEdit::selectionCount() const
{
    return 0;
}

void AccessibleShortcutEdit::addSelection(int /*start*/, int /*end*/) { }

void AccessibleShortcutEdit::removeSelection(int /*index*/) { }

void AccessibleShortcutEdit::setSelection(int /*index*/, int /*start*/, int /*end*/) { }

int AccessibleShortcutEdit::cursorPosition() const
{
    return 0;
}

void AccessibleShortcutEdit::setCursorPosition(int /*position*/) { }

QString AccessibleShortcutEdit::text(int start, int end) const
{
    return value().toString().mid(start, qMax(end - start, 0));
}

int AccessibleShortcutEdit::characterCount() const
{
    return value().toString().size();
}

QRect AccessibleShortcutEdit::characterRect(int /*offset*/) const
{
    // the text is one combination, read as a whole
    return rect();
}

int AccessibleShortcutEdit::offsetAtPoint(const QPoint & /*point*/) const
{
    return -1;
}

void AccessibleShortcutEdit::scrollToSubstring(int /*start*/, int /*end*/) { }

QString AccessibleShortcutEdit::attributes(int /*offset*/, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return QString();
}

QVariant AccessibleShortcutEdit::value() const
{
    auto *editor = qobject_cast<OlvShortcutEdit *>(object());
    OlvShortcut *shortcut = editor ? editor->shortcut() : nullptr;
    return shortcut ? shortcut->toString() : QString();
}

void AccessibleShortcutEdit::tellValue(const QVariant &before)
{
    // instead of the change of a value, which Qt's bridge takes for one of a number
    QAccessibleTextUpdateEvent event(widget(), 0, before.toString(), value().toString());
    QAccessible::updateAccessibility(&event);
}
