// SPDX-License-Identifier: MIT
#pragma once

#include <OlvLineEdit>
#include <OlvSimpleIconButton>

#include <QCoreApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QResizeEvent>

inline QLineEdit *editorOf(const OlvLineEdit &edit)
{
    return edit.findChild<QLineEdit *>();
}

inline OlvSimpleIconButton *buttonOf(const OlvLineEdit &edit)
{
    return edit.findChild<OlvSimpleIconButton *>();
}

/** A line that has been told its size, as showing does it. */
class SizedLineEdit : public OlvLineEdit
{
public:
    explicit SizedLineEdit(QSize size = { 240, 32 })
    {
        setSize(size);
    }
    void setSize(QSize size)
    {
        resize(size);
        QResizeEvent event(size, size);
        QCoreApplication::sendEvent(this, &event);
    }
};

inline void sendFocus(QObject *receiver, QEvent::Type type)
{
    QFocusEvent event(type);
    QCoreApplication::sendEvent(receiver, &event);
}
