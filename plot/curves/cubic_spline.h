// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_fit.h"

#include <limits>
#include <vector>

namespace corvala::plot {

/// Slopes dy/dx that a spline has at its first and last point. An end whose slope is not finite is
/// natural: it has no curvature.
struct EndSlopes
{
    double start = std::numeric_limits<double>::quiet_NaN();
    double end = std::numeric_limits<double>::quiet_NaN();
};

/// A function of cubic pieces with continuous slopes, which goes on straight beyond its ends.
class CubicSpline
{
public:
    CubicSpline() = default;
    /// Pieces between knots of ascending x, which all differ; the three are of the same size.
    CubicSpline(std::vector<double> x, std::vector<double> y, std::vector<double> slopes);
    /// The one of continuous curvature; of two knots at least.
    CubicSpline(std::vector<double> x, std::vector<double> y, const EndSlopes& ends);

    /// Whether no slope is beyond what double precision holds.
    bool isFinite() const;
    /// Takes logarithmic time; NaN without knots.
    double operator()(double x) const;

private:
    std::vector<double> m_x;
    std::vector<double> m_y;
    std::vector<double> m_slopes;
};

/// The cubic spline through points in the order of their abscissas, two of which must differ; where
/// several points have one abscissa it goes through their mean. It has no coefficients.
CurveFit splineThrough(const CurvePoints& points, const EndSlopes& ends);

/// A curve in the plane that goes through points in their order.
struct SplinePath
{
    CurveProblem problem = CurveProblem::None;
    std::size_t pointCount = 0; ///< that took part
    double length = 0.0; ///< of its parameter, which begins at 0
    CubicSpline x; ///< of the parameter
    CubicSpline y;
};

/// The parameter is the length of the chords in a plane in which the points extend equally far
/// along x and y, so that units do not matter. A slope at an end is taken the way that the first
/// or last chord goes. Weights do not count; a point in the place of the one before it is left out,
/// and two must remain.
SplinePath parametricSplineThrough(const CurvePoints& points, const EndSlopes& ends);

/// Places on a path at equal steps of its parameter, both ends included.
CurvePoints samplePath(const SplinePath& path, std::size_t count);

} // namespace corvala::plot
