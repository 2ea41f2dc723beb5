// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/contour_groups.h"
#include "plot/field/scene/layer_looks.h"

#include <map>
#include <utility>

namespace corvala::plot {

/// The ranges of the contour groups that are used, over all maps that are shown. A map counts with
/// its zones of every solution time, so that a colour means the same value at all times, unless
/// that takes looking at too many values; then it counts with the zone that it shows.
class GroupRanges
{
public:
    /// Points of transient zones up to which all times are looked at.
    static constexpr std::int64_t kMostTransientPoints = 5'000'000;

    struct Range
    {
        double minimum = 0.0;
        double maximum = -1.0; ///< below the minimum when there are no values
        double sumOfSquares = 0.0;
        double count = 0.0; ///< of values
    };
    /// Values that have not been looked at.
    struct Unknown
    {
        CvlInt64 zone = 0;
        CvlInt64 variable = 0;
    };

    void clear();

    /// What `add` would have to look at.
    std::vector<Unknown> unknown(const ShownMap& map, const ContourGroups& groups);
    static Range rangeOf(const host::DataSet& data, const Unknown& values);
    /// Spares `add` looking at these values.
    void learn(const host::DataSet& data, const Unknown& values, const Range& range);

    /// Looks at the values that a map has of the groups in use. True when the map uses a group that
    /// nothing used before: then every shown map has to be added again.
    bool add(const ShownMap& map, const ContourGroups& groups);
    void remove(CvlInt64 map);

    /// The maps that use a group and show a zone without its variable.
    std::vector<CvlInt64> lacking(const host::Frame& frame, const ContourGroups& groups,
                                  int group) const;

    /// Gives the groups in use the ranges of what was added; true when levels changed.
    bool update(const host::Frame& frame, ContourGroups& groups);

private:
    struct Contribution
    {
        CvlInt64 zone = 0; ///< shown at present
        std::vector<int> groups; ///< that the map uses
    };
    using Key = std::pair<std::int64_t, CvlInt64>; ///< source index of the zone, variable

    Range rangeOfAll(const host::Frame& frame, CvlInt64 variable);
    std::vector<CvlInt64> zonesOf(const host::Frame& frame, CvlInt64 map, CvlInt64 shown);
    std::map<Key, Range> m_ranges;
    std::map<CvlInt64, Contribution> m_maps; ///< in an order, for sums
    std::array<CvlInt64, ContourGroups::kCount + 1> m_users {}; ///< by group: maps that use it
    std::int64_t m_transientPoints = -1; ///< -1 until counted
};

} // namespace corvala::plot
