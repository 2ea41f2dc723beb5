// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/fitting.h"

#include "host/document/frame.h"
#include "host/storage/taking.h"

#include <QCoreApplication>

#include <algorithm>
#include <unordered_map>

namespace corvala::host::storage {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

/// New numbers by old ones, from 1; 0 for what is not there any more.
class NumberChange
{
public:
    explicit NumberChange(std::int64_t oldCount)
        : m_newNumbers(static_cast<std::size_t>(oldCount) + 1, 0)
    {
    }
    std::int64_t& of(std::int64_t number) { return m_newNumbers[static_cast<std::size_t>(number)]; }
    std::int64_t operator()(std::int64_t number) const
    {
        return number >= 0 && number <= oldCount() ? m_newNumbers[static_cast<std::size_t>(number)]
                                                   : 0;
    }
    NumberSet operator()(const NumberSet& numbers) const
    {
        NumberSet changed;
        for (const std::uint32_t number : numbers)
            if (const std::int64_t now = (*this)(number); now > 0)
                changed.add(static_cast<std::uint32_t>(now));
        return changed;
    }
    std::int64_t oldCount() const { return static_cast<std::int64_t>(m_newNumbers.size()) - 1; }
    NumberSet found() const { return (*this)(allUpTo(oldCount())); }
    bool isNone() const
    {
        for (std::int64_t number = 1; number <= oldCount(); ++number)
            if ((*this)(number) != number)
                return false;
        return true;
    }

private:
    std::vector<std::int64_t> m_newNumbers;
};

using Names = std::vector<std::string>;

/// Finds names again: the first of equal ones is the first of them, and so on.
NumberChange matchNames(const Names& before, const Names& now)
{
    std::unordered_map<std::string, std::vector<std::int64_t>> places;
    for (std::size_t i = now.size(); i > 0; --i)
        places[now[i - 1]].push_back(static_cast<std::int64_t>(i));
    NumberChange change(static_cast<std::int64_t>(before.size()));
    for (std::int64_t number = 1; number <= change.oldCount(); ++number) {
        auto& found = places[before[static_cast<std::size_t>(number - 1)]];
        if (found.empty())
            continue;
        change.of(number) = found.back();
        found.pop_back();
    }
    return change;
}

/// What was not found by name keeps its number, where that is free.
void matchNumbers(NumberChange& change, std::int64_t newCount)
{
    const NumberSet taken = change.found();
    for (std::int64_t number = 1; number <= std::min(change.oldCount(), newCount); ++number)
        if (change(number) == 0 && !taken.contains(static_cast<std::uint32_t>(number)))
            change.of(number) = number;
}

void noteMissing(const QString& text, const Names& names, const NumberChange& change,
                 const NumberSet& unwanted, QStringList& notes)
{
    constexpr int kShown = 5;
    QStringList missing;
    int count = 0;
    for (std::int64_t number = 1; number <= change.oldCount(); ++number) {
        if (change(number) != 0 || unwanted.contains(static_cast<std::uint32_t>(number)))
            continue;
        if (++count <= kShown)
            missing << QString::fromStdString(names[static_cast<std::size_t>(number - 1)]);
    }
    if (count > kShown)
        missing << QStringLiteral("...");
    if (count > 0)
        notes << text.arg(count).arg(missing.join(QStringLiteral(", ")));
}

/// The field map of each zone that was kept, by the zone's number in the whole data.
std::vector<std::int64_t> mapsOfZones(const StoredFrame& frame)
{
    std::vector<std::int64_t> maps(static_cast<std::size_t>(frame.zones.count()) + 1, 0);
    std::vector<int> strands(maps.size(), 0);
    for (const StoredStrand& strand : frame.strands)
        for (const std::uint32_t zone : strand.zones)
            strands[zone] = strand.strand;
    std::unordered_map<int, std::int64_t> mapOfStrand;
    std::int64_t count = 0;
    for (std::size_t zone = 1; zone < maps.size(); ++zone) {
        if (frame.deletedZones.contains(static_cast<std::uint32_t>(zone)))
            continue;
        if (strands[zone] == 0)
            maps[zone] = ++count;
        else if (const auto [known, isNew] = mapOfStrand.try_emplace(strands[zone], count + 1);
                 maps[zone] = known->second, isNew)
            ++count;
    }
    return maps;
}

/// The numbers that zones which were kept have in the frame.
std::vector<std::int64_t> numbersInFrame(const StoredFrame& frame)
{
    std::vector<std::int64_t> numbers(static_cast<std::size_t>(frame.zones.count()) + 1, 0);
    std::int64_t count = 0;
    for (std::size_t zone = 1; zone < numbers.size(); ++zone)
        if (!frame.deletedZones.contains(static_cast<std::uint32_t>(zone)))
            numbers[zone] = ++count;
    return numbers;
}

/// What becomes of the numbers of a frame.
struct FrameChange
{
    NumberChange zones; ///< of the frame
    NumberChange fieldMaps;
    NumberChange variables;

