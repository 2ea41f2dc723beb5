// SPDX-License-Identifier: BSD-3-Clause
#include "host/operations/operation_text.h"
#include "host/operations/operation_words.h"
#include "host/storage/document_text.h"

#include <QDir>

#include <charconv>

namespace corvala::host::storage {

using Json = nlohmann::json;

static std::string jsonText(const Json& value)
{
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// The shortest text that reads back as the number, in any locale.
static std::string numberText(double number)
{
    char text[32];
    const auto [end, error] =
        std::to_chars(std::begin(text), std::end(text), number == 0.0 ? 0.0 : number);
    return std::string(text, end);
}

static std::string valueText(const Attribute& attribute, const ValueList::Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        return jsonText(*text);
    if (const auto* real = std::get_if<double>(&value))
        return numberText(*real);
    const std::int32_t number = std::get<std::int32_t>(value);
    if (attribute.type == ValueType::Bool)
        return number != 0 ? "true" : "false";
    return std::to_string(number);
}

static std::string setText(const NumberSet& set)
{
    return '"' + host::toText(set, 0) + '"';
}

std::string pathText(const Attribute& attribute, std::int64_t index)
{
    std::string text = attribute.names.front();
    for (std::size_t i = 1; i < attribute.names.size(); ++i)
        text += '.' + attribute.names[i];
    return index < 0 ? text : text + '[' + std::to_string(index) + ']';
}

namespace {

/// Writes objects and lists with a line for each member.
class Writer
{
public:
    void open(char bracket)
    {
        m_text += bracket;
        ++m_depth;
        m_isEmpty = true;
    }
    void open(const char* key, char bracket)
    {
        begin(key);
        open(bracket);
    }
    void close(char bracket)
    {
        --m_depth;
        if (!m_isEmpty)
            newLine();
        m_text += bracket;
        m_isEmpty = false;
    }
    void begin()
    {
        if (!m_isEmpty)
            m_text += ',';
        newLine();
        m_isEmpty = false;
    }
    void begin(const std::string& key)
    {
        begin();
        m_text += jsonText(key) + ": ";
    }
    void add(const std::string& text)
    {
        begin();
        m_text += text;
    }
    void add(const std::string& key, const std::string& text)
    {
        begin(key);
        m_text += text;
    }
    std::string take() { return std::move(m_text) + '\n'; }

private:
    void newLine() { m_text.append(1, '\n').append(2 * m_depth, ' '); }

    std::string m_text;
    std::size_t m_depth = 0;
    bool m_isEmpty = true;
};

void write(Writer& writer, const std::vector<StoredValue>& values)
{
    if (values.empty())
        return;
    writer.open("values", '{');
    for (const StoredValue& stored : values) {
        const Attribute& attribute = Schema::instance().at(stored.attribute);
        writer.add(pathText(attribute, stored.index), valueText(attribute, stored.value));
    }
    writer.close('}');
}

void write(Writer& writer, const char* key, const std::vector<StoredColumn>& columns)
{
    if (columns.empty())
        return;
    writer.open(key, '{');
    for (const StoredColumn& column : columns) {
        const Attribute& attribute = Schema::instance().at(column.attribute);
        writer.begin(pathText(attribute));
        writer.open('[');
        for (const auto& [maps, value] : column.values)
            writer.add("{\"maps\": " + setText(maps) + ", \"value\": " + valueText(attribute, value)
                       + '}');
        writer.close(']');
    }
    writer.close('}');
}

void write(Writer& writer, const char* key, const NameList& names)
{
    constexpr std::int64_t kShortest = 4; // that is worth a run
    writer.open(key, '[');
    for (const NameList::Run& run : names.runs()) {
        const auto name = [&run](std::int64_t place) {
            return jsonText(place == 0 ? run.first : countedName(run.first, place));
        };
        if (run.count >= kShortest)
            writer.add("{\"first\": " + name(0) + ", \"last\": " + name(run.count - 1) + '}');
        for (std::int64_t place = 0; run.count < kShortest && place < run.count; ++place)
            writer.add(name(place));
    }
    writer.close(']');
}

void write(Writer& writer, const char* key, const std::map<std::int64_t, std::string>& names)
{
    if (names.empty())
        return;
    writer.open(key, '{');
    for (const auto& [number, name] : names)
        writer.add(std::to_string(number), jsonText(name));
    writer.close('}');
}

void write(Writer& writer, const char* key, const std::optional<NumberSet>& set)
{
    if (set)
        writer.add(key, setText(*set));
}

/// As an operation that opens the data, with relative names.
std::string originText(DataOrigin origin, const QDir& folder)
{
    for (std::string& file : origin.files)
        file = folder.relativeFilePath(QString::fromStdString(file)).toStdString();
    return jsonText(toJson(Operation(AttachData {std::move(origin)})));
}

void writeData(Writer& writer, const StoredFrame& frame, const QDir& folder)
{
    writer.open("data", '[');
    for (const DataOrigin& origin : frame.data)
        writer.add(originText(origin, folder));
    writer.close(']');
    write(writer, "zones", frame.zones);
    if (!frame.strands.empty()) {
        writer.open("strands", '[');
        for (const auto& [zones, strand] : frame.strands)
            writer.add("{\"strand\": " + std::to_string(strand) + ", \"zones\": " + setText(zones)
                       + '}');
        writer.close(']');
    }
    write(writer, "variables", frame.variables);
    if (!frame.deletedZones.isEmpty())
        write(writer, "deletedZones", std::optional(frame.deletedZones));
    write(writer, "zoneNames", frame.zoneNames);
    write(writer, "variableNames", frame.variableNames);
    write(writer, "enabledZones", frame.enabledZones);
    write(writer, "enabledVariables", frame.enabledVariables);
    if (frame.time)
        writer.add("time", numberText(*frame.time));
}

/// What lies under the hand of canvases.
void writeViews(Writer& writer, const StoredFrame& frame)
{
    if (!frame.picks.empty())
        writer.add("picks", jsonText(toJson(Operation(SetPicks {frame.picks})).at("pick")));
    if (frame.views.empty())
        return;
    writer.open("views", '{');
    for (const auto& [plotType, view] : frame.views)
        writer.add(std::to_string(plotType), jsonText(Json::parse(view)));
    writer.close('}');
}

void write(Writer& writer, const StoredFrame& frame, const QDir& folder)
{
    writer.begin();
    writer.open('{');
    if (!frame.data.empty())
        writeData(writer, frame, folder);
    write(writer, frame.values);
    write(writer, "activeFieldMaps", frame.activeFieldMaps);
    write(writer, "fieldStyle", frame.fieldStyle);
    if (frame.lineMapCount > 0)
        writer.add("lineMaps", std::to_string(frame.lineMapCount));
    write(writer, "activeLineMaps", frame.activeLineMaps);
    write(writer, "lineStyle", frame.lineStyle);
    writeViews(writer, frame);
    writer.close('}');
}

} // namespace

std::string toText(const StoredDocument& document, const QString& folder)
{
    Writer writer;
    writer.open('{');
    writer.add("format", jsonText(kFormatName));
    writer.add("version", std::to_string(kFormatVersion));
    writer.add("activeFrame", std::to_string(document.activeFrame));
    write(writer, document.values);
    if (!document.palette.empty()) {
        writer.open("palette", '{');
        for (const auto& [entry, color] : document.palette)
            writer.add(std::to_string(entry), jsonText({color.red, color.green, color.blue}));
        writer.close('}');
    }
    writer.open("frames", '[');
    for (const StoredFrame& frame : document.frames)
        write(writer, frame, QDir(folder));
    writer.close(']');
    writer.close('}');
    return writer.take();
}

} // namespace corvala::host::storage
