// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/style_conversion.h"
#include "host/operations/operation_text.h"
#include "host/storage/document_text.h"
#include "host/storage/json_parsing.h"
#include "host/storage/json_place.h"

#include <QCoreApplication>

#include <algorithm>
#include <charconv>
#include <limits>

namespace corvala::host::storage {

using Json = nlohmann::json;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

constexpr std::int64_t kMostZones = 4'000'000; ///< of a frame; each has a name
constexpr std::int64_t kMostLineMaps = 1'000'000;
constexpr int kPaletteEntries = 64;

/// A style value by its path; the index is the text's.
StoredValue valueNamed(const std::string& path, const JsonPlace& place)
{
    StoredValue named;
    const std::size_t bracket = std::min(path.find('['), path.size());
    if (bracket < path.size())
        std::from_chars(path.data() + bracket + 1, path.data() + path.size(), named.index);
    std::vector<std::string> names;
    for (const QString& name : QString::fromStdString(path.substr(0, bracket)).split('.'))
        names.push_back(name.toStdString());
    named.attribute = Schema::instance().find(names);
    if (!(named.attribute >= 0
          && pathText(Schema::instance().at(named.attribute), named.index) == path))
        place.fail(Text::tr("no such style value"));
    return named;
}

ValueList::Value readValue(const JsonPlace& place, const Attribute& attribute,
                           const NamedNumbers& limits)
{
    StyleInput input;
    if (attribute.isText()) {
        input = place.text();
    } else if (attribute.type == ValueType::Bool) {
        input = place.boolean();
    } else {
        input = place.number();
    }
    ValueList::Value value;
    const StyleWriteResult_e result = convertValue(attribute, input, limits, value);
    if (result != StyleWrite_Ok)
        place.fail(QStringLiteral("%1: %2").arg(reasonText(result), shown(place.json())));
    return value;
}

std::vector<StoredValue> readValues(const JsonPlace& place, Scope scope, const NamedNumbers& limits)
{
    std::vector<StoredValue> values;
    place.forEachMember([&](const std::string& path, const JsonPlace& member) {
        StoredValue stored = valueNamed(path, member);
        const Attribute& attribute = Schema::instance().at(stored.attribute);
        if (attribute.scope != scope || attribute.type == ValueType::Numbers)
            member.fail(Text::tr("the value does not belong here"));
        if (!(attribute.indexCount > 0 ? stored.index >= 1 && stored.index <= attribute.indexCount
                                       : stored.index == -1))
            member.fail(Text::tr("there is no such index"));
        stored.value = readValue(member, attribute, limits);
        values.push_back(std::move(stored));
    });
    return values;
}

/// Each map has one value. Looks for one that has two only when there is one.
void requireDisjoint(const std::vector<MapTable::ValueOfMaps>& values, const JsonPlace& place)
{
    std::vector<const NumberSet*> sets;
    std::uint64_t count = 0;
    for (const auto& [maps, value] : values) {
        sets.push_back(&maps);
        count += maps.cardinality();
    }
    if (values.empty() || NumberSet::fastunion(sets.size(), sets.data()).cardinality() == count)
        return;
    NumberSet taken;
    for (const NumberSet* const maps : sets) {
        if (maps->intersect(taken))
            place.fail(Text::tr("map %1 has two values").arg((*maps & taken).minimum()));
        taken |= *maps;
    }
}

StoredColumn readColumn(const std::string& path, const JsonPlace& place, Scope scope,
                        std::int64_t mapCount, const NamedNumbers& limits)
{
    StoredColumn column;
    column.attribute = valueNamed(path, place).attribute;
    const Attribute& attribute = Schema::instance().at(column.attribute);
    if (attribute.scope != scope)
        place.fail(Text::tr("the value does not belong here"));
    place.forEachElement([&](const JsonPlace& element) {
        MapTable::ValueOfMaps entry;
        bool hasValue = false;
        element.readMembers(
            {{"maps", [&](const JsonPlace& maps) { entry.maps = maps.numbers(mapCount); }},
             {"value", [&](const JsonPlace& value) {
                  entry.value = readValue(value, attribute, limits);
                  hasValue = true;
              }}});
        if (!hasValue || entry.maps.isEmpty())
            element.fail(Text::tr("maps or value are missing"));
        column.values.push_back(std::move(entry));
    });
    requireDisjoint(column.values, place);
    return column;
}

std::vector<StoredColumn> readColumns(const JsonPlace& place, Scope scope, std::int64_t mapCount,
                                      const NamedNumbers& limits)
{
    std::vector<StoredColumn> columns;
    place.forEachMember([&](const std::string& path, const JsonPlace& member) {
        columns.push_back(readColumn(path, member, scope, mapCount, limits));
    });
    return columns;
}

/// A name, or a run of names that count on.
void readName(const JsonPlace& place, NameList& names)
{
    if (place.json().is_string())
        return names.add(place.text());
    std::string first;
    std::string last;
    place.readMembers({{"first", [&](const JsonPlace& name) { first = name.text(); }},
                       {"last", [&](const JsonPlace& name) { last = name.text(); }}});
    const std::int64_t places = placesBetween(first, last);
    if (places < 0 || places >= kMostZones - names.count())
        place.fail(Text::tr("the last name does not count on from the first"));
    names.add(first, places + 1);
}

NameList readNames(const JsonPlace& place)
{
    NameList names;
    place.forEachElement([&](const JsonPlace& element) { readName(element, names); });
    return names;
}

std::map<std::int64_t, std::string> readNewNames(const JsonPlace& place, std::int64_t count)
{
    std::map<std::int64_t, std::string> names;
    place.forEachMember([&](const std::string&, const JsonPlace& member) {
        names.emplace(member.keyNumber(1, count), member.text());
    });
    return names;
}

DataOrigin readOrigin(const JsonPlace& place, const QString& folder)
{
    try {
        const Operation operation = operationFromJson(place.json(), {nullptr, folder});
        if (const auto* const attach = std::get_if<AttachData>(&operation))
            return attach->origin;
    } catch (const TextError& error) {
        place.fail(error.message());
    }
    place.fail(Text::tr("must open data"));
}

std::int64_t readPicked(const JsonPlace& place, std::int64_t count)
{
    const std::int64_t number = place.integer(1, std::numeric_limits<std::int32_t>::max());
    if (number > count)
        place.fail(Text::tr("%1 is beyond %2, the last number").arg(number).arg(count));
    return number;
}

Pick readPick(const JsonPlace& place, const StoredFrame& frame)
{
    using Limits = std::numeric_limits<int>;
    Pick pick;
    place.readMembers(
        {{"zone",
          [&](const JsonPlace& zone) {
              pick = {PickType_Zone, readPicked(zone, zoneCount(frame))};
          }},
         {"lineMap",
          [&](const JsonPlace& map) {
              pick = {PickType_LineMap, readPicked(map, frame.lineMapCount)};
          }},
         {"other", [&](const JsonPlace& type) {
              pick.type = static_cast<int>(type.integer(Limits::min(), Limits::max()));
              if (pick.type == PickType_Zone || pick.type == PickType_LineMap)
                  type.fail(Text::tr("zones and line maps are picked by their numbers"));
          }}});
    if (place.json().size() != 1)
        place.fail(Text::tr("must be one of \"zone\", \"lineMap\" and \"other\""));
    return pick;
}

ViewCheck& viewCheck()
{
    static ViewCheck check;
    return check;
}

/// Reads one frame.
class FrameReader
{
public:
    FrameReader(const JsonPlace& place, const QString& folder)
        : m_folder(folder)
    {
        place.readMembers(membersOfData());
        const bool hasData = !m_frame.data.empty();
        if (hasData == m_frame.zones.runs().empty() || (!hasData && m_frame.variables.count() > 0))
            place.fail(Text::tr("data and their zones and variables belong together"));
    }
    StoredFrame take() { return std::move(m_frame); }

private:
    using Place = const JsonPlace&;

