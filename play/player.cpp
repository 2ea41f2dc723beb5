// SPDX-License-Identifier: BSD-3-Clause
#include "play/player.h"

#include "play/script_run.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <map>

namespace corvala::play {

using Json = nlohmann::json;
using VerbTable = std::map<std::string, Verb>;

/// A line whose verb is known.
struct Step
{
    int line;
    const Verb* verb;
    Json object;
};

static VerbTable allVerbs()
{
    VerbTable table;
    for (const auto& verbs :
         {documentVerbs(), dialogVerbs(), cellVerbs(), promptVerbs(), lookingVerbs()}) {
        for (const Verb& verb : verbs)
            table.emplace(verb.name, verb);
    }
    return table;
}

static const Verb& verbOf(const Json& object, const VerbTable& table)
{
    const Verb* found = nullptr;
    for (const auto& [key, value] : object.items()) {
        const auto verb = table.find(key);
        if (verb == table.end())
            continue;
        if (found)
            throw ScriptError(Text::tr("two verbs in one line: \"%1\" and \"%2\"")
                                  .arg(QLatin1String(found->name), QString::fromStdString(key)));
        found = &verb->second;
    }
    if (!found && object.size() == 1)
        throw ScriptError(
            Text::tr("unknown verb \"%1\"").arg(QString::fromStdString(object.begin().key())));
    if (!found)
        throw ScriptError(Text::tr("the line holds no verb"));
    return *found;
}

static void checkKeys(const Json& object, const Verb& verb)
{
    for (const auto& [key, value] : object.items()) {
        const auto isKey = [&name = key](const char* other) { return name == other; };
        if (!isKey(verb.name) && std::none_of(verb.keys.begin(), verb.keys.end(), isKey))
            throw ScriptError(Text::tr("\"%1\" has no key \"%2\"")
                                  .arg(QLatin1String(verb.name), QString::fromStdString(key)));
    }
}

static ScriptProblem readSteps(const QString& fileName, const VerbTable& table,
                               std::vector<Step>& steps)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {0, Text::tr("cannot be read: %1").arg(file.errorString())};
    std::vector<ScriptLine> lines;
    const ScriptProblem unreadable = readLines(file.readAll(), lines);
    for (const ScriptLine& line : lines) {
        try {
            const Verb& verb = verbOf(line.object, table);
            checkKeys(line.object, verb);
            steps.push_back({line.number, &verb, line.object});
        } catch (const ScriptError& error) {
            return {line.number, error.message()};
        }
    }
    return unreadable;
}

static ScriptProblem runSteps(const std::vector<Step>& steps, const QString& folder, Stage& stage)
{
    ScriptRun run(stage);
    for (const Step& step : steps) {
        try {
            step.verb->play(run, Arguments(step.object, folder));
            run.settle();
        } catch (const std::exception& error) {
            return {step.line, QString::fromUtf8(error.what())};
        }
    }
    if (run.prompts().hasUnusedReplies())
        return {steps.back().line,
                Text::tr("replies are left that no prompt asked for: %1")
                    .arg(shown(run.prompts().unusedReplies()))};
    return {};
}

QString playScript(const QString& file, Stage& stage)
{
    const VerbTable table = allVerbs();
    std::vector<Step> steps;
    ScriptProblem problem = readSteps(file, table, steps);
    if (problem.isEmpty())
        problem = runSteps(steps, QFileInfo(file).absolutePath(), stage);
    if (problem.isEmpty())
        return {};
    return problem.line > 0
        ? QStringLiteral("%1:%2: %3").arg(file, QString::number(problem.line), problem.message)
        : QStringLiteral("%1: %2").arg(file, problem.message);
}

} // namespace corvala::play
