// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QWidget>

/**
 * A tool tip of the library's own, in the application's language, until the application sets
 * another.
 */
class OwnToolTip
{
public:
    /** Gives @p widget the tool tip @p text, a literal that lupdate finds, of the class @p context.
     */
    void set(QWidget *widget, const char *context, const char *text)
    {
        m_context = context;
        m_text = text;
        m_shown = QCoreApplication::translate(m_context, m_text);
        widget->setToolTip(m_shown);
    }

    /** Follows another language. */
    void retranslate(QWidget *widget)
    {
        if (m_text && widget->toolTip() == m_shown
            && QCoreApplication::translate(m_context, m_text) != m_shown) {
            set(widget, m_context, m_text);
        }
    }

private:
    const char *m_context = nullptr;
    const char *m_text = nullptr;
    QString m_shown;
};
