// SPDX-License-Identifier: MIT
#pragma once

#include "patience.h"

#include <QProcess>
#include <QStringList>
#include <QTest>

/** Another program on the same server; what it says is kept line by line. */
class OtherProgram
{
public:
    explicit OtherProgram(const QStringList &arguments)
    {
        m_process.start(QStringLiteral(OLV_OTHER_CLIENT), arguments);
        m_process.waitForStarted();
    }
    ~OtherProgram()
    {
        kill();
    }

    QStringList lines()
    {
        m_output += m_process.readAllStandardOutput();
        const QString said = QString::fromLatin1(m_output.trimmed());
        return said.isEmpty() ? QStringList() : said.split(QLatin1Char('\n'));
    }
    /** Forgets what was said so far. */
    void forget()
    {
        lines();
        m_output.clear();
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QByteArray m_output;
};
