// SPDX-License-Identifier: BSD-3-Clause
#include "play/player.h"

#include "play/verbs.h"

#include <QFile>
#include <QFileInfo>

namespace corvala::play {

/// Reads the lines of a script and looks at each by itself.
static ScriptProblem readChecked(const QString& fileName, std::vector<ScriptLine>& lines)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {0, Text::tr("cannot be read: %1").arg(file.errorString())};
    const ScriptProblem unreadable = readLines(file.readAll(), lines);
    for (const ScriptLine& line : lines) {
        try {
            verbOf(line.object);
        } catch (const ScriptError& error) {
            return {line.number, error.message()};
        }
    }
    return unreadable;
}

static ScriptProblem playLines(const std::vector<ScriptLine>& lines, const QString& folder,
                               Stage& stage)
{
    ScriptRun run(stage, folder);
    for (const ScriptLine& line : lines) {
        try {
            run.play(line.object);
        } catch (const std::exception& error) {
            return {line.number, QString::fromUtf8(error.what())};
        }
    }
    if (run.prompts().hasUnusedReplies())
        return {lines.back().number,
                Text::tr("replies are left that no prompt asked for: %1")
                    .arg(shown(run.prompts().unusedReplies()))};
    return {};
}

QString playScript(const QString& file, Stage& stage)
{
    std::vector<ScriptLine> lines;
    ScriptProblem problem = readChecked(file, lines);
    if (problem.isEmpty())
        problem = playLines(lines, QFileInfo(file).absolutePath(), stage);
    if (problem.isEmpty())
        return {};
    return problem.line > 0
        ? QStringLiteral("%1:%2: %3").arg(file, QString::number(problem.line), problem.message)
        : QStringLiteral("%1: %2").arg(file, problem.message);
}

} // namespace corvala::play
