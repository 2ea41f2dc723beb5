// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/vector_scale.h"

#include "plot/common/nice_steps.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr double kSpacings = 1.6; ///< of points, that a large vector reaches
static constexpr double kShortest = 1.0 / 30.0; ///< of what is shown
static constexpr double kLongest = 1.0 / 8.0;
static constexpr double kLargeByMean = 1.6; ///< what is large, in root mean squares

/// The largest magnitude there can be, or what is far above the mean, whichever is less.
static double largeMagnitude(const std::array<GroupRanges::Range, 3>& vector)
{
    double largest = 0.0;
    double mean = 0.0;
    for (const GroupRanges::Range& part : vector) {
        if (part.minimum > part.maximum)
            continue;
        largest = std::hypot(largest, std::max(std::abs(part.minimum), std::abs(part.maximum)));
        mean += part.sumOfSquares / part.count;
    }
    return std::min(largest, kLargeByMean * std::sqrt(mean));
}

/// So that small changes of what is shown do not make every arrow anew.
static double rounded(double length)
{
    return std::pow(10.0, std::round(10.0 * std::log10(length)) / 10.0);
}

VectorScale proposedScale(const std::array<GroupRanges::Range, 3>& vector,
                          const std::array<GroupRanges::Range, 3>& place)
{
    std::array<double, 3> extents {};
    double count = 1.0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        extents[axis] = std::max(place[axis].maximum - place[axis].minimum, 0.0);
        count = std::max(count, place[axis].count);
    }
    std::sort(extents.rbegin(), extents.rend());
    const double magnitude = largeMagnitude(vector);
    const double whole = extents[0] > 0.0 ? extents[0] : 1.0;
    const double spacing = std::sqrt(whole * std::max(extents[1], whole / count) / count);
    const double length = std::clamp(kSpacings * spacing, kShortest * whole, kLongest * whole);
    if (!(magnitude > 0.0) || !std::isfinite(magnitude) || !std::isfinite(length))
        return {};
    return {rounded(length / magnitude), rounded(length)};
}

ReferenceArrow referenceArrow(double lengthOfOne, double longest, double wanted)
{
    if (wanted > 0.0 && wanted * lengthOfOne <= longest)
        return {wanted, wanted * lengthOfOne};
    double magnitude = niceStep(longest / lengthOfOne, 1);
    while (magnitude * lengthOfOne > longest * (1.0 + 1e-9))
        magnitude = niceStep(magnitude / 2.5, 1);
    return {magnitude, magnitude * lengthOfOne};
}

} // namespace corvala::plot
