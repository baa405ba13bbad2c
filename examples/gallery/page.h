// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QPlainTextEdit;
class QVBoxLayout;

/** One page of the gallery: a title, a sentence, the widgets, and a log of their signals. */
class Page : public QWidget
{
public:
    Page(const QString &title, const QString &about, QWidget *parent);

    /** Where the page's widgets go, between the sentence and the log. */
    QVBoxLayout *content() const;
    /** Adds a heading in small type above what is added to content() next. */
    void addHeading(const QString &text);
    /** Appends a line to the log. */
    void log(const QString &line);

private:
    QVBoxLayout *m_content;
    QPlainTextEdit *m_log;
};

/** The family of the icon font, whose glyphs the pages show. */
QString iconFamily();
