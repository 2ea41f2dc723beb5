// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/frame_change.h"

#include <algorithm>
#include <unordered_map>

namespace corvala::host::storage {

/// The field map of each zone that was kept, by the zone's number in the whole data.
static std::vector<std::int64_t> mapsOfZones(const StoredFrame& frame)
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

std::vector<std::int64_t> numbersInFrame(const StoredFrame& frame)
{
    std::vector<std::int64_t> numbers(static_cast<std::size_t>(frame.zones.count()) + 1, 0);
    std::int64_t count = 0;
    for (std::size_t zone = 1; zone < numbers.size(); ++zone)
        if (!frame.deletedZones.contains(static_cast<std::uint32_t>(zone)))
            numbers[zone] = ++count;
    return numbers;
}

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

void matchNumbers(NumberChange& change, std::int64_t newCount)
{
    const NumberSet taken = change.found();
    for (std::int64_t number = 1; number <= std::min(change.oldCount(), newCount); ++number)
        if (change(number) == 0 && !taken.contains(static_cast<std::uint32_t>(number)))
            change.of(number) = number;
}

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

static bool isNumberOfData(const Attribute& attribute)
{
    return attribute.type == ValueType::Variable || attribute.type == ValueType::Zone;
}

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

static void keepCyclingColors(std::vector<StoredColumn>& columns, std::int64_t mapCount)
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
static void renumber(std::optional<NumberSet>& set, const NumberChange& change,
                     std::int64_t newCount)
{
    if (set)
        *set = change(*set) | (allUpTo(newCount) - change.found());
}

static std::map<std::int64_t, std::string>
renumbered(const std::map<std::int64_t, std::string>& names, const NumberChange& change)
{
    std::map<std::int64_t, std::string> result;
    for (const auto& [number, name] : names)
        if (change(number) > 0)
            result.emplace(change(number), name);
    return result;
}

static std::vector<Pick> renumbered(const std::vector<Pick>& picks, const NumberChange& zones)
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

} // namespace corvala::host::storage
