// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <cstdint>
#include <vector>

namespace corvala::host {

/// Groups the zones of a data set: one field map per transient strand or static zone, in the order
/// of the first zone of each. Maps and zones are numbered from 1.
class FieldMapList
{
public:
    FieldMapList() = default;
    explicit FieldMapList(const DataSet& data);

    std::int64_t count() const { return static_cast<std::int64_t>(m_maps.size()); }
    bool has(std::int64_t map) const { return map >= 1 && map <= count(); }
    std::int64_t mapOfZone(std::int64_t zone) const; ///< 0 when there is none
    int strand(std::int64_t map) const; ///< 0 for a static map or a bad number

    /// The zone that the map shows at a solution time: the last one not after it, while the strand
    /// lasts; 0 before the strand begins, after it ends, or for a bad number.
    std::int64_t candidateZone(std::int64_t map, double time) const;

    /// Zones of the map in ascending time; empty for a bad number.
    std::vector<std::int64_t> zones(std::int64_t map) const;

    bool hasVolumeZones(std::int64_t map) const { return flagged(map, Volume); }
    bool hasOrderedZones(std::int64_t map) const { return flagged(map, Ordered); }
    bool hasIJKOrderedZones(std::int64_t map) const { return flagged(map, IJKOrdered); }

private:
    enum Flag : std::uint8_t { Volume = 1, Ordered = 2, IJKOrdered = 4 };
    struct FieldMap
    {
        std::uint32_t firstZone; ///< zone number of a static map, else index into m_strandZones
        std::uint32_t zoneCount;
        std::int32_t strand;
        std::uint8_t flags;
    };
    struct TimedZone
    {
        double time;
        std::int64_t zone;
    };

    bool flagged(std::int64_t map, Flag flag) const;
    const FieldMap& at(std::int64_t map) const { return m_maps[static_cast<std::size_t>(map - 1)]; }

    std::vector<FieldMap> m_maps;
    std::vector<TimedZone> m_strandZones;
    std::vector<std::uint32_t> m_mapOfZone;
};

} // namespace corvala::host
