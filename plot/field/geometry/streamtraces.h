// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_blanking.h"
#include "plot/field/geometry/zone_vectors.h"

#include <vtkPolyData.h>

#include <array>
#include <optional>
#include <tuple>
#include <vector>

namespace corvala::plot {

/// A zone in which lines run, as far as its cells are not blanked.
struct StreamZone
{
    std::int64_t zone = 0;
    BlankingChoice blanking = {};
};

inline bool operator==(const StreamZone& left, const StreamZone& right)
{
    return left.zone == right.zone && left.blanking == right.blanking;
}

/// Lines along the vectors of zones, and where they start.
struct StreamChoice
{
    std::vector<StreamZone> zones; ///< no lines without
    VectorVariables vector {};
    StreamDirection_e direction = StreamDirection_Both;
    int seedCount = 0; ///< of the rake
    bool automaticRake = true;
    std::array<double, 6> rake {}; ///< both ends; not looked at for an automatic one
    std::vector<double> points; ///< that seed besides: X, Y and Z of each

    auto tied() const
    {
        return std::tie(zones, vector, direction, seedCount, automaticRake, rake, points);
    }
};

inline bool operator==(const StreamChoice& left, const StreamChoice& right)
{
    return left.tied() == right.tied();
}

/// Where lines start in fact.
struct StreamStart
{
    std::optional<std::array<double, 6>> rake; ///< both ends; nothing without seeds on it
    bool isOutside = false; ///< there are seeds, and none lies in a cell
};

/// Lines with values of variables at their points.
struct Streamtraces
{
    StreamStart start;
    vtkSmartPointer<vtkPolyData> lines;
    std::vector<vtkSmartPointer<vtkDoubleArray>> values; ///< in the order of the variables
};

/// Follows the vectors through all cells that are not blanked; seeds outside, or where there is no
/// flow, give no line. An automatic rake lies across the flow in the middle of the zones, or beside
/// it where most of it would be outside. Values are NaN where a zone does not have the variable.
Streamtraces streamtraces(const host::DataSet& data, const StreamChoice& choice,
                          const std::vector<std::int64_t>& variables);

} // namespace corvala::plot
