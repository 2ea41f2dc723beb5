// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <tuple>
#include <utility>

namespace corvala::plot {

/// How the values of a point become a place in the plane in which its line is drawn: as they are,
/// their decimal logarithm along a logarithmic axis, or a polar angle in degrees and a radius. What
/// has no place there is not finite.
struct LinePlane
{
    bool isFirstLogarithmic = false;
    bool isSecondLogarithmic = false;
    bool isPolar = false;
    double middle = 0.0; ///< radius at the origin of a polar plane: less has no place
    double start = 0.0; ///< degrees against the clock from the right to the angle 0
    bool isClockwise = false; ///< polar angles

    auto tied() const
    {
        return std::tie(isFirstLogarithmic, isSecondLogarithmic, isPolar, middle, start,
                        isClockwise);
    }
    std::pair<double, double> place(double first, double second) const;
    bool operator==(const LinePlane& other) const { return tied() == other.tied(); }
};

} // namespace corvala::plot
