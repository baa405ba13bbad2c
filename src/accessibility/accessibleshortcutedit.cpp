// SPDX-License-Identifier: MIT
#include "accessibility/accessibleshortcutedit_p.h"

#include <OlvWidgets/input.h>

#include <QTextBoundaryFinder>

namespace {

/** Whether a word or a sentence begins or ends here. */
bool isEdge(const QTextBoundaryFinder &finder)
{
    return finder.boundaryReasons()
        & (QTextBoundaryFinder::StartOfItem | QTextBoundaryFinder::EndOfItem);
}

} // namespace

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
    const QString all = value().toString();
    const int length = int(all.size());
    const int first = qBound(0, start, length);
    return all.mid(first, qBound(first, end, length) - first);
}

QString AccessibleShortcutEdit::textAtOffset(int offset, QAccessible::TextBoundaryType boundary,
                                             int *start, int *end) const
{
    if (boundary != QAccessible::WordBoundary && boundary != QAccessible::SentenceBoundary) {
        return QAccessibleTextInterface::textAtOffset(offset, boundary, start, end);
    }
    // as Qt does it, whose own function does not return at the end of the text
    const QString whole = value().toString();
    const int length = int(whole.size());
    const int place = offset == -1 ? length : offset;
    *start = *end = -1;
    if (whole.isEmpty() || place < 0 || place > length) {
        return QString();
    }
    QTextBoundaryFinder finder(boundary == QAccessible::WordBoundary
                                   ? QTextBoundaryFinder::Word
                                   : QTextBoundaryFinder::Sentence,
                               whole);
    finder.setPosition(place);
    while (finder.position() > 0 && !isEdge(finder)) {
        finder.toPreviousBoundary();
    }
    *start = int(finder.position());
    do {
        finder.toNextBoundary();
    } while (finder.position() >= 0 && !isEdge(finder));
    *end = finder.position() < 0 ? length : int(finder.position());
    return whole.mid(*start, *end - *start);
}

QAccessible::State AccessibleShortcutEdit::state() const
{
    QAccessible::State state = AccessibleWidget::state();
    state.readOnly = true;
    return state;
}

int AccessibleShortcutEdit::characterCount() const
{
    return int(value().toString().size());
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

void AccessibleShortcutEdit::watch(QObject *watcher)
{
    auto *editor = qobject_cast<OlvShortcutEdit *>(object());
    const auto watchHeld = [=] {
        // not the shortcut in the signal, which another slot may have deleted
        watchShortcut(editor->shortcut(), watcher);
    };
    // a new shortcut may have the address of the previous one, so that no property changes
    QObject::connect(editor, &OlvShortcutEdit::shortcutChanged, watcher, [=] {
        watchHeld();
        tellChanges();
    });
    watchHeld();
}

/**
 * Tells that an application has deleted the shortcut; deferred, because the editor deletes one
 * itself before it sets another.
 */
void AccessibleShortcutEdit::watchShortcut(OlvShortcut *shortcut, QObject *watcher)
{
    QObject::disconnect(m_end);
    if (shortcut) {
        m_end = QObject::connect(
            shortcut, &QObject::destroyed, watcher, [=] { tellChanges(); }, Qt::QueuedConnection);
    }
}
