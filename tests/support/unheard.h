// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QtGlobal>

#include <algorithm>

/** While it lives, Qt may print messages that begin so, as often as it likes. One at a time. */
class Unheard
{
public:
    explicit Unheard(const QStringList &beginnings)
    {
        unheard() = beginnings;
        before() = qInstallMessageHandler(pass);
    }
    ~Unheard()
    {
        qInstallMessageHandler(before());
    }
    Q_DISABLE_COPY(Unheard)

private:
    static void pass(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (std::none_of(unheard().cbegin(), unheard().cend(),
                         [&](const QString &beginning) { return text.startsWith(beginning); })) {
            before()(type, context, text);
        }
    }

    static QStringList &unheard()
    {
        static QStringList all;
        return all;
    }
    static QtMessageHandler &before()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
};
