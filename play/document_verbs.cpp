// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "play/verbs.h"
#include "samples/demo_data.h"
#include "sdk/base/cvl.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <cmath>

namespace corvala::play {

using Json = nlohmann::json;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

/// A style path of a script: names, and at most one index.
struct PathWithIndex
{
    std::vector<std::string> names;
    std::int64_t index = -1;
};

static PathWithIndex pathOf(const Arguments& arguments, const char* key)
{
    const Json& list = arguments.at(key);
    PathWithIndex path;
    for (const Json& element : list.is_array() ? list : Json::array()) {
        if (element.is_string())
            path.names.push_back(element.get<std::string>());
        else if (element.is_number_integer() && path.index < 0)
            path.index = element.get<std::int64_t>();
        else
            throw ScriptError(Text::tr("%1 is no style path").arg(shown(list)));
    }
    if (path.names.empty())
        throw ScriptError(Text::tr("%1 is no style path").arg(shown(list)));
    return path;
}

static void require(bool done, const QString& message)
{
    if (!done)
        throw ScriptError(message);
}

static QString resultText(StyleWriteResult_e result)
{
    switch (result) {
    case StyleWrite_Ok:
    case StyleWrite_Unchanged: return {};
    case StyleWrite_NoDocument: return Text::tr("there is no frame or no data for it");
    case StyleWrite_UnknownPath: return Text::tr("no such style value");
    case StyleWrite_NotALeaf: return Text::tr("the path names a group of style values");
    case StyleWrite_WrongType: return Text::tr("the value has the wrong type");
    case StyleWrite_OutOfRange: return Text::tr("the value is out of range");
    case StyleWrite_BadObjects: return Text::tr("there are no such maps");
    case StyleWrite_BadOperator: return Text::tr("the operation does not suit the value");
    }
    return Text::tr("the value was refused (%1)").arg(int(result));
}

static void write(ScriptRun& run, const host::StyleWrite& request, const Json& path)
{
    const QString reason = resultText(run.document().write(request));
    require(reason.isEmpty(), Text::tr("%1 cannot be set: %2").arg(shown(path), reason));
}

static host::StyleInput inputOf(const Json& value)
{
    if (value.is_boolean())
        return value.get<bool>();
    if (value.is_number())
        return value.get<double>();
    if (value.is_string())
        return value.get<std::string>();
    throw ScriptError(Text::tr("%1 is no style value").arg(shown(value)));
}

static void open(ScriptRun& run, const Arguments& arguments)
{
    QStringList files;
    for (const QString& file : arguments.texts("open"))
        files << arguments.absolute(file);
    const QString error = run.stage().openFiles(files);
    require(error.isEmpty(), error);
}

static void demo(ScriptRun&, const Arguments& arguments)
{
    const QString name = arguments.text("demo");
    const bool isLine = name == QLatin1String("xy") || name == QLatin1String("polar");
    const char* const key = isLine ? "maps" : "zones";
    require(!arguments.has(isLine ? "zones" : "maps"),
            Text::tr("\"%1\" is scaled by \"%2\"").arg(name, QLatin1String(key)));
    const std::int64_t scale = arguments.integer(key, 0);
    require(scale > 0 || !arguments.has(key),
            Text::tr("\"%1\" must be 1 or more").arg(QLatin1String(key)));
    std::string error;
    require(samples::openDemo(name.toStdString(), scale, error), QString::fromStdString(error));
}

static void data(ScriptRun& run, const Arguments& arguments)
{
    require(arguments.text("data") == QLatin1String("none"), Text::tr("\"data\" must be \"none\""));
    require(run.document().detachDataSet(), Text::tr("the active frame has no data"));
}

static void rename(ScriptRun& run, const Arguments& arguments)
{
    const std::string name = arguments.text("rename").toStdString();
    require(arguments.has("zone") + arguments.has("variable") + arguments.has("lineMap") == 1,
            Text::tr("\"rename\" takes one of \"zone\", \"variable\" and \"lineMap\""));
    host::Document& document = run.document();
    bool done = false;
    if (arguments.has("zone")) {
        done = document.renameZone(arguments.integer("zone"), name);
    } else if (arguments.has("variable")) {
        done = document.renameVariable(arguments.integer("variable"), name);
    } else {
        const std::int64_t map = arguments.integer("lineMap");
        host::NumberSet maps;
        if (map >= 1 && map <= run.frame().lineMapCount())
            maps.add(static_cast<std::uint32_t>(map));
        done = !maps.isEmpty() && document.setLineMapName(maps, name);
    }
    require(done, Text::tr("there is nothing of that number to rename"));
}

static void plotType(ScriptRun& run, const Arguments& arguments)
{
    host::StyleWrite request;
    request.path = {"PlotType"};
    request.value = static_cast<double>(arguments.integer("plotType"));
    write(run, request, "PlotType");
}

static void frame(ScriptRun& run, const Arguments& arguments)
{
    host::Document& document = run.document();
    if (arguments.at("frame") == "new") {
        document.addFrame();
    } else if (arguments.at("frame") == "delete") {
        document.deleteFrame(run.frame().id());
    } else {
        const std::int64_t position = arguments.integer("frame");
        host::Frame* wanted = document.frameAt(static_cast<int>(position) - 1);
        require(wanted && document.activateFrame(wanted->id()),
                Text::tr("there is no frame %1").arg(position));
    }
}

static std::int64_t mapsOfPath(ScriptRun& run, const PathWithIndex& path)
{
    return path.names.front() == "LineMap" ? run.frame().lineMapCount()
                                           : run.frame().fieldMapCount();
}

static void set(ScriptRun& run, const Arguments& arguments)
{
    const PathWithIndex path = pathOf(arguments, "set");
    host::StyleWrite request;
    request.path = path.names;
    request.offset1 = path.index;
    request.value = inputOf(arguments.at("value"));
    host::NumberSet maps;
    if (arguments.has("maps")) {
        maps = arguments.maps("maps", mapsOfPath(run, path));
        request.objects = &maps;
    }
    write(run, request, arguments.at("set"));
}

static Json jsonOf(const host::ValueList::Value& value)
{
    return std::visit([](const auto& plain) { return Json(plain); }, value);
}

static Json mapValue(const host::MapTable& table, const host::Attribute& attribute,
                     std::int64_t map)
{
    if (map < 1 || map > table.count())
        throw ScriptError(Text::tr("there is no map %1").arg(map));
    if (attribute.isText())
        return table.text(attribute, map);
    if (attribute.isReal())
        return table.real(attribute, map);
    return table.integer(attribute, map);
}

static std::int64_t mapCount(const host::Frame& frame, bool isLine)
{
    return isLine ? frame.lineMapCount() : frame.fieldMapCount();
}

static Json activeMaps(const host::Frame& frame, bool isLine)
{
    return host::toText(isLine ? frame.activeLineMaps() : frame.activeFieldMaps(),
                        mapCount(frame, isLine));
}

static Json storedValue(ScriptRun& run, const Arguments& arguments)
{
    const PathWithIndex path = pathOf(arguments, "get");
    const host::Schema& schema = host::Schema::instance();
    const host::AttributeId id = schema.find(path.names);
    require(id >= 0, Text::tr("%1 is no style value").arg(shown(arguments.at("get"))));
    const host::Attribute& attribute = schema.at(id);
    if (attribute.type == host::ValueType::Maps)
        return activeMaps(run.frame(), path.names.front() == "ActiveLineMaps");
    const bool isOfMap =
        attribute.scope == host::Scope::FieldMap || attribute.scope == host::Scope::LineMap;
    require(isOfMap || !arguments.has("map"),
            Text::tr("%1 is no value of a map").arg(shown(arguments.at("get"))));
    require(attribute.indexCount == 0 || (path.index >= 1 && path.index <= attribute.indexCount),
            Text::tr("%1 needs an index from 1 to %2")
                .arg(shown(arguments.at("get")))
                .arg(attribute.indexCount));
    switch (attribute.scope) {
    case host::Scope::FieldMap:
        return mapValue(run.frame().fieldStyle(), attribute, arguments.integer("map"));
    case host::Scope::LineMap:
        return mapValue(run.frame().lineStyle(), attribute, arguments.integer("map"));
    case host::Scope::Frame: return jsonOf(run.frame().values().get(attribute, path.index));
    case host::Scope::Document:
        return jsonOf(run.document().documentValues().get(attribute, path.index));
    }
    return nullptr;
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
static bool isSameSet(ScriptRun& run, const Arguments& arguments, const Json& stored)
{
    const std::string name = pathOf(arguments, "get").names.front();
    if (name != "ActiveFieldMaps" && name != "ActiveLineMaps")
        return false;
    const std::int64_t count = mapCount(run.frame(), name == "ActiveLineMaps");
    return mapsFromText(QString::fromStdString(stored.get<std::string>()), count)
        == arguments.maps("is", count);
}

static void get(ScriptRun& run, const Arguments& arguments)
{
    const Json stored = storedValue(run, arguments);
    const Json& wanted = arguments.at("is");
    require(
        isSameValue(stored, wanted) || isSameSet(run, arguments, stored),
        Text::tr("%1 is %2, not %3").arg(shown(arguments.at("get")), shown(stored), shown(wanted)));
}

static void layer(ScriptRun& run, const Arguments& arguments)
{
    const std::string name = arguments.text("layer").toStdString();
    host::StyleWrite request;
    for (const char* group : {"FieldLayers", "LinePlotLayers"}) {
        if (host::Schema::instance().find({group, name}) >= 0)
            request.path = {group, name};
    }
    require(!request.path.empty(),
            Text::tr("there is no layer \"%1\"").arg(arguments.text("layer")));
    request.value = arguments.boolean("on");
    write(run, request, arguments.at("layer"));
}

static void active(ScriptRun& run, const Arguments& arguments)
{
    const QString name = arguments.text("active");
    const bool isLine = name == QLatin1String("LineMaps");
    require(isLine || name == QLatin1String("FieldMaps"),
            Text::tr("\"active\" must be \"FieldMaps\" or \"LineMaps\""));
    const QString op = arguments.text("op");
    host::StyleWrite request;
    request.path = {isLine ? "ActiveLineMaps" : "ActiveFieldMaps"};
    if (op == QLatin1String("add"))
        request.op = static_cast<int>(host::AssignOp::Add);
    else if (op == QLatin1String("remove"))
        request.op = static_cast<int>(host::AssignOp::Remove);
    else
        require(op == QLatin1String("assign"),
                Text::tr("\"op\" must be \"add\", \"remove\" or \"assign\""));
    const host::Frame& shown = run.frame();
    request.value = arguments.maps("maps", isLine ? shown.lineMapCount() : shown.fieldMapCount());
    write(run, request, request.path.front());
}

static host::Pick pickOf(const Json& element)
{
    const Arguments pick(element.is_object() ? element : Json::object(), {});
    pick.allowOnly({"zone", "lineMap", "other"});
    if (pick.has("zone"))
        return {PickType_Zone, pick.integer("zone")};
    if (pick.has("lineMap"))
        return {PickType_LineMap, pick.integer("lineMap")};
    return {static_cast<int>(pick.integer("other")), 0};
}

static void pick(ScriptRun& run, const Arguments& arguments)
{
    std::vector<host::Pick> picks;
    for (const Json& element : arguments.list("pick"))
        picks.push_back(pickOf(element));
    run.document().setPicks(std::move(picks));
}

static void time(ScriptRun& run, const Arguments& arguments)
{
    require(run.document().setSolutionTime(arguments.number("time")),
            Text::tr("the solution time cannot be set"));
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

static void deleteMaps(ScriptRun& run, const Arguments& arguments)
{
    const host::NumberSet maps = arguments.maps("deleteMaps", run.mapCount());
    const bool done = run.frame().isLinePlot() ? run.document().deleteLineMaps(maps)
                                               : run.document().deleteFieldMaps(maps);
    require(done, Text::tr("these maps cannot be deleted"));
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
    return {{"open", {}, open},
            {"demo", {"zones", "maps"}, demo},
            {"data", {}, data},
            {"rename", {"zone", "variable", "lineMap"}, rename},
            {"plotType", {}, plotType},
            {"frame", {}, frame},
            {"set", {"maps", "value"}, set},
            {"get", {"map", "is"}, get},
            {"layer", {"on"}, layer},
            {"active", {"maps", "op"}, active},
            {"pick", {}, pick},
            {"time", {}, time},
            {"event", {"parameters"}, event},
            {"deleteMaps", {}, deleteMaps},
            {"undo", {}, undo},
            {"redo", {}, redo},
            {"symbols", {}, symbols},
            {"mappingTabs", {}, mappingTabs}};
}

} // namespace corvala::play
