// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/group_ranges.h"

#include "plot/field/scene/vector_scale.h"

#include <vtkDataArray.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvala::plot {

static std::size_t at(int group)
{
    return static_cast<std::size_t>(group);
}

void GroupRanges::clear()
{
    *this = GroupRanges();
}

std::vector<CvlInt64> GroupRanges::zonesOf(const host::Frame& frame, CvlInt64 map, CvlInt64 shown)
{
    if (m_transientPoints < 0) {
        m_transientPoints = 0;
        for (const host::ZoneInfo& zone : frame.data()->zones)
            m_transientPoints += zone.strand > 0 ? zone.pointCount : 0;
    }
    const bool allTimes =
        frame.fieldMaps().strand(map) > 0 && m_transientPoints <= kMostTransientPoints;
    return allTimes ? frame.fieldMaps().zones(map) : std::vector<CvlInt64> {shown};
}

std::vector<GroupRanges::Unknown> GroupRanges::unknown(const ShownMap& map,
                                                       const ContourGroups& groups)
{
    auto users = m_users;
    for (const int group : groupsShown(map, groups))
        ++users[at(group)];
    std::vector<Unknown> result;
    for (int group = 1; group <= ContourGroups::kCount; ++group) {
        const CvlInt64 variable = users[at(group)] > 0 ? groups.variable(group) : 0;
        if (variable == 0)
            continue;
        for (const CvlInt64 zone : zonesOf(map.frame, map.map, map.zone))
            if (m_ranges.count({map.frame.data()->zone(zone).sourceIndex, variable}) == 0)
                result.push_back({zone, variable});
    }
    return result;
}

/// Of a zone that does not have the variable.
static constexpr GroupRanges::Range kLacking {0.0, -1.0, 0.0, -1.0};

GroupRanges::Range GroupRanges::rangeOf(const host::DataSet& data, const Unknown& wanted)
{
    const host::ZoneValues values = data.values(wanted.zone, wanted.variable);
    if (!values.array)
        return kLacking;
    if (values.array->GetNumberOfTuples() == 0)
        return {};
    // The array's own range would be noted in the array, which threads share.
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    Range range {kInfinity, -kInfinity};
    for (vtkIdType i = 0; i < values.array->GetNumberOfTuples(); ++i) {
        const double value = values.array->GetComponent(i, 0);
        if (std::isfinite(value)) {
            range.minimum = std::min(range.minimum, value);
            range.maximum = std::max(range.maximum, value);
            range.sumOfSquares += value * value;
            range.count += 1.0;
        }
    }
    return range;
}

void GroupRanges::learn(const host::DataSet& data, const Unknown& values, const Range& range)
{
    m_ranges[{data.zone(values.zone).sourceIndex, values.variable}] = range;
}

void GroupRanges::remove(CvlInt64 map)
{
    const auto found = m_maps.find(map);
    if (found == m_maps.end())
        return;
    for (const int group : found->second.groups)
        --m_users[at(group)];
    m_maps.erase(found);
}

bool GroupRanges::add(const ShownMap& map, const ContourGroups& groups)
{
    const auto usersBefore = m_users;
    remove(map.map);
    for (const Unknown& values : unknown(map, groups))
        learn(*map.frame.data(), values, rangeOf(*map.frame.data(), values));
    Contribution& contribution = m_maps[map.map];
    contribution = {map.zone, groupsShown(map, groups)};
    bool isNewGroup = false;
    for (const int group : contribution.groups) {
        ++m_users[at(group)];
        isNewGroup = usersBefore[at(group)] == 0 || isNewGroup;
    }
    return isNewGroup;
}

/// Over the maps that were added; a map counts with as many values as it shows at a time.
GroupRanges::Range GroupRanges::rangeOfAll(const host::Frame& frame, CvlInt64 variable)
{
    Range all;
    for (const auto& [map, contribution] : m_maps) {
        const std::vector<CvlInt64> zones = zonesOf(frame, map, contribution.zone);
        const double share = 1.0 / static_cast<double>(zones.size());
        for (const CvlInt64 zone : zones) {
            const auto found = m_ranges.find({frame.data()->zone(zone).sourceIndex, variable});
            const Range range = found == m_ranges.end() ? Range() : found->second;
            if (range.minimum > range.maximum)
                continue;
            const bool isFirst = all.minimum > all.maximum;
            all.minimum = isFirst ? range.minimum : std::min(all.minimum, range.minimum);
            all.maximum = isFirst ? range.maximum : std::max(all.maximum, range.maximum);
            all.sumOfSquares += share * range.sumOfSquares;
            all.count += share * range.count;
        }
    }
    return all;
}

std::vector<CvlInt64> GroupRanges::lacking(const host::Frame& frame, const ContourGroups& groups,
                                           int group) const
{
    std::vector<CvlInt64> maps;
    const CvlInt64 variable = groups.variable(group);
    for (const auto& [map, contribution] : m_maps) {
        const auto& used = contribution.groups;
        if (variable == 0 || std::find(used.begin(), used.end(), group) == used.end())
            continue;
        const auto found =
            m_ranges.find({frame.data()->zone(contribution.zone).sourceIndex, variable});
        if (found != m_ranges.end() && found->second.count == kLacking.count)
            maps.push_back(map);
    }
    return maps;
}

bool GroupRanges::update(const host::Frame& frame, ContourGroups& groups)
{
    bool changed = false;
    std::array<Range, ContourGroups::kCount + 1> ranges;
    for (int group = 1; group <= ContourGroups::kCount; ++group) {
        if (m_users[at(group)] == 0)
            continue;
        ranges[at(group)] = rangeOfAll(frame, groups.variable(group));
        changed =
            groups.setRange(group, ranges[at(group)].minimum, ranges[at(group)].maximum) || changed;
    }
    const auto three = [&](int first) {
        return std::array<Range, 3> {ranges[at(first)], ranges[at(first + 1)],
                                     ranges[at(first + 2)]};
    };
    const VectorScale scale =
        proposedScale(three(ContourGroups::kVector), three(ContourGroups::kPlace));
    return groups.setVectorScale(scale) || changed;
}

} // namespace corvala::plot
