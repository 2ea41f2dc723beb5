// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/taking.h"

#include "host/document/document.h"

#include <algorithm>

namespace corvala::host::storage {

/// Values of a list without maps that are not the default ones. The plot type is always told.
static std::vector<StoredValue> changedValues(const ValueList& values, Scope scope)
{
    const Schema& schema = Schema::instance();
    const ValueList defaults(scope);
    std::vector<StoredValue> changed;
    for (const AttributeId id : schema.inScope(scope)) {
        const Attribute& attribute = schema.at(id);
        if (attribute.type == ValueType::Numbers)
            continue;
        const bool isIndexed = attribute.indexCount > 0;
        for (std::int64_t index = 1; index <= std::max(1, attribute.indexCount); ++index)
            if (const auto& value = values.get(attribute, index);
                value != defaults.get(attribute, index) || id == style::plotType)
                changed.push_back({id, isIndexed ? index : -1, value});
    }
    return changed;
}

static std::vector<StoredColumn> changedColumns(const MapTable& table, Scope scope)
{
    const Schema& schema = Schema::instance();
    std::vector<StoredColumn> columns;
    for (const AttributeId id : schema.inScope(scope))
        if (auto values = table.changedValues(schema.at(id)); !values.empty())
            columns.push_back({id, std::move(values)});
    return columns;
}

static std::optional<NumberSet> unlessAll(const NumberSet& set, std::int64_t count)
{
    return set == allUpTo(count) ? std::nullopt : std::optional(set);
}

/// Names that are not those in the files.
template<class NameOf, class ReadNameOf>
static std::map<std::int64_t, std::string> newNames(std::int64_t count, NameOf nameOf,
                                                    ReadNameOf readNameOf)
{
    std::map<std::int64_t, std::string> names;
    for (std::int64_t number = 1; number <= count; ++number)
        if (nameOf(number) != readNameOf(number))
            names.emplace(number, nameOf(number));
    return names;
}

std::int64_t zoneCount(const StoredFrame& frame)
{
    return frame.zones.count() - static_cast<std::int64_t>(frame.deletedZones.cardinality());
}

std::int64_t fieldMapCount(const StoredFrame& frame)
{
    std::int64_t count = zoneCount(frame);
    for (const auto& [zones, strand] : frame.strands) // which is one map, if anything is left of it
        count -= std::max<std::int64_t>(
            0, static_cast<std::int64_t>((zones - frame.deletedZones).cardinality()) - 1);
    return count;
}

void describeData(const DataSet& data, StoredFrame& frame)
{
    std::map<int, NumberSet> strands;
    for (std::int64_t zone = 1; zone <= data.zoneCount(); ++zone) {
        frame.zones.add(data.readZoneName(zone));
        if (const int strand = data.zone(zone).strand; strand > 0)
            strands[strand].add(static_cast<std::uint32_t>(zone));
    }
    for (const auto& [strand, zones] : strands)
        frame.strands.push_back({zones, strand});
    for (std::int64_t variable = 1; variable <= data.variableCount(); ++variable)
        frame.variables.add(data.readVariableName(variable));
}

/// Zones of the whole data that are not there any more; both are in the same order.
static NumberSet deletedZones(const DataSet& whole, const DataSet& rest)
{
    NumberSet deleted;
    std::int64_t next = 1;
    for (std::int64_t zone = 1; zone <= whole.zoneCount(); ++zone) {
        if (rest.hasZone(next) && rest.zone(next).sourceIndex == whole.zone(zone).sourceIndex)
            ++next;
        else
            deleted.add(static_cast<std::uint32_t>(zone));
    }
    return deleted;
}

static void takeData(const Frame& frame, StoredFrame& stored)
{
    const DataSet& data = *frame.data();
    stored.data = frame.origins();
    if (data.whole) {
        DataSet whole = *data.whole;
        whole.readZoneNames.insert(data.readZoneNames.begin(), data.readZoneNames.end());
        whole.readVariableNames = data.readVariableNames;
        describeData(whole, stored);
        stored.deletedZones = deletedZones(whole, data);
    } else {
        describeData(data, stored);
    }
    if (!data.readZoneNames.empty())
        stored.zoneNames = newNames(
            data.zoneCount(), [&](auto zone) { return data.zone(zone).name; },
            [&](auto zone) { return data.readZoneName(zone); });
    if (!data.readVariableNames.empty())
        stored.variableNames = newNames(
            data.variableCount(), [&](auto variable) { return data.variable(variable).name; },
            [&](auto variable) { return data.readVariableName(variable); });
    const std::vector<double> times = data.solutionTimes();
    if (!times.empty() && frame.solutionTime() != times.front())
        stored.time = frame.solutionTime();
    stored.enabledZones = unlessAll(frame.enabledZones(), data.zoneCount());
    stored.enabledVariables = unlessAll(frame.enabledVariables(), data.variableCount());
}

/// Picks outlive what was picked.
static std::vector<Pick> livingPicks(const Frame& frame)
{
    const std::int64_t zones = frame.hasData() ? frame.data()->zoneCount() : 0;
    std::vector<Pick> picks = frame.picks();
    const auto isDead = [&](const Pick& pick) {
        const bool isZone = pick.type == PickType_Zone;
        return (isZone || pick.type == PickType_LineMap)
            && !(pick.number >= 1 && pick.number <= (isZone ? zones : frame.lineMapCount()));
    };
    picks.erase(std::remove_if(picks.begin(), picks.end(), isDead), picks.end());
    return picks;
}

static StoredFrame storedFrame(const Frame& frame)
{
    StoredFrame stored;
    if (frame.hasData())
        takeData(frame, stored);
    stored.lineMapCount = frame.lineMapCount();
    stored.activeFieldMaps = unlessAll(frame.activeFieldMaps(), frame.fieldMapCount());
    stored.activeLineMaps = unlessAll(frame.activeLineMaps(), frame.lineMapCount());
    stored.values = changedValues(frame.values(), Scope::Frame);
    stored.fieldStyle = changedColumns(frame.fieldStyle(), Scope::FieldMap);
    stored.lineStyle = changedColumns(frame.lineStyle(), Scope::LineMap);
    stored.picks = livingPicks(frame);
    stored.views = frame.views();
    return stored;
}

StoredDocument storedDocument(Document& document)
{
    document.viewsWanted()();
    StoredDocument stored;
    stored.values = changedValues(document.documentValues(), Scope::Document);
    const std::vector<Rgb> usual = defaultPalette();
    for (std::size_t entry = 0; entry < usual.size(); ++entry)
        if (const Rgb color = document.color(static_cast<int>(entry)); !(color == usual[entry]))
            stored.palette.emplace(static_cast<int>(entry), color);
    for (CvlInt64 position = 1; position <= document.frameCount(); ++position) {
        const Frame& frame = *document.frameAt(position);
        stored.frames.push_back(storedFrame(frame));
        if (&frame == document.activeFrame())
            stored.activeFrame = position;
    }
    return stored;
}

} // namespace corvala::host::storage
