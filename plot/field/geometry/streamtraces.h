// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_vectors.h"
#include "sdk/base/enums.h"

#include <vtkPolyData.h>

#include <tuple>
#include <vector>

namespace corvala::plot {

/// Lines along the vectors of zones, and where they start.
struct StreamChoice
{
    std::vector<std::int64_t> zones; ///< in which the lines run; none without
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

/// Lines with values of variables at their points.
struct Streamtraces
{
    vtkSmartPointer<vtkPolyData> lines;
    std::vector<vtkSmartPointer<vtkDoubleArray>> values; ///< in the order of the variables
};

/// Follows the vectors through all zones; seeds outside the cells, or where there is no flow, give
/// no line. An automatic rake lies across the flow in the middle of the zones, or beside it where
/// most of it would be outside. Values are NaN where a zone does not have the variable.
Streamtraces streamtraces(const host::DataSet& data, const StreamChoice& choice,
                          const std::vector<std::int64_t>& variables);

} // namespace corvala::plot
