// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/field_map_list.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace corvala::host {

FieldMapList::FieldMapList(const DataSet& data)
{
    m_mapOfZone.resize(data.zones.size());
    std::unordered_map<int, std::size_t> mapOfStrand;
    std::vector<std::vector<TimedZone>> strands;

    for (std::size_t i = 0; i < data.zones.size(); ++i) {
        const ZoneInfo& zone = data.zones[i];
        const auto number = static_cast<std::uint32_t>(i + 1);
        std::size_t map = m_maps.size();
        if (zone.strand > 0) {
            const auto [known, isNew] = mapOfStrand.try_emplace(zone.strand, map);
            map = known->second;
            if (isNew) {
                m_maps.push_back({static_cast<std::uint32_t>(strands.size()), 0, zone.strand, 0});
                strands.emplace_back();
            }
            strands[m_maps[map].firstZone].push_back({zone.time, number});
        } else {
            m_maps.push_back({number, 1, 0, 0});
        }
        m_mapOfZone[i] = static_cast<std::uint32_t>(map + 1);
        const bool isIJK = zone.ordered && zone.isVolume();
        m_maps[map].flags =
            static_cast<std::uint8_t>(m_maps[map].flags | (zone.isVolume() ? Volume : 0)
                                      | (zone.ordered ? Ordered : 0) | (isIJK ? IJKOrdered : 0));
    }
    for (FieldMap& map : m_maps) {
        if (map.strand == 0)
            continue;
        std::vector<TimedZone>& zones = strands[map.firstZone];
        std::stable_sort(zones.begin(), zones.end(),
                         [](const TimedZone& a, const TimedZone& b) { return a.time < b.time; });
        map.firstZone = static_cast<std::uint32_t>(m_strandZones.size());
        map.zoneCount = static_cast<std::uint32_t>(zones.size());
        m_strandZones.insert(m_strandZones.end(), zones.begin(), zones.end());
    }
}

std::int64_t FieldMapList::mapOfZone(std::int64_t zone) const
{
    return zone >= 1 && zone <= static_cast<std::int64_t>(m_mapOfZone.size())
        ? m_mapOfZone[static_cast<std::size_t>(zone - 1)]
        : 0;
}

int FieldMapList::strand(std::int64_t map) const
{
    return has(map) ? at(map).strand : 0;
}

std::int64_t FieldMapList::candidateZone(std::int64_t map, double time) const
{
    if (!has(map))
        return 0;
    const FieldMap& entry = at(map);
    if (entry.strand == 0)
        return entry.firstZone;
    const TimedZone* const begin = m_strandZones.data() + entry.firstZone;
    const TimedZone* const end = begin + entry.zoneCount;
    // Times that differ in the last digits only are the same time written twice.
    const double tolerance = 1e-9 * std::max(1.0, std::abs(time));
    const TimedZone* const later =
        std::upper_bound(begin, end, time + tolerance,
                         [](double wanted, const TimedZone& zone) { return wanted < zone.time; });
    if (later == begin || (later == end && (end - 1)->time < time - tolerance))
        return 0;
    return (later - 1)->zone;
}

std::vector<std::int64_t> FieldMapList::zones(std::int64_t map) const
{
    if (!has(map))
        return {};
    const FieldMap& entry = at(map);
    if (entry.strand == 0)
        return {entry.firstZone};
    std::vector<std::int64_t> numbers;
    for (std::uint32_t i = 0; i < entry.zoneCount; ++i)
        numbers.push_back(m_strandZones[entry.firstZone + i].zone);
    return numbers;
}

bool FieldMapList::flagged(std::int64_t map, Flag flag) const
{
    return has(map) && (at(map).flags & flag) != 0;
}

} // namespace corvala::host
