// SPDX-License-Identifier: MIT
#include "forms/formfocus_p.h"

#include "buttons/buttonmetrics_p.h"
#include "buttons/buttonsproperties_p.h"
#include "input/inputmetrics_p.h"

#include <QApplication>
#include <QFocusEvent>

#include <utility>

namespace {

constexpr int cornerOfGlyph = 4;

/** The radius of the corners that a widget is drawn with. */
int ringedRadius(const QWidget *widget, FormKind kind)
{
    switch (kind) {
    case FormKind::Button:
        return ButtonMetrics::cornerRadius(widget->property(ButtonsProperties::type).toString(),
                                           widget->height());
    case FormKind::Tile:
        return ButtonMetrics::tileCornerRadius;
    case FormKind::Switch:
    case FormKind::Slider:
        return widget->height() / 2;
    case FormKind::LineEdit:
    case FormKind::ShortcutEdit:
        return InputMetrics::cornerRadius;
    default:
        return cornerOfGlyph;
    }
}

/** Whether the focus is lost only temporarily: to another window, or to a menu. */
bool isForAWhile(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason
        || reason == Qt::MenuBarFocusReason;
}

/** A dialog sends its first widget an event of the focus before that has it. */
bool hasFocus(const QWidget *widget)
{
    const QWidget *focused = QApplication::focusWidget();
    return focused && (focused == widget || widget->isAncestorOf(focused));
}

} // namespace

FormFocus::~FormFocus()
{
    delete m_ring;
}

void FormFocus::handle(QWidget *widget, FormKind kind, const QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        if (hasFocus(widget)) {
            follow(widget, kind, static_cast<const QFocusEvent *>(event)->reason());
        }
    } else if (event->type() == QEvent::FocusOut) {
        const bool hadRing = m_ring && m_ring->surrounded() == widget;
        const bool comesBack = isForAWhile(static_cast<const QFocusEvent *>(event)->reason());
        m_suspended = hadRing && comesBack ? widget : nullptr;
        leave(widget);
    }
}

void FormFocus::noteKey(QWidget *widget, FormKind kind)
{
    if (hasFocus(widget) && !(m_ring && m_ring->surrounded() == widget)) {
        surround(widget, kind);
    }
}

void FormFocus::leave(const QWidget *widget)
{
    if (m_ring) {
        m_ring->leave(widget);
    }
}

void FormFocus::follow(QWidget *widget, FormKind kind, Qt::FocusReason reason)
{
    const bool wasSuspended = std::exchange(m_suspended, nullptr) == widget;
    bool isByKeyboard = false;
    switch (reason) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        isByKeyboard = true;
        break;
    case Qt::MouseFocusReason:
        break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        isByKeyboard = wasSuspended;
        break;
    case Qt::OtherFocusReason:
    case Qt::NoFocusReason:
        // as the styles of the platforms have it: once the window has been used by the keyboard
        isByKeyboard = widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
        break;
    }
    if (isByKeyboard) {
        surround(widget, kind);
    } else {
        leave(widget);
    }
}

void FormFocus::surround(QWidget *widget, FormKind kind)
{
    if (!m_ring) {
        m_ring = new FocusRing;
    }
    m_ring->surround(widget, ringedRadius(widget, kind));
}
