// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_points.h"

#include <functional>
#include <limits>
#include <vector>

namespace corvala::plot {

using Parameters = std::vector<double>;

/// The value of a curve with these parameters at a place; `slopes` takes its derivatives by them.
using ParametricCurve = std::function<double(double at, const Parameters&, double* slopes)>;

/// Where the weighted squares of the distances from points are least.
struct NonlinearFit
{
    bool isConverged = false;
    Parameters parameters;
    /// Of the scaled points, the root of the mean square.
    double distance = std::numeric_limits<double>::infinity();
    /// Of the parameters, by rows, if points of weight 1 deviate by 1; the variance of a parameter
    /// on which nothing depends is NaN.
    std::vector<double> covariance;

    double covarianceOf(std::size_t one, std::size_t other) const
    {
        return covariance[one * parameters.size() + other];
    }
};

/// Points that are brought to numbers about 1, for the sake of the search.
struct ScaledPoints
{
    std::vector<double> at;
    std::vector<double> values;
    std::vector<double> weights; ///< with a sum of 1
    long double weightSum = 0.0L; ///< by which the weights were divided
};

/// Values become (y - shift) / unit.
ScaledPoints scaled(const CurvePoints& points, const AbscissaScale& scale, double shift,
                    double unit);

/// Searches from a start by Levenberg's and Marquardt's method; needs as many points as parameters.
/// Not converged when it is given up.
NonlinearFit fitNonlinear(const ParametricCurve& curve, const ScaledPoints& points,
                          const Parameters& start, const GoesOn& goesOn);

} // namespace corvala::plot
