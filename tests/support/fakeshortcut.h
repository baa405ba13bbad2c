// SPDX-License-Identifier: MIT
#pragma once

#include <OlvShortcut>

#include <QStringList>

#include <functional>

/** A shortcut that writes down what becomes of it, and is active when it is told to be. */
class FakeShortcut : public OlvShortcut
{
public:
    explicit FakeShortcut(const QString &name, bool isGrantable = true)
        : OlvShortcut(Qt::Key_A, false, false, false, false)
        , grantable(isGrantable)
        , m_name(name)
    { }
    ~FakeShortcut() override
    {
        record().append(m_name + QStringLiteral(" deleted"));
    }
    bool active() override
    {
        record().append(m_name + QStringLiteral(" active"));
        if (onActive) {
            onActive();
        }
        return grantable;
    }
    void destroy() override
    {
        record().append(m_name + QStringLiteral(" destroyed"));
        if (onDestroy) {
            onDestroy();
        }
    }
    QString toString() override
    {
        return m_name;
    }
    static QStringList &record()
    {
        static QStringList lines;
        return lines;
    }

    /** What active() answers. */
    bool grantable;
    std::function<void()> onActive;
    std::function<void()> onDestroy;

private:
    QString m_name;
};

inline QStringList takeRecord()
{
    QStringList lines;
    lines.swap(FakeShortcut::record());
    return lines;
}

inline qulonglong addressOf(const OlvShortcut *shortcut)
{
    return reinterpret_cast<qulonglong>(shortcut);
}
