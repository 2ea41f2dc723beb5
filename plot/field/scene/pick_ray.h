// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/surface_cells.h"

#include <array>
#include <vector>

namespace corvala::plot {

/// A line of sight through a point of the picture.
struct PickRay
{
    std::array<double, 3> from; ///< nearest point that can be seen
    std::array<double, 3> to;
    double tolerance = 0.0; ///< distance that still counts as a hit, in the unit of the coordinates

    /// Where the surface is hit, from 0 to 1; above 1 when it is not.
    double hitPosition(vtkPolyData& shape) const;

private:
    bool meetsBox(vtkPolyData& shape) const;
    /// A point seen along the ray: how far it is to the side, and up.
    using Seen = std::array<double, 2>;
    std::vector<Seen> seenPoints(vtkPolyData& shape) const;
    bool mayHit(const Corners& corners, const std::vector<Seen>& points) const;
};

} // namespace corvala::plot
