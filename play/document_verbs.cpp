// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "host/operations/operation_text.h"
#include "host/storage/document_file.h"
#include "play/verbs.h"
#include "samples/demo_data.h"
#include "sdk/base/cvl.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QDir>

#include <cmath>

namespace corvala::play {

using Json = nlohmann::json;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

static void require(bool done, const QString& message)
{
    if (!done)
        throw ScriptError(message);
}

/// Files are read by the program; what is embedded is made here.
static void attach(ScriptRun& run, const host::DataOrigin& origin)
{
    QString error;
    if (origin.demo.empty()) {
        error = run.stage().openFiles(origin);
    } else {
        std::string reason;
        samples::openDemo(origin.demo, origin.scale, reason);
        error = QString::fromStdString(reason);
    }
    require(error.isEmpty(), error);
}

static std::shared_ptr<host::DataSet> readData(ScriptRun& run, const host::DataOrigin& origin,
                                               QString& problem)
{
    if (origin.demo.empty())
        return run.stage().readData(origin, problem);
    std::string reason;
    std::shared_ptr<host::DataSet> data = samples::demoData(origin.demo, origin.scale, reason).data;
    problem = QString::fromStdString(reason);
    return data;
}

static void add(ScriptRun& run, host::AddData addition)
{
    QString problem;
    addition.data = readData(run, addition.origin, problem);
    require(problem.isEmpty(), problem);
    const host::Outcome outcome = run.stage().add(addition);
    require(outcome.isDone(), host::refusalText(addition, outcome));
}

static void load(ScriptRun& run, const std::string& file)
{
    const auto outcome = host::storage::loadDocument(
        run.document(), QString::fromStdString(file),
        [&run](const auto& origin, QString& problem) { return readData(run, origin, problem); });
    require(outcome.problem.isEmpty(), outcome.problem);
}

static void save(ScriptRun& run, const Arguments& arguments)
{
    const QString file = QDir(arguments.folder()).absoluteFilePath(arguments.text("save"));
    const QString problem = host::storage::saveDocument(run.document(), file);
    require(problem.isEmpty(), problem);
}

static void execute(ScriptRun& run, const Arguments& arguments)
{
    const host::Operation operation = host::operationFromJson(
        arguments.object(), {run.document().activeFrame(), arguments.folder()});
    if (const auto* const attachment = std::get_if<host::AttachData>(&operation))
        return attach(run, attachment->origin);
    if (const auto* const loading = std::get_if<host::LoadDocument>(&operation))
        return load(run, loading->file);
    if (const auto* const styles = std::get_if<host::ApplyStyles>(&operation)) {
        const QString problem =
            host::storage::loadStyles(run.document(), QString::fromStdString(styles->file)).problem;
        return require(problem.isEmpty(), problem);
    }
    if (const auto* const addition = std::get_if<host::AddData>(&operation))
        return add(run, *addition);
    const host::Outcome outcome = run.document().execute(operation);
    require(outcome.isDone(), host::refusalText(operation, outcome));
}

static bool isSameValue(const Json& stored, const Json& wanted)
{
    const auto numberOf = [](const Json& value) {
        return value.is_boolean() ? double(value.get<bool>()) : value.get<double>();
    };
    const auto isNumber = [](const Json& value) { return value.is_number() || value.is_boolean(); };
    if (!isNumber(stored) || !isNumber(wanted))
        return stored == wanted;
    const double one = numberOf(stored);
    const double two = numberOf(wanted);
    return std::abs(one - two) <= 1e-9 * std::max(std::abs(one), std::abs(two));
}

/// Two texts of one set, such as "2,3" and "2-3", are equal.
static bool isSameSet(const host::StyleOutput& stored, const Json& wanted, std::int64_t count)
{
    const auto* const set = std::get_if<host::NumberSet>(&stored);
    return set && wanted.is_string()
        && *set == host::numbersFromText(QString::fromStdString(wanted), count);
}

static void get(ScriptRun& run, const Arguments& arguments)
{
    const host::StylePath path = host::stylePath(arguments, "get");
    const Json& wanted = arguments.at("is");
    const bool isOfMap = path.names.front() == "FieldMap" || path.names.front() == "LineMap";
    require(isOfMap == arguments.has("map"),
            isOfMap ? Text::tr("\"map\" is missing") : Text::tr("it is no value of a map"));
    const auto stored = run.document().read(path.names, arguments.integer("map", 0), path.index);
    require(stored.has_value(), Text::tr("there is no value %1").arg(shown(arguments.object())));
    const bool areLineMaps = path.names.front() == "ActiveLineMaps";
    const std::int64_t count =
        areLineMaps ? run.frame().lineMapCount() : run.frame().fieldMapCount();
    const Json value = host::toJson(*stored);
    require(
        isSameSet(*stored, wanted, count) || isSameValue(value, wanted),
        Text::tr("%1 is %2, not %3").arg(shown(arguments.at("get")), shown(value), shown(wanted)));
}

static void event(ScriptRun& run, const Arguments& arguments)
{
    host::StateEvent event;
    event.code = static_cast<StateCode_e>(arguments.integer("event"));
    event.frame = run.document().activeFrameId();
    if (arguments.has("parameters")) {
        for (const QString& parameter : arguments.texts("parameters"))
            event.parameters.push_back(parameter.toStdString());
    }
    run.document().raise(event);
}

static std::int64_t stepsOf(const Arguments& arguments, const char* key)
{
    const std::int64_t steps = arguments.integer(key);
    require(steps >= 1, Text::tr("\"%1\" must be 1 or more").arg(QLatin1String(key)));
    return steps;
}

static void undo(ScriptRun& run, const Arguments& arguments)
{
    for (std::int64_t i = 0; i < stepsOf(arguments, "undo"); ++i)
        require(run.document().undo().undo(), Text::tr("there is nothing to undo"));
}

static void redo(ScriptRun& run, const Arguments& arguments)
{
    for (std::int64_t i = 0; i < stepsOf(arguments, "redo"); ++i)
        require(run.document().undo().redo(), Text::tr("there is nothing to redo"));
}

static void symbols(ScriptRun&, const Arguments& arguments)
{
    const Arguments kinds = arguments.inner("symbols");
    kinds.allowOnly({"pieChart", "extended"});
    CvlAppSetScatterSymbolKinds(kinds.boolean("pieChart"), kinds.boolean("extended"));
}

static void mappingTabs(ScriptRun&, const Arguments& arguments)
{
    std::set<ZoneStyleDialog::MappingStyleTab_e> tabs;
    for (const Json& tab : arguments.list("mappingTabs")) {
        require(tab.is_number_integer() && tab >= 0 && tab <= 6,
                Text::tr("%1 is no tab number").arg(shown(tab)));
        tabs.insert(static_cast<ZoneStyleDialog::MappingStyleTab_e>(tab.get<int>()));
    }
    ZoneStyleDialog::setAvailableMappingStyleTabs(tabs);
}

std::vector<Verb> documentVerbs()
{
    std::vector<Verb> verbs {{"get", {"map", "is"}, get},
                             {"event", {"parameters"}, event},
                             {"undo", {}, undo},
                             {"redo", {}, redo},
                             {"save", {}, save},
                             {"symbols", {}, symbols},
                             {"mappingTabs", {}, mappingTabs}};
    for (const host::OperationVerb& verb : host::operationVerbs())
        verbs.push_back({verb.name, verb.keys, execute});
    return verbs;
}

} // namespace corvala::play
