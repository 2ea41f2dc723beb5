// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/scene/group_ranges.h"

#include <array>

namespace corvala::plot {

/// How long to draw vectors whose components and places have these ranges: so that a large one
/// reaches to the next points, as long as that is neither next to nothing of the whole nor much of
/// it. What is large does not depend on a few extreme values.
VectorScale proposedScale(const std::array<GroupRanges::Range, 3>& vector,
                          const std::array<GroupRanges::Range, 3>& place);

/// What the arrow beside a plot stands for.
struct ReferenceArrow
{
    double magnitude = 0.0;
    double length = 0.0; ///< in the unit of the coordinates
};

/// The longest arrow of a round magnitude that is no longer than `longest`; that of `wanted`,
/// unless this is 0 or longer. `lengthOfOne` is the length of magnitude 1, above 0.
ReferenceArrow referenceArrow(double lengthOfOne, double longest, double wanted);

} // namespace corvala::plot
