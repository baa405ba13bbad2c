// SPDX-License-Identifier: MIT
#include "page.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

constexpr int logHeight = 120;
constexpr int mostLogLines = 500;

QLabel *makeLabel(const QString &text, const QString &styleSheet = QString())
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setStyleSheet(styleSheet);
    return label;
}

} // namespace

Page::Page(const QString &title, const QString &about, QWidget *parent)
    : QWidget(parent)
    , m_content(new QVBoxLayout)
    , m_log(new QPlainTextEdit)
{
    m_log->setReadOnly(true);
    m_log->setFixedHeight(logHeight);
    m_log->setMaximumBlockCount(mostLogLines);
    m_log->setPlaceholderText(QStringLiteral("Signals appear here as they come."));
    m_log->setStyleSheet(
        QStringLiteral("border: 1px solid rgba(128,134,148,28%); border-radius: 4px;"
                       "background: palette(base); color: palette(text);"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 20);
    layout->setSpacing(10);
    layout->addWidget(makeLabel(title, QStringLiteral("font-size: 20px; font-weight: bold;")));
    layout->addWidget(makeLabel(about));
    layout->addSpacing(8);
    layout->addLayout(m_content, 1);
    layout->addWidget(m_log);
    m_content->setSpacing(12);
}

QVBoxLayout *Page::content() const
{
    return m_content;
}

void Page::addHeading(const QString &text)
{
    m_content->addWidget(makeLabel(
        text, QStringLiteral("font-size: 11px; font-weight: bold; color: rgb(144,147,153);")));
}

void Page::log(const QString &line)
{
    m_log->appendPlainText(line);
}

QString iconFamily()
{
    return QStringLiteral("FontAwesome");
}
