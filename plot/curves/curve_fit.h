// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_points.h"

#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace corvala::plot {

/// Why there is no curve.
enum class CurveProblem {
    None,
    TooFewPoints,
    SameAbscissas, ///< fewer abscissas that can be told apart than the curve needs
    NonPositiveX,
    NoCommonSign, ///< values of y are 0, or on both sides of it
    NoPeak, ///< all points lie at the same height
    NoConvergence, ///< no curve of the kind comes nearest to the points
    OutOfRange, ///< numbers of the curve are too large to be held
    NoMemory, ///< there is not enough for so many points
};

/// A number that describes a curve.
struct Coefficient
{
    std::string name;
    double value = 0.0;
    double standardError = 0.0; ///< NaN where the points do not tell it
};

/// A curve as a function of x, and how well it follows its points.
struct CurveFit
{
    CurveProblem problem = CurveProblem::None;
    std::vector<Coefficient> coefficients;
    /// The share of the squared distances from the mean that the curve explains, at most 1; 1 where
    /// all points lie at the same height.
    double rSquared = std::numeric_limits<double>::quiet_NaN();
    /// Standard deviation of a point of weight 1 from the curve; NaN where the points are not more
    /// than the coefficients.
    double residualDeviation = std::numeric_limits<double>::quiet_NaN();
    std::size_t pointCount = 0; ///< that took part
    /// NaN where there is no curve. Holds all that it needs.
    std::function<double(double)> value = [](double) {
        return std::numeric_limits<double>::quiet_NaN();
    };

    bool isValid() const { return problem == CurveProblem::None; }
};

/// No curve through so many usable points.
CurveFit withoutCurve(CurveProblem problem, std::size_t pointCount);
/// What keeps a curve that needs so many different abscissas from usable points.
CurveProblem abscissaProblem(const CurvePoints& points, std::size_t needed);
/// The curve of these values through usable points, and how well it follows them; it has so many
/// parameters that are free. The coefficients are asked for once the residual deviation is known.
CurveFit assessed(std::function<double(double)> value, const CurvePoints& points,
                  double parameterCount,
                  const std::function<std::vector<Coefficient>(double deviation)>& coefficients);

/// Equally spaced abscissas from one end to the other, both included, and the curve there. None for
/// an end that is not finite.
CurvePoints sampleCurve(const std::function<double(double)>& curve, double from, double to,
                        std::size_t count);

} // namespace corvala::plot
