// SPDX-License-Identifier: BSD-3-Clause
#include "host/operations/operation_text.h"
#include "host/operations/operation_words.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

namespace corvala::host {

using Json = nlohmann::json;
using Path = std::vector<std::string>;
using namespace words;

namespace {

/// Translates what is wrong with a text.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(OperationText)
};

void require(bool condition, const QString& message)
{
    if (!condition)
        throw TextError(message);
}

/// The value that the text under the key names; throws with the names that there are.
template<class Value, std::size_t count>
Value named(const std::pair<const char*, Value> (&names)[count], const JsonObject& object,
            const char* key)
{
    const QString text = object.text(key);
    QStringList known;
    for (const auto& [name, value] : names) {
        if (text == QLatin1String(name))
            return value;
        known << '"' + QLatin1String(name) + '"';
    }
    throw TextError(Text::tr("\"%1\" must be one of %2")
                        .arg(QLatin1String(key), known.join(QStringLiteral(", "))));
}

CvlInt64 countOf(const Frame* frame, bool areLineMaps)
{
    return !frame ? 0 : areLineMaps ? frame->lineMapCount() : frame->fieldMapCount();
}

CvlInt64 zoneCount(const Frame* frame)
{
    return frame && frame->hasData() ? frame->data()->zoneCount() : 0;
}

StyleInput inputOf(const Json& value)
{
    if (value.is_boolean())
        return value.get<bool>();
    if (value.is_number())
        return value.get<double>();
    require(value.is_string(), Text::tr("\"value\": %1 is no style value").arg(shown(value)));
    return value.get<std::string>();
}

Operation readSet(const JsonObject& object, const TextContext& context)
{
    const StylePath path = stylePath(object, "set");
    SetStyle set {path.names, inputOf(object.at("value")), {}, path.index};
    if (object.has("maps"))
        set.maps = object.numbers("maps", countOf(context.frame, set.path[0] == "LineMap"));
    set.undoable = object.boolean("undoable", true);
    return set;
}

Operation readLayer(const JsonObject& object, const TextContext&)
{
    const QString name = object.text("layer");
    for (const char* const group : {"FieldLayers", "LinePlotLayers"})
        if (Path path {group, name.toStdString()}; Schema::instance().find(path) >= 0)
            return SetStyle {std::move(path), object.boolean("on")};
    throw TextError(Text::tr("there is no layer \"%1\"").arg(name));
}

Operation readActive(const JsonObject& object, const TextContext& context)
{
    const char* const path = named(kActiveSets, object, "active");
    const bool areZones = path == std::string("ActiveFieldZones");
    const CvlInt64 count = areZones ? zoneCount(context.frame)
                                    : countOf(context.frame, path == std::string("ActiveLineMaps"));
    return SetStyle {
        {path}, object.numbers("maps", count), {}, -1, named(kOperators, object, "op")};
}

Operation readPlotType(const JsonObject& object, const TextContext&)
{
    return SetStyle {{"PlotType"}, static_cast<double>(object.integer("plotType"))};
}

Operation readRename(const JsonObject& object, const TextContext& context)
{
    const std::string name = object.text("rename").toStdString();
    require(object.has("zone") + object.has("variable") + object.has("lineMap") == 1,
            Text::tr("\"rename\" takes one of \"zone\", \"variable\" and \"lineMap\""));
    if (object.has("zone"))
        return RenameZone {object.integer("zone"), name};
    if (object.has("variable"))
        return RenameVariable {object.integer("variable"), name};
    if (object.at("lineMap").is_string())
        return RenameLineMaps {object.numbers("lineMap", countOf(context.frame, true)), name};
    const std::int64_t map = object.integer("lineMap");
    require(map >= 1 && map <= 0xfffffffe, Text::tr("\"lineMap\": there is no map %1").arg(map));
    return RenameLineMaps {NumberSet::bitmapOf(1, static_cast<std::uint32_t>(map)), name};
}

Operation readCreateMaps(const JsonObject& object, const TextContext&)
{
    return CreateLineMaps {object.integer("createMaps")};
}

Operation readCopyMaps(const JsonObject& object, const TextContext& context)
{
    return CopyLineMaps {object.numbers("copyMaps", countOf(context.frame, true))};
}

Operation readMoveMaps(const JsonObject& object, const TextContext& context)
{
    return MoveLineMaps {object.numbers("moveMaps", countOf(context.frame, true)),
                         named(kPlaces, object, "to")};
}

Operation readDeleteMaps(const JsonObject& object, const TextContext& context)
{
    const MapKind kind = object.has("of") ? named(kMapKinds, object, "of") : MapKind::Shown;
    const bool areLineMaps = kind == MapKind::Line
        || (kind == MapKind::Shown && context.frame && context.frame->isLinePlot());
    return DeleteMaps {object.numbers("deleteMaps", countOf(context.frame, areLineMaps)), kind};
}

Operation readEnableZones(const JsonObject& object, const TextContext& context)
{
    return EnableZones {object.numbers("enableZones", zoneCount(context.frame))};
}

Operation readEnableVariables(const JsonObject& object, const TextContext& context)
{
    const DataSet* const data = context.frame ? context.frame->data() : nullptr;
    return EnableVariables {object.numbers("enableVariables", data ? data->variableCount() : 0)};
}

Operation readTime(const JsonObject& object, const TextContext&)
{
    return SetSolutionTime {object.number("time")};
}

Operation readPick(const JsonObject& object, const TextContext&)
{
    SetPicks set;
    for (const Json& element : object.list("pick")) {
        require(element.is_object() && element.size() == 1,
                Text::tr("\"pick\": %1 is no pick").arg(shown(element)));
        const JsonObject pick(element);
        pick.allowOnly({"zone", "lineMap", "other"});
        if (pick.has("other"))
            set.picks.push_back({static_cast<int>(pick.integer("other")), 0});
        for (const auto& [key, type] : kPickTypes)
            if (pick.has(key))
                set.picks.push_back({type, pick.integer(key)});
    }
    return set;
}

Operation readPaletteColor(const JsonObject& object, const TextContext&)
{
    const Json& rgb = object.list("rgb");
    const auto isChannel = [](const Json& element) {
        return element.is_number_integer() && element >= 0 && element <= 255;
    };
    require(rgb.size() == 3 && std::all_of(rgb.begin(), rgb.end(), isChannel),
            Text::tr("\"rgb\" must be three numbers from 0 to 255, not %1").arg(shown(rgb)));
    return SetPaletteColor {
        static_cast<int>(object.integer("paletteColor")),
        {rgb[0].get<std::uint8_t>(), rgb[1].get<std::uint8_t>(), rgb[2].get<std::uint8_t>()}};
}

Operation readFrame(const JsonObject& object, const TextContext&)
{
    if (object.at("frame") == "new")
        return AddFrame {};
    if (object.at("frame") == "delete")
        return DeleteFrame {};
    return ActivateFrame {object.integer("frame")};
}

std::string readFile(const JsonObject& object, const char* key, const TextContext& context)
{
    return QDir(context.folder).absoluteFilePath(object.text(key)).toStdString();
}

Operation readLoad(const JsonObject& object, const TextContext& context)
{
    return LoadDocument {readFile(object, "load", context)};
}

Operation readLoadStyles(const JsonObject& object, const TextContext& context)
{
    return ApplyStyles {readFile(object, "loadStyles", context)};
}

Operation attachOrAdd(const JsonObject& object, AttachData attach)
{
    if (object.boolean("add", false))
        return AddData {std::move(attach.origin)};
    return attach;
}

Operation readOpen(const JsonObject& object, const TextContext& context)
{
    AttachData attach;
    for (const QString& file : object.texts("open"))
        attach.origin.files.push_back(
            QDir::cleanPath(QDir(context.folder).absoluteFilePath(file)).toStdString());
    attach.origin.table = object.text("table", {}).toStdString();
    attach.origin.plot3d = object.text("plot3d", {}).toStdString();
    attach.origin.boundaryPatches = object.boolean("boundaryPatches", false);
    attach.origin.numberedTimes = object.boolean("numberedTimes", false);
    return attachOrAdd(object, std::move(attach));
}

Operation readDemo(const JsonObject& object, const TextContext&)
{
    AttachData attach;
    attach.origin.demo = object.text("demo").toStdString();
    const bool byMaps = isScaledByMaps(attach.origin.demo);
    const char* const key = byMaps ? "maps" : "zones";
    require(!object.has(byMaps ? "zones" : "maps"),
            Text::tr("\"%1\" is scaled by \"%2\"").arg(object.text("demo"), QLatin1String(key)));
    attach.origin.scale = object.integer(key, 0);
    require(attach.origin.scale > 0 || !object.has(key),
            Text::tr("\"%1\" must be 1 or more").arg(QLatin1String(key)));
    return attachOrAdd(object, std::move(attach));
}

Operation readData(const JsonObject& object, const TextContext&)
{
    require(object.text("data") == QLatin1String("none"), Text::tr("\"data\" must be \"none\""));
    return DetachData {};
}

struct Reader
{
    OperationVerb verb;
    Operation (*read)(const JsonObject& object, const TextContext& context);
};

const std::vector<Reader>& readers()
{
    static const std::vector<Reader> readers {
        {{"set", {"maps", "value", "undoable"}}, readSet},
        {{"layer", {"on"}}, readLayer},
        {{"active", {"maps", "op"}}, readActive},
        {{"plotType", {}}, readPlotType},
        {{"rename", {"zone", "variable", "lineMap"}}, readRename},
        {{"createMaps", {}}, readCreateMaps},
        {{"copyMaps", {}}, readCopyMaps},
        {{"moveMaps", {"to"}}, readMoveMaps},
        {{"deleteMaps", {"of"}}, readDeleteMaps},
        {{"enableZones", {}}, readEnableZones},
        {{"enableVariables", {}}, readEnableVariables},
        {{"time", {}}, readTime},
        {{"pick", {}}, readPick},
        {{"paletteColor", {"rgb"}}, readPaletteColor},
        {{"frame", {}}, readFrame},
        {{"load", {}}, readLoad},
        {{"loadStyles", {}}, readLoadStyles},
        {{"open", {"table", "plot3d", "boundaryPatches", "numberedTimes", "add"}}, readOpen},
        {{"demo", {"zones", "maps", "add"}}, readDemo},
        {{"data", {}}, readData}};
    return readers;
}

} // namespace