    std::int64_t valueOf(const Attribute& attribute, std::int64_t number) const
    {
        return attribute.type == ValueType::Variable ? variables(number) : zones(number);
    }
};

/// From the change of zones of the whole data.
FrameChange frameChange(const StoredFrame& before, const StoredFrame& now,
                        const NumberChange& wholeZones, NumberChange variables)
{
    FrameChange change {NumberChange(zoneCount(before)), NumberChange(fieldMapCount(before)),
                        std::move(variables)};
    const auto zonesBefore = numbersInFrame(before);
    const auto zonesNow = numbersInFrame(now);
    const auto mapsBefore = mapsOfZones(before);
    const auto mapsNow = mapsOfZones(now);
    for (std::int64_t zone = 1; zone <= wholeZones.oldCount(); ++zone) {
        const auto old = static_cast<std::size_t>(zone);
        const auto found = static_cast<std::size_t>(wholeZones(zone));
        if (zonesBefore[old] == 0 || found == 0)
            continue;
        change.zones.of(zonesBefore[old]) = zonesNow[found];
        if (std::int64_t& map = change.fieldMaps.of(mapsBefore[old]); map == 0)
            map = mapsNow[found];
    }
    return change;
}

bool isNumberOfData(const Attribute& attribute)
{
    return attribute.type == ValueType::Variable || attribute.type == ValueType::Zone;
}

/// Gives values that name variables and zones the new numbers; those that name nothing any more
/// are dropped.
void renumber(std::vector<StoredValue>& values, const FrameChange& change)
{
    const auto isLost = [&change](StoredValue& stored) {
        const Attribute& attribute = Schema::instance().at(stored.attribute);
        auto* const number = std::get_if<std::int32_t>(&stored.value);
        if (!isNumberOfData(attribute) || *number == 0)
            return false;
        *number = static_cast<std::int32_t>(change.valueOf(attribute, *number));
        return *number == 0;
    };
    values.erase(std::remove_if(values.begin(), values.end(), isLost), values.end());
}

/// The same for values of maps. `lost` gets the maps whose values name nothing any more.
void renumber(std::vector<StoredColumn>& columns, const FrameChange& change, NumberSet& lost)
{
    for (StoredColumn& column : columns) {
        const Attribute& attribute = Schema::instance().at(column.attribute);
        const auto isLost = [&](MapTable::ValueOfMaps& entry) {
            auto* const number = std::get_if<std::int32_t>(&entry.value);
            if (!isNumberOfData(attribute) || *number == 0)
                return false;
            *number = static_cast<std::int32_t>(change.valueOf(attribute, *number));
            if (*number == 0)
                lost |= entry.maps;
            return *number == 0;
        };
        column.values.erase(std::remove_if(column.values.begin(), column.values.end(), isLost),
                            column.values.end());
    }
}

/// Maps keep the colours that their old numbers gave them.
void keepCyclingColors(std::vector<StoredColumn>& columns, std::int64_t mapCount)
{
    const Schema& schema = Schema::instance();
    for (const AttributeId id : schema.inScope(Scope::FieldMap)) {
        if (schema.at(id).rule != DefaultRule::CyclingColor)
            continue;
        auto column = std::find_if(columns.begin(), columns.end(),
                                   [id](const StoredColumn& one) { return one.attribute == id; });
        if (column == columns.end())
            column = columns.insert(column, {id, {}});
        NumberSet usual = allUpTo(mapCount);
        std::map<std::int32_t, NumberSet> colors;
        for (const auto& [maps, value] : column->values) {
            colors[std::get<std::int32_t>(value)] |= maps;
            usual -= maps;
        }
        for (const std::uint32_t map : usual)
            colors[cyclingColor(map)].add(map);
        column->values.clear();
        for (auto& [color, maps] : colors)
            column->values.push_back({std::move(maps), color});
    }
}

void moveMaps(std::vector<StoredColumn>& columns, const NumberChange& fieldMaps)
{
    if (fieldMaps.isNone())
        return;
    keepCyclingColors(columns, fieldMaps.oldCount());
    for (StoredColumn& column : columns) {
        for (auto& entry : column.values)
            entry.maps = fieldMaps(entry.maps);
        column.values.erase(std::remove_if(column.values.begin(), column.values.end(),
                                           [](const auto& entry) { return entry.maps.isEmpty(); }),
                            column.values.end());
    }
}

/// The members under their new numbers, and all that is new.
void renumber(std::optional<NumberSet>& set, const NumberChange& change, std::int64_t newCount)
{
    if (set)
        *set = change(*set) | (allUpTo(newCount) - change.found());
}

std::map<std::int64_t, std::string> renumbered(const std::map<std::int64_t, std::string>& names,
                                               const NumberChange& change)
{
    std::map<std::int64_t, std::string> result;
    for (const auto& [number, name] : names)
        if (change(number) > 0)
            result.emplace(change(number), name);
    return result;
}

std::vector<Pick> renumbered(const std::vector<Pick>& picks, const NumberChange& zones)
{
    std::vector<Pick> result;
    for (const Pick& pick : picks)
        if (pick.type != PickType_Zone)
            result.push_back(pick);
        else if (zones(pick.number) > 0)
            result.push_back({pick.type, zones(pick.number)});
    return result;
}

void renumber(StoredFrame& frame, const FrameChange& change)
{
    frame.zoneNames = renumbered(frame.zoneNames, change.zones);
    frame.variableNames = renumbered(frame.variableNames, change.variables);
    renumber(frame.enabledZones, change.zones, zoneCount(frame));
    renumber(frame.enabledVariables, change.variables, frame.variables.count());
    renumber(frame.activeFieldMaps, change.fieldMaps, fieldMapCount(frame));
    NumberSet ignored; // they get the default, and the variable is noted
    renumber(frame.values, change);
    renumber(frame.fieldStyle, change, ignored);
    renumber(frame.lineStyle, change, ignored);
    moveMaps(frame.fieldStyle, change.fieldMaps);
    frame.picks = renumbered(frame.picks, change.zones);
}

} // namespace

