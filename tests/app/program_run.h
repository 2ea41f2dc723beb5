// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace corvala::tests {

/// How a run of the program ended.
struct ProgramRun
{
    int exitCode = -1; ///< -1 when it crashed or took too long
    QString output;
    QString errors;
};

/// The environment of the test without a display.
QProcessEnvironment environmentWithoutDisplay();

ProgramRun runProgram(const QStringList& arguments,
                      const QProcessEnvironment& environment = environmentWithoutDisplay());

/// Writes a script of these lines into the folder; its path.
QString writeScript(const QString& folder, const QStringList& lines);

} // namespace corvala::tests
