// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_plane.h"

#include <QtMath>

#include <limits>

namespace corvala::plot {

static double logarithm(double value)
{
    return value > 0.0 ? std::log10(value) : std::numeric_limits<double>::quiet_NaN();
}

std::pair<double, double> LinePlane::place(double first, double second) const
{
    if (isPolar) {
        const double angle = qDegreesToRadians(isClockwise ? start - first : start + first);
        const double radius =
            second >= middle ? second - middle : std::numeric_limits<double>::quiet_NaN();
        return {radius * std::cos(angle), radius * std::sin(angle)};
    }
    return {isFirstLogarithmic ? logarithm(first) : first,
            isSecondLogarithmic ? logarithm(second) : second};
}

} // namespace corvala::plot
