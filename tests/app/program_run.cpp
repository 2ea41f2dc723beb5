// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/program_run.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace corvala::tests {

static constexpr int kMostMilliseconds = 120000;

QProcessEnvironment environmentWithoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    return environment;
}

ProgramRun runProgram(const QStringList& arguments, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(CORVALA_PROGRAM), arguments);
    ProgramRun run;
    if (process.waitForFinished(kMostMilliseconds) && process.exitStatus() == QProcess::NormalExit)
        run.exitCode = process.exitCode();
    process.kill();
    process.waitForFinished();
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QString writeScript(const QString& folder, const QStringList& lines)
{
    const QString path = QDir(folder).filePath(QStringLiteral("script.jsonl"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return {};
    file.write(lines.join(QLatin1Char('\n')).toUtf8());
    return path;
}

} // namespace corvala::tests