    /// Without data, values still name what those had that were closed.
    NamedNumbers limits() const
    {
        constexpr std::int64_t kAny = std::numeric_limits<std::int32_t>::max();
        return m_frame.data.empty() ? NamedNumbers {kAny, kAny}
                                    : NamedNumbers {m_frame.variables.count(), zoneCount(m_frame)};
    }
    void readStrand(Place place);
    void readTime(Place place);
    void readView(Place place);
    std::vector<JsonPlace::Reader> membersOfData();
    std::vector<JsonPlace::Reader> membersOfStyle();

    QString m_folder;
    StoredFrame m_frame;
};

void FrameReader::readStrand(Place place)
{
    StoredStrand strand;
    constexpr int kMost = std::numeric_limits<int>::max();
    place.readMembers(
        {{"strand", [&](Place member) { strand.strand = int(member.integer(1, kMost)); }},
         {"zones", [&](Place member) { strand.zones = member.numbers(m_frame.zones.count()); }}});
    if (strand.strand == 0 || strand.zones.isEmpty())
        place.fail(Text::tr("strand or zones are missing"));
    for (const StoredStrand& other : m_frame.strands)
        if (other.zones.intersect(strand.zones))
            place.fail(Text::tr("a zone has two strands"));
    m_frame.strands.push_back(std::move(strand));
}

void FrameReader::readTime(Place place)
{
    m_frame.time = place.number();
    if (m_frame.strands.empty())
        place.fail(Text::tr("no zone belongs to a strand, so there is no time"));
}

void FrameReader::readView(Place place)
{
    const int plotType = static_cast<int>(place.keyNumber(PlotType_Field3D, PlotType_LinePolar));
    if (viewCheck())
        viewCheck()(plotType, place);
    m_frame.views[plotType] = place.json().dump();
}

/// In the order in which they are needed.
std::vector<JsonPlace::Reader> FrameReader::membersOfData()
{
    StoredFrame& frame = m_frame;
    std::vector<JsonPlace::Reader> readers {
        {"data",
         [&](Place place) {
             place.forEachElement(
                 [&](Place origin) { frame.data.push_back(readOrigin(origin, m_folder)); });
         }},
        {"zones", [&](Place place) { frame.zones = readNames(place); }},
        {"strands",
         [&](Place place) { place.forEachElement([&](Place strand) { readStrand(strand); }); }},
        {"variables", [&](Place place) { frame.variables = readNames(place); }},
        {"deletedZones",
         [&](Place place) { frame.deletedZones = place.numbers(frame.zones.count()); }},
        {"zoneNames",
         [&](Place place) { frame.zoneNames = readNewNames(place, zoneCount(frame)); }},
        {"variableNames",
         [&](Place place) { frame.variableNames = readNewNames(place, frame.variables.count()); }},
        {"enabledZones",
         [&](Place place) { frame.enabledZones = place.numbers(zoneCount(frame)); }},
        {"enabledVariables",
         [&](Place place) { frame.enabledVariables = place.numbers(frame.variables.count()); }},
        {"time", [&](Place place) { readTime(place); }}};
    for (JsonPlace::Reader& reader : membersOfStyle())
        readers.push_back(std::move(reader));
    return readers;
}

std::vector<JsonPlace::Reader> FrameReader::membersOfStyle()
{
    StoredFrame& frame = m_frame;
    return {
        {"values", [&](Place place) { frame.values = readValues(place, Scope::Frame, limits()); }},
        {"activeFieldMaps",
         [&](Place place) { frame.activeFieldMaps = place.numbers(fieldMapCount(frame)); }},
        {"fieldStyle",
         [&](Place place) {
             frame.fieldStyle = readColumns(place, Scope::FieldMap, fieldMapCount(frame), limits());
         }},
        {"lineMaps", [&](Place place) { frame.lineMapCount = place.integer(0, kMostLineMaps); }},
        {"activeLineMaps",
         [&](Place place) { frame.activeLineMaps = place.numbers(frame.lineMapCount); }},
        {"lineStyle",
         [&](Place place) {
             frame.lineStyle = readColumns(place, Scope::LineMap, frame.lineMapCount, limits());
         }},
        {"picks",
         [&](Place place) {
             place.forEachElement(
                 [&](Place pick) { frame.picks.push_back(readPick(pick, frame)); });
         }},
        {"views", [&](Place place) {
             place.forEachMember([&](const std::string&, Place view) { readView(view); });
         }}};
}

void readPalette(const JsonPlace& place, std::map<int, Rgb>& palette)
{
    place.forEachMember([&](const std::string&, const JsonPlace& entry) {
        std::vector<std::uint8_t> channels;
        entry.forEachElement([&](const JsonPlace& channel) {
            channels.push_back(static_cast<std::uint8_t>(channel.integer(0, 255)));
        });
        if (channels.size() != 3)
            entry.fail(Text::tr("must be three numbers"));
        palette[int(entry.keyNumber(0, kPaletteEntries - 1))] = {channels[0], channels[1],
                                                                 channels[2]};
    });
}

StoredDocument readDocument(const JsonPlace& root, const QString& folder)
{
    StoredDocument document;
    root.readMembers(
        {{"format", [](const JsonPlace&) {}},
         {"version", [](const JsonPlace&) {}},
         {"values",
          [&](const JsonPlace& place) {
              document.values = readValues(place, Scope::Document, {});
          }},
         {"palette", [&](const JsonPlace& place) { readPalette(place, document.palette); }},
         {"frames",
          [&](const JsonPlace& place) {
              place.forEachElement([&](const JsonPlace& frame) {
                  document.frames.push_back(FrameReader(frame, folder).take());
              });
          }},
         {"activeFrame", [&](const JsonPlace& place) {
              const auto count = static_cast<std::int64_t>(document.frames.size());
              document.activeFrame = place.integer(std::min<std::int64_t>(1, count), count);
          }}});
    root.member("activeFrame"); // must be there
    return document;
}

/// What follows the version may mean anything where that is a newer one.
void checkVersion(const JsonPlace& root)
{
    if (!root.json().is_object() || !root.json().contains("format"))
        root.fail(Text::tr("this is no document"));
    if (const JsonPlace format = root.member("format"); format.json() != kFormatName)
        format.fail(Text::tr("this is no document"));
    const JsonPlace version = root.member("version");
    if (version.integer(1, std::numeric_limits<std::int32_t>::max()) > kFormatVersion)
        throw DocumentError(version.path(),
                            Text::tr("the document has version %1 of the format; this program "
                                     "reads up to version %2")
                                .arg(shown(version.json()))
                                .arg(kFormatVersion),
                            DocumentError::Kind::NewerVersion);
}

} // namespace

void setViewCheck(ViewCheck check)
{
    viewCheck() = std::move(check);
}

DocumentError::DocumentError(const QString& place, const QString& reason, Kind kind)
    : std::runtime_error(reason.toStdString())
    , m_place(place)
    , m_kind(kind)
{
}

StoredDocument documentFromText(const std::string& text, const QString& folder)
{
    const Json json = parsed(text);
    const JsonPlace root(json);
    checkVersion(root);
    return readDocument(root, folder);
}

} // namespace corvala::host::storage
