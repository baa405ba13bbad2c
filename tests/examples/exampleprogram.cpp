// SPDX-License-Identifier: MIT
#include "exampleprogram.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(patience);
    return process.readAllStandardOutput();
}

/** The lines of the window manager's windows: number, desktop, machine and title. */
QByteArray windowList()
{
    return outputOf(QStringLiteral("wmctrl"), { QStringLiteral("-l") });
}

/** 0 while there is none. */
qulonglong activeWindow()
{
    return outputOf(QStringLiteral("xdotool"), { QStringLiteral("getactivewindow") })
        .trimmed()
        .toULongLong();
}

} // namespace

ExampleProgram::ExampleProgram(const QString &program)
    : m_program(program)
{
    m_input.moveTo({ 1279, 799 }); // out of the way
}

ExampleProgram::~ExampleProgram()
{
    kill();
}

bool ExampleProgram::start(const QStringList &options, const QString &path)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.path());
    if (!path.isEmpty()) {
        environment.insert(QStringLiteral("PATH"), path);
    }
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(m_home.path()); // where file dialogs begin
    m_process.start(m_program, options);
    return m_process.waitForStarted(patience);
}

void ExampleProgram::kill()
{
    m_process.terminate(); // as the end of a session does
    m_process.waitForFinished(patience);
    awaitNoWindow();
}

bool ExampleProgram::ends()
{
    const bool ended = (!isRunning() || m_process.waitForFinished(patience)) && awaitNoWindow();
    QString said = QString::fromLocal8Bit(m_process.readAllStandardError());
    // Qt says so of a window that is gone before the server has answered a question about it.
    said.remove(QRegularExpression(QStringLiteral("qt.qpa.xcb: [^\\n]*BadWindow[^\\n]*\\n")));
    if (!said.isEmpty()) {
        qInfo("%s", qUtf8Printable(said));
    }
    return ended && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0
        && said.isEmpty();
}

/** The window manager may list windows that have just gone. */
bool ExampleProgram::awaitNoWindow() const
{
    return QTest::qWaitFor([this] { return windowCount() == 0; }, patience);
}

bool ExampleProgram::isRunning() const
{
    return m_process.state() != QProcess::NotRunning;
}

qint64 ExampleProgram::processId() const
{
    return m_process.processId();
}

bool ExampleProgram::findWindow(const QString &title, int nth)
{
    const QRegularExpression line(
        QStringLiteral("^(0x[0-9a-f]+) +\\S+ \\S+ %1$").arg(QRegularExpression::escape(title)),
        QRegularExpression::MultilineOption);
    m_window = 0;
    auto matches = line.globalMatch(QString::fromUtf8(windowList()));
    for (int i = 0; i <= nth && matches.hasNext(); ++i) {
        const QRegularExpressionMatch match = matches.next();
        m_window = i == nth ? match.captured(1).toULongLong(nullptr, 16) : 0;
    }
    return m_window != 0;
}

int ExampleProgram::windowCount() const
{
    return int(windowList().count('\n'));
}

bool ExampleProgram::isActive() const
{
    return activeWindow() == m_window;
}

bool ExampleProgram::isAnotherActive() const
{
    const qulonglong active = activeWindow();
    return active != 0 && active != m_window;
}

QRect ExampleProgram::geometry() const
{
    return m_input.geometryOf(m_window);
}

QByteArray ExampleProgram::property(const QString &name) const
{
    return outputOf(QStringLiteral("xprop"),
                    { QStringLiteral("-id"), QString::number(m_window), name });
}

QImage ExampleProgram::picture() const
{
    const QRect area = geometry();
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

void ExampleProgram::close() const
{
    QProcess::execute(QStringLiteral("wmctrl"),
                      { QStringLiteral("-ic"), QString::number(m_window) });
}

RealInput &ExampleProgram::input()
{
    return m_input;
}

void ExampleProgram::click(QPoint place)
{
    const QRect area = geometry();
    m_input.moveTo(area.topLeft()
                   + QPoint(place.x() < 0 ? area.width() + place.x() : place.x(),
                            place.y() < 0 ? area.height() + place.y() : place.y()));
    m_input.click();
}

void ExampleProgram::type(const QString &text) const
{
    QProcess::execute(
        QStringLiteral("xdotool"),
        { QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), text });
}

void ExampleProgram::press(const QString &key) const
{
    QProcess::execute(QStringLiteral("xdotool"), { QStringLiteral("key"), key });
}

QString ExampleProgram::path(const QString &name) const
{
    return m_home.filePath(name);
}

QByteArray ExampleProgram::read(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ExampleProgram::write(const QString &name, const QByteArray &content) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(content);
    }
}
