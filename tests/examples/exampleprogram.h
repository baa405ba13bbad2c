// SPDX-License-Identifier: MIT
#pragma once

#include "realinput.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

/**
 * An example as its user runs it: a separate program, with its own settings, that is operated
 * through the X server. Questions about a window refer to the one that was found last.
 */
class ExampleProgram
{
public:
    explicit ExampleProgram(const QString &program);
    ~ExampleProgram();

    /** Starts the program, again as well; programs that it starts are looked for in @p path. */
    bool start(const QStringList &options = QStringList(), const QString &path = QString());
    void kill();
    /** Whether it ends, or has ended, successfully and without any output of errors. */
    bool ends();
    bool isRunning() const;
    qint64 processId() const;

    /** Looks for the window of that title that the window manager lists as the @p nth. */
    bool findWindow(const QString &title, int nth = 0);
    /** How many windows the window manager has. */
    int windowCount() const;
    bool isActive() const;
    /** Whether another window has the keyboard, a dialog of the program's for example. */
    bool isAnotherActive() const;
    QRect geometry() const;
    /** What xprop says of a property of the window. */
    QByteArray property(const QString &name) const;
    QImage picture() const;
    /** Asks the window manager to close the window. */
    void close() const;

    RealInput &input();
    /** Clicks a place in the window; what is left of the left or above the top edge counts from the
     * opposite one. */
    void click(QPoint place);
    void type(const QString &text) const;
    void press(const QString &key) const;

    /** A file in the folder of the program's own. */
    QString path(const QString &name) const;
    QByteArray read(const QString &name) const;
    void write(const QString &name, const QByteArray &content) const;

private:
    Q_DISABLE_COPY(ExampleProgram)
    bool awaitNoWindow() const;

    QString m_program;
    QTemporaryDir m_home;
    QProcess m_process;
    quintptr m_window = 0;
    RealInput m_input;
};
