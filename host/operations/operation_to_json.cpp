// SPDX-License-Identifier: BSD-3-Clause
#include "host/operations/operation_text.h"
#include "host/operations/operation_words.h"

#include <algorithm>
#include <cmath>

namespace corvala::host {

using Json = nlohmann::json;
using Path = std::vector<std::string>;
using namespace words;

namespace {

template<class Value, std::size_t count>
const char* nameOf(const std::pair<const char*, Value> (&names)[count], const Value& value)
{
    const auto found = std::find_if(std::begin(names), std::end(names),
                                    [&](const auto& entry) { return entry.second == value; });
    return found == std::end(names) ? "" : found->first;
}

bool isWhole(double number)
{
    constexpr double kExact = 9e15;
    return number == std::floor(number) && std::abs(number) < kExact;
}

/// Whole numbers without a decimal point.
Json numberJson(double number)
{
    return isWhole(number) ? Json(static_cast<std::int64_t>(number)) : Json(number);
}

std::string setText(const NumberSet& set)
{
    return toText(set, 0);
}

Json inputJson(const StyleInput& value)
{
    if (const auto* number = std::get_if<double>(&value))
        return numberJson(*number);
    if (const auto* set = std::get_if<NumberSet>(&value))
        return setText(*set);
    return std::holds_alternative<bool>(value) ? Json(std::get<bool>(value))
                                               : Json(std::get<std::string>(value));
}

/// The names with the index, if any, behind them.
Json pathJson(const SetStyle& set)
{
    Json path = set.path;
    if (set.index != -1)
        path.push_back(set.index);
    return path;
}

Json json(const SetStyle& set)
{
    const bool isPlain = !set.maps && set.index == -1 && set.undoable;
    const auto* const flag = std::get_if<bool>(&set.value);
    const auto* const number = std::get_if<double>(&set.value);
    const auto* const members = std::get_if<NumberSet>(&set.value);
    if (isPlain && members)
        for (const auto& [name, path] : kActiveSets)
            if (set.path == Path {path})
                return {{"active", name},
                        {"maps", setText(*members)},
                        {"op", nameOf(kOperators, set.op)}};
    if (isPlain && number && isWhole(*number) && set.path == Path {"PlotType"})
        return {{"plotType", numberJson(*number)}};
    if (isPlain && flag && set.path.size() == 2
        && (set.path[0] == "FieldLayers" || set.path[0] == "LinePlotLayers"))
        return {{"layer", set.path[1]}, {"on", *flag}};
    Json object {{"set", pathJson(set)}, {"value", inputJson(set.value)}};
    if (set.maps)
        object["maps"] = setText(*set.maps);
    if (!set.undoable)
        object["undoable"] = false;
    return object;
}

Json json(const RenameZone& rename)
{
    return {{"rename", rename.name}, {"zone", rename.zone}};
}

Json json(const RenameVariable& rename)
{
    return {{"rename", rename.name}, {"variable", rename.variable}};
}

/// One map by its number, several as a set.
Json json(const RenameLineMaps& rename)
{
    Json maps = setText(rename.maps);
    if (rename.maps.cardinality() == 1)
        maps = rename.maps.minimum();
    return {{"rename", rename.name}, {"lineMap", std::move(maps)}};
}

Json json(const CreateLineMaps& create)
{
    return {{"createMaps", create.count}};
}

Json json(const CopyLineMaps& copy)
{
    return {{"copyMaps", setText(copy.maps)}};
}

Json json(const MoveLineMaps& move)
{
    return {{"moveMaps", setText(move.maps)}, {"to", nameOf(kPlaces, move.toTop)}};
}

Json json(const DeleteMaps& deletion)
{
    Json object {{"deleteMaps", setText(deletion.maps)}};
    if (deletion.kind != MapKind::Shown)
        object["of"] = nameOf(kMapKinds, deletion.kind);
    return object;
}

Json json(const EnableZones& enable)
{
    return {{"enableZones", setText(enable.zones)}};
}

Json json(const EnableVariables& enable)
{
    return {{"enableVariables", setText(enable.variables)}};
}

Json json(const SetSolutionTime& set)
{
    return {{"time", numberJson(set.time)}};
}

Json json(const SetPicks& set)
{
    Json picks = Json::array();
    for (const Pick& pick : set.picks) {
        const std::string key = nameOf(kPickTypes, pick.type);
        picks.push_back(key.empty() ? Json {{"other", pick.type}} : Json {{key, pick.number}});
    }
    return {{"pick", std::move(picks)}};
}

Json json(const SetPaletteColor& set)
{
    return {{"paletteColor", set.palette},
            {"rgb", {set.color.red, set.color.green, set.color.blue}}};
}

Json json(const AddFrame&)
{
    return {{"frame", "new"}};
}

Json json(const ActivateFrame& activate)
{
    return {{"frame", activate.position}};
}

Json json(const DeleteFrame&)
{
    return {{"frame", "delete"}};
}

Json json(const AttachData& attach)
{
    const DataOrigin& origin = attach.origin;
    if (origin.demo.empty()) {
        Json object {{"open", origin.files}};
        if (!origin.table.empty())
            object["table"] = origin.table;
        if (!origin.plot3d.empty())
            object["plot3d"] = origin.plot3d;
        if (origin.boundaryPatches)
            object["boundaryPatches"] = true;
        if (origin.numberedTimes)
            object["numberedTimes"] = true;
        return object;
    }
    Json object {{"demo", origin.demo}};
    if (origin.scale != 0)
        object[isScaledByMaps(origin.demo) ? "maps" : "zones"] = origin.scale;
    return object;
}

Json json(const LoadDocument& load)
{
    return {{"load", load.file}};
}

Json json(const ApplyStyles& apply)
{
    return {{"loadStyles", apply.file}};
}

Json json(const DetachData&)
{
    return {{"data", "none"}};
}

Json json(const AddData& addition)
{
    AttachData attach;
    attach.origin = addition.origin;
    Json object = json(attach);
    object["add"] = true;
    return object;
}

} // namespace

Json toJson(const Operation& operation)
{
    return std::visit([](const auto& kind) { return json(kind); }, operation);
}

Json toJson(const StyleOutput& value)
{
    if (const auto* set = std::get_if<NumberSet>(&value))
        return setText(*set);
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    return numberJson(std::holds_alternative<double>(value)
                          ? std::get<double>(value)
                          : static_cast<double>(std::get<std::int32_t>(value)));
}

} // namespace corvala::host