bool suits(const StoredFrame& frame, const DataSet& data)
{
    StoredFrame known;
    describeData(data, known);
    return known.zones == frame.zones && known.strands == frame.strands
        && known.variables == frame.variables;
}

StoredFrame fitted(const StoredFrame& frame, const DataSet& data, QStringList& notes)
{
    StoredFrame known;
    describeData(data, known);
    const Names zones = frame.zones.names();
    const Names variables = frame.variables.names();
    NumberChange zoneChange = matchNames(zones, known.zones.names());
    matchNumbers(zoneChange, known.zones.count());
    NumberChange variableChange = matchNames(variables, known.variables.names());
    matchNumbers(variableChange, known.variables.count());
    noteMissing(Text::tr("Zones that are not in the data any more (%1): %2."), zones, zoneChange,
                frame.deletedZones, notes);
    noteMissing(Text::tr("Variables that are not in the data any more (%1): %2."), variables,
                variableChange, {}, notes);

    StoredFrame result = frame;
    result.zones = known.zones;
    result.strands = known.strands;
    result.variables = known.variables;
    result.deletedZones = zoneChange(frame.deletedZones);
    renumber(result, frameChange(frame, result, zoneChange, std::move(variableChange)));
    return result;
}

/// The names of zones and variables as they are shown, for finding them in another frame.
static Names shownNames(Names names, const std::vector<std::int64_t>& numbers,
                        const std::map<std::int64_t, std::string>& newNames)
{
    for (std::size_t i = 0; i < names.size(); ++i)
        if (const auto renamed = newNames.find(numbers[i + 1]); renamed != newNames.end())
            names[i] = renamed->second;
    return names;
}

