// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/surface_cells.h"

#include <array>
#include <vector>

class vtkGenericCell;

namespace corvala::plot {

/// Makes a cell that one of a shape, with the numbers of its points.
void fillCell(vtkPolyData& shape, const Corners& corners, vtkGenericCell& cell);

/// A line of sight through a point of the picture.
struct PickRay
{
    std::array<double, 3> from; ///< nearest point that can be seen
    std::array<double, 3> to;
    double tolerance = 0.0; ///< distance that still counts as a hit, in the unit of the coordinates

    static constexpr double kMiss = 2.0; ///< in place of a position on the ray, from 0 to 1

    /// Where the ray meets a shape.
    struct Hit
    {
        vtkIdType cell = -1; ///< -1 for none
        double position = kMiss;
    };

    /// Where the surface is hit; looks at every cell, since that takes less time than the search
    /// tree of a shape that is clicked once.
    double hitPosition(vtkPolyData& shape) const;
    /// Where a cell of the shape is hit; `room` is for the cell.
    double position(vtkPolyData& shape, const Corners& corners, vtkGenericCell& room) const;
    /// Where the ray enters a box, or the box round a shape that has cells.
    double entry(const std::array<double, 3>& low, const std::array<double, 3>& high) const;
    double entry(vtkPolyData& shape) const;

private:
    /// A point seen along the ray: how far it is to the side, and up.
    using Seen = std::array<double, 2>;
    std::vector<Seen> seenPoints(vtkPolyData& shape) const;
    bool mayHit(const Corners& corners, const std::vector<Seen>& points) const;
};

} // namespace corvala::plot