std::vector<OperationVerb> operationVerbs()
{
    std::vector<OperationVerb> verbs;
    for (const Reader& reader : readers())
        verbs.push_back(reader.verb);
    return verbs;
}

/// One key of an operation's text is its verb; the others are the verb's.
static const Reader& readerOf(const Json& object)
{
    for (const Reader& reader : readers()) {
        if (!object.contains(reader.verb.name))
            continue;
        for (const auto& [key, value] : object.items())
            require(key == reader.verb.name
                        || std::count(reader.verb.keys.begin(), reader.verb.keys.end(), key) > 0,
                    Text::tr("\"%1\" has no key \"%2\"")
                        .arg(QLatin1String(reader.verb.name), QString::fromStdString(key)));
        return reader;
    }
    throw TextError(Text::tr("%1 is no operation").arg(shown(object)));
}

Operation operationFromJson(const Json& object, const TextContext& context)
{
    require(object.is_object(), Text::tr("%1 is no operation").arg(shown(object)));
    return readerOf(object).read(JsonObject(object), context);
}

StylePath stylePath(const JsonObject& object, const char* key)
{
    StylePath path;
    for (const Json& element : object.list(key)) {
        const bool isIndex = element.is_number_integer() && path.index == -1;
        if (isIndex)
            path.index = element.get<std::int64_t>();
        else if (element.is_string())
            path.names.push_back(element.get<std::string>());
        else
            object.failKind(key, Text::tr("a list of names with at most one index"));
    }
    if (path.names.empty())
        object.failKind(key, Text::tr("a list of names with at most one index"));
    return path;
}

QString reasonText(StyleWriteResult_e result)
{
    switch (result) {
    case StyleWrite_Ok:
    case StyleWrite_Unchanged: return {};
    case StyleWrite_NoDocument: return Text::tr("there is no frame or no data for it");
    case StyleWrite_UnknownPath: return Text::tr("no such style value");
    case StyleWrite_NotALeaf: return Text::tr("the path names a group of style values");
    case StyleWrite_WrongType: return Text::tr("the value has the wrong type");
    case StyleWrite_OutOfRange: return Text::tr("the value is out of range");
    case StyleWrite_BadObjects: return Text::tr("there is nothing of that number");
    case StyleWrite_BadOperator: return Text::tr("the operation does not suit the value");
    }
    return Text::tr("the value was refused (%1)").arg(int(result));
}

QString refusalText(const Operation& operation, const Outcome& outcome)
{
    return Text::tr("%1 cannot be done: %2")
        .arg(shown(toJson(operation)), reasonText(outcome.result));
}

} // namespace corvala::host