static Names shownZones(const StoredFrame& frame)
{
    return shownNames(frame.zones.names(), numbersInFrame(frame), frame.zoneNames);
}

static Names shownVariables(const StoredFrame& frame)
{
    std::vector<std::int64_t> same(static_cast<std::size_t>(frame.variables.count()) + 1);
    for (std::size_t i = 0; i < same.size(); ++i)
        same[i] = static_cast<std::int64_t>(i);
    return shownNames(frame.variables.names(), same, frame.variableNames);
}

/// What is known of the data of an open frame, under the names that are shown.
static StoredFrame description(const Frame& frame)
{
    StoredFrame known;
    if (!frame.hasData())
        return known;
    DataSet shown = *frame.data();
    shown.readZoneNames.clear();
    shown.readVariableNames.clear();
    describeData(shown, known);
    return known;
}

/// Values that name a variable which is not there stay as they are in the open frame.
static void keepLost(const std::vector<StoredValue>& before, StoredFrame& styles, const Frame& open)
{
    for (const StoredValue& stored : before) {
        const bool isThere =
            std::any_of(styles.values.begin(), styles.values.end(), [&](const StoredValue& other) {
                return other.attribute == stored.attribute && other.index == stored.index;
            });
        if (!isThere)
            styles.values.push_back(
                {stored.attribute, stored.index,
                 open.values().get(Schema::instance().at(stored.attribute), stored.index)});
    }
}

static void noteLineMaps(const NumberSet& missing, QStringList& notes)
{
    if (!missing.isEmpty())
        notes << Text::tr("Line maps that the frame or its variables lack: %1.")
                     .arg(QString::fromStdString(host::toText(missing, 0)));
}

StyleSheet styleSheet(const StoredDocument& document, const Frame& open, QStringList& notes)
{
    StyleSheet sheet;
    sheet.values = document.values;
    sheet.palette = document.palette;
    if (document.activeFrame == 0)
        return sheet;
    const StoredFrame& stored = document.frames[static_cast<std::size_t>(document.activeFrame - 1)];
    const StoredFrame known = description(open);
    const Names zones = shownZones(stored);
    const NumberChange zoneChange = matchNames(zones, known.zones.names());
    NumberChange variableChange = matchNames(shownVariables(stored), known.variables.names());
    noteMissing(Text::tr("Zones that the data lack (%1): %2."), zones, zoneChange,
                stored.deletedZones, notes);
    noteMissing(Text::tr("Variables that the data lack (%1): %2."), shownVariables(stored),
                variableChange, {}, notes);
    const FrameChange change = frameChange(stored, known, zoneChange, std::move(variableChange));

    sheet.frame = stored;
    NumberSet lost;
    renumber(sheet.frame.values, change);
    keepLost(stored.values, sheet.frame, open);
    renumber(sheet.frame.fieldStyle, change, lost);
    moveMaps(sheet.frame.fieldStyle, change.fieldMaps);
    sheet.fieldMaps = change.fieldMaps.found();
    lost = NumberSet();
    renumber(sheet.frame.lineStyle, change, lost);
    const NumberSet lines = allUpTo(stored.lineMapCount);
    sheet.lineMaps = (lines & allUpTo(open.lineMapCount())) - lost;
    noteLineMaps(lines - sheet.lineMaps, notes);
    return sheet;
}

} // namespace corvala::host::storage
