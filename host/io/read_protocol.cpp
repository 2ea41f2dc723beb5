// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/read_protocol.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <utility>

namespace corvala::host::io {

using nlohmann::json;

static std::string dump(const json& value)
{
    return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

/// Calls `read` with the parsed text; any fault in it gives nothing.
template<class T, class Reader>
static std::optional<T> parse(const std::string& text, Reader read)
{
    try {
        return read(json::parse(text));
    } catch (const json::exception&) {
        return std::nullopt;
    }
}

static constexpr std::pair<const char*, std::optional<bool> Plot3DLayout::*> kLayoutFlags[] = {
    {"ascii", &Plot3DLayout::ascii},
    {"multiGrid", &Plot3DLayout::multiGrid},
    {"iblank", &Plot3DLayout::iblank},
    {"byteCount", &Plot3DLayout::byteCount},
    {"bigEndian", &Plot3DLayout::bigEndian},
    {"doublePrecision", &Plot3DLayout::doublePrecision},
    {"twoDimensional", &Plot3DLayout::twoDimensional},
};

static json layoutJson(const Plot3DLayout& layout)
{
    json result = json::object();
    for (const auto& [name, flag] : kLayoutFlags)
        if (layout.*flag)
            result[name] = *(layout.*flag);
    return result;
}

static Plot3DLayout layoutFrom(const json& value)
{
    Plot3DLayout result;
    for (const auto& [name, flag] : kLayoutFlags)
        if (value.contains(name))
            result.*flag = value.at(name).get<bool>();
    return result;
}

static json dialectJson(const TextDialect& dialect)
{
    json result = json::object();
    for (const TextProperty& property : textProperties())
        if (const std::string word = property.word(property, dialect); !word.empty())
            result[property.key] = word;
    return result;
}

static TextDialect dialectFrom(const json& value)
{
    TextDialect result;
    for (const TextProperty& property : textProperties())
        if (value.contains(property.key))
            property.set(property, value.at(property.key).get<std::string>(), result);
    return result;
}

static json messageJson(const ReadMessage& message)
{
    return {{"text", message.text}, {"arguments", message.arguments}};
}

static ReadMessage messageFrom(const json& value)
{
    ReadMessage result;
    value.at("text").get_to(result.text);
    value.at("arguments").get_to(result.arguments);
    return result;
}

template<class Items, class Convert>
static json listJson(const Items& items, Convert convert)
{
    json result = json::array();
    for (const auto& item : items)
        result.push_back(convert(item));
    return result;
}

template<class T, class Convert>
static void listFrom(const json& value, std::vector<T>& items, Convert convert)
{
    for (const json& item : value)
        items.push_back(convert(item));
}

std::string toJson(const ReadRequest& request)
{
    json files = json::array();
    for (const QString& file : request.files)
        files.push_back(file.toStdString());
    return dump({{"files", files},
                 {"plot3d", layoutJson(request.plot3d)},
                 {"text", dialectJson(request.text)},
                 {"boundaryPatches", request.choices.boundaryPatches},
                 {"numberedTimes", request.choices.numberedTimes},
                 {"purpose", request.purpose},
                 {"memoryBytes", request.limits.memoryBytes}});
}

std::optional<ReadRequest> requestFromJson(const std::string& text)
{
    return parse<ReadRequest>(text, [](const json& value) {
        ReadRequest request;
        for (const std::string& file : value.at("files").get<std::vector<std::string>>())
            request.files << QString::fromStdString(file);
        request.plot3d = layoutFrom(value.at("plot3d"));
        request.text = dialectFrom(value.at("text"));
        value.at("boundaryPatches").get_to(request.choices.boundaryPatches);
        value.at("numberedTimes").get_to(request.choices.numberedTimes);
        value.at("purpose").get_to(request.purpose);
        value.at("memoryBytes").get_to(request.limits.memoryBytes);
        return request;
    });
}

std::string toJson(const ReaderLine& line)
{
    return dump({{"percent", line.percent},
                 {"file", line.file},
                 {"what", messageJson(line.what)},
                 {"error", line.isError},
                 {"badRowCount", line.badRows.count},
                 {"badRows", listJson(line.badRows.first, messageJson)}});
}

std::optional<ReaderLine> lineFromJson(const std::string& text)
{
    return parse<ReaderLine>(text, [](const json& value) {
        ReaderLine line;
        line.percent = std::clamp(value.at("percent").get<int>(), -1, 100);
        value.at("file").get_to(line.file);
        line.what = messageFrom(value.at("what"));
        value.at("error").get_to(line.isError);
        value.at("badRowCount").get_to(line.badRows.count);
        listFrom(value.at("badRows"), line.badRows.first, messageFrom);
        return line;
    });
}

static json zoneJson(const ZoneInfo& zone)
{
    return {
        {"name", zone.name},         {"ordered", zone.ordered}, {"size", zone.dimensions},
        {"points", zone.pointCount}, {"cells", zone.cellCount}, {"dimension", zone.cellDimension},
        {"strand", zone.strand},     {"time", zone.time},       {"source", zone.sourceIndex}};
}

static ZoneInfo zoneFrom(const json& value)
{
    ZoneInfo zone;
    value.at("name").get_to(zone.name);
    value.at("ordered").get_to(zone.ordered);
    value.at("size").get_to(zone.dimensions);
    value.at("points").get_to(zone.pointCount);
    value.at("cells").get_to(zone.cellCount);
    value.at("dimension").get_to(zone.cellDimension);
    value.at("strand").get_to(zone.strand);
    value.at("time").get_to(zone.time);
    value.at("source").get_to(zone.sourceIndex);
    return zone;
}

static json variableJson(const Variable& variable)
{
    return {{"name", variable.name},
            {"array", variable.array},
            {"component", variable.component},
            {"constant", variable.isConstant},
            {"kind", variable.kind}};
}

static Variable variableFrom(const json& value)
{
    Variable variable;
    value.at("name").get_to(variable.name);
    value.at("array").get_to(variable.array);
    value.at("component").get_to(variable.component);
    value.at("constant").get_to(variable.isConstant);
    value.at("kind").get_to(variable.kind);
    return variable;
}

std::string toJson(const DataSetIndex& index)
{
    const DataSet& data = index.data;
    json value {{"title", data.title},
                {"files", data.files},
                {"zones", listJson(data.zones, zoneJson)},
                {"variables", listJson(data.variables, variableJson)},
                {"vectors", data.vectorVariables},
                {"contours", data.contourVariables},
                {"planar", data.isPlanar},
                {"enclosed", data.surfacesEncloseVolumes},
                {"boundaryPatches", index.offers.boundaryPatches},
                {"numberedFiles", index.offers.numberedFiles},
                {"notes", listJson(index.notes, messageJson)}};
    if (index.plot3d)
        value["plot3d"] = layoutJson(*index.plot3d);
    if (index.text)
        value["text"] = dialectJson(*index.text);
    return dump(value);
}

/// The index stays within its own lists.
static bool isConsistent(const DataSetIndex& index)
{
    const DataSet& data = index.data;
    const auto isVariable = [&](int number) { return number == 0 || data.hasVariable(number); };
    return std::all_of(data.vectorVariables.begin(), data.vectorVariables.end(), isVariable)
        && std::all_of(data.contourVariables.begin(), data.contourVariables.end(), isVariable);
}

std::optional<DataSetIndex> indexFromJson(const std::string& text)
{
    auto result = parse<DataSetIndex>(text, [](const json& value) {
        DataSetIndex index;
        DataSet& data = index.data;
        value.at("title").get_to(data.title);
        value.at("files").get_to(data.files);
        listFrom(value.at("zones"), data.zones, zoneFrom);
        listFrom(value.at("variables"), data.variables, variableFrom);
        value.at("vectors").get_to(data.vectorVariables);
        value.at("contours").get_to(data.contourVariables);
        value.at("planar").get_to(data.isPlanar);
        value.at("enclosed").get_to(data.surfacesEncloseVolumes);
        value.at("boundaryPatches").get_to(index.offers.boundaryPatches);
        value.at("numberedFiles").get_to(index.offers.numberedFiles);
        listFrom(value.at("notes"), index.notes, messageFrom);
        if (value.contains("plot3d"))
            index.plot3d = layoutFrom(value.at("plot3d"));
        if (value.contains("text"))
            index.text = dialectFrom(value.at("text"));
        return index;
    });
    return result && isConsistent(*result) ? result : std::nullopt;
}

static json rowJson(const TextPreview::Row& row)
{
    return {{"line", row.line}, {"role", row.role}, {"fields", row.fields}};
}

static TextPreview::Row rowFrom(const json& value)
{
    TextPreview::Row row;
    value.at("line").get_to(row.line);
    value.at("role").get_to(row.role);
    value.at("fields").get_to(row.fields);
    return row;
}

std::string toJson(const TextPreview& preview)
{
    return dump({{"file", preview.file},
                 {"dialect", dialectJson(preview.dialect)},
                 {"sure", preview.isSure},
                 {"columns", preview.columns},
                 {"kinds", preview.kinds},
                 {"sentinels", preview.sentinels},
                 {"rows", listJson(preview.rows, rowJson)}});
}

std::optional<TextPreview> previewFromJson(const std::string& text)
{
    return parse<TextPreview>(text, [](const json& value) {
        TextPreview preview;
        value.at("file").get_to(preview.file);
        preview.dialect = dialectFrom(value.at("dialect"));
        value.at("sure").get_to(preview.isSure);
        value.at("columns").get_to(preview.columns);
        value.at("kinds").get_to(preview.kinds);
        value.at("sentinels").get_to(preview.sentinels);
        listFrom(value.at("rows"), preview.rows, rowFrom);
        return preview;
    });
}

} // namespace corvala::host::io
