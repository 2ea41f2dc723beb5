// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/block_builder.h"

#include <array>

namespace corvala::plot {

/// A line of sight through a point of the picture.
struct PickRay
{
    std::array<double, 3> from; ///< nearest point that can be seen
    std::array<double, 3> to;
    double tolerance = 0.0; ///< distance that still counts as a hit, in the unit of the coordinates

    /// Where the surface is hit, from 0 to 1; above 1 when it is not.
    double hitPosition(PlacedSurface& placed) const;
};

} // namespace corvala::plot
