// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QString>

/** What was seen of a run of fontjobplay. */
struct FontJobRun
{
    bool hasEnded = false;
    int code = -1;
    qint64 milliseconds = 0;
    QString output;
    QString errors;
};

/** Runs fontjobplay in @p folder, which is its home as well. */
inline FontJobRun runFontJob(const QString &way, const QString &folder)
{
    QProcess program;
    program.setWorkingDirectory(folder);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), folder);
    environment.remove(QStringLiteral("XDG_CACHE_HOME"));
    environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    // a program that leaves so early need not free anything
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    program.setProcessEnvironment(environment);
    FontJobRun run;
    QElapsedTimer clock;
    clock.start();
    program.start(QStringLiteral(OLV_FONT_JOB_PLAY), { way });
    run.hasEnded = program.waitForFinished() && program.exitStatus() == QProcess::NormalExit;
    run.milliseconds = clock.elapsed();
    run.code = program.exitCode();
    run.output = QString::fromLocal8Bit(program.readAllStandardOutput());
    run.errors = QString::fromLocal8Bit(program.readAllStandardError());
    return run;
}
