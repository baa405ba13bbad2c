// SPDX-License-Identifier: MIT
#pragma once

#include <OlvIconButton>

#include <QTimer>

inline QTimer *timerOf(const OlvIconButton &button)
{
    return reinterpret_cast<QTimer *>(button.property("clickTimer").toULongLong());
}

/** A tile as an application makes it. */
class Tile : public OlvIconButton
{
public:
    explicit Tile(QSize size = { 100, 100 }, const QString &text = QStringLiteral("邮件"))
        : OlvIconButton(QChar(0xf0e0), text, QStringLiteral("FontAwesome"), nullptr, size.width(),
                        size.height())
    { }
};
