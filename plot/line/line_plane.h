// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
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
    double middle = 0.0; ///< radius at the origin of a polar plane

    std::pair<double, double> place(double first, double second) const;
    bool operator==(const LinePlane& other) const
    {
        return isFirstLogarithmic == other.isFirstLogarithmic
            && isSecondLogarithmic == other.isSecondLogarithmic && isPolar == other.isPolar
            && middle == other.middle;
    }
};

} // namespace corvala::plot
