// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/exponential_fit.h"

#include "plot/curves/nonlinear_fit.h"
#include "plot/curves/polynomial_fit.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

/// exp(p0 + p1 t)
static double exponential(double at, const Parameters& parameters, double* slopes)
{
    const double value = std::exp(parameters[0] + parameters[1] * at);
    slopes[0] = value;
    slopes[1] = value * at;
    return value;
}

/// The straight line through the logarithms of values of at most 1, weighted as the values
/// themselves would be.
static Parameters startOf(const ScaledPoints& points)
{
    constexpr double kLeastWeight = 1e-12; // so that enough points stay
    CurvePoints logarithms {points.at, points.values, points.weights};
    for (std::size_t i = 0; i < logarithms.size(); ++i) {
        const double value = points.values[i];
        logarithms.y[i] = std::log(value);
        logarithms.weights[i] *= std::max(value * value, kLeastWeight);
    }
    const CurveFit line = fitPolynomial(logarithms, 1);
    return line.isValid() ? Parameters {line.coefficients[0].value, line.coefficients[1].value}
                          : Parameters {0.0, 0.0};
}

/// `sign` is that of all values.
static std::vector<Coefficient> coefficientsOf(const NonlinearFit& found,
                                               const AbscissaScale& scale, double sign,
                                               double logarithm, double deviation)
{
    const double unit = static_cast<double>(scale.unit);
    const double shift = static_cast<double>(scale.middle / scale.unit);
    const double factor = std::exp(logarithm - shift * found.parameters[1]);
    const double variance = found.covarianceOf(0, 0) - 2.0 * shift * found.covarianceOf(0, 1)
        + shift * shift * found.covarianceOf(1, 1);
    return {
        {"a", sign * factor, deviation * factor * std::sqrt(variance)},
        {"b", found.parameters[1] / unit, deviation * std::sqrt(found.covarianceOf(1, 1)) / unit},
    };
}

/// y = a exp(b abscissa(x)), through usable points whose y have one sign.
static CurveFit fitGrowth(const CurvePoints& points, double (*abscissa)(double),
                          const GoesOn& goesOn)
{
    const CurveProblem problem = abscissaProblem(points, 2);
    if (problem != CurveProblem::None)
        return withoutCurve(problem, points.size());
    CurvePoints placed = points;
    std::transform(points.x.begin(), points.x.end(), placed.x.begin(), abscissa);
    const AbscissaScale scale(placed.x);
    const auto [low, high] = std::minmax_element(points.y.begin(), points.y.end());
    const double sign = *low < 0.0 ? -1.0 : 1.0;
    const double unit = std::max(std::fabs(*low), std::fabs(*high));
    const ScaledPoints search = scaled(placed, scale, 0.0, sign * unit);
    const NonlinearFit found = fitNonlinear(exponential, search, startOf(search), goesOn);
    if (!found.isConverged)
        return withoutCurve(CurveProblem::NoConvergence, points.size());

    const double logarithm = found.parameters[0] + std::log(unit);
    const double slope = found.parameters[1];
    const auto value = [abscissa, scale, sign, logarithm, slope](double x) {
        return sign * std::exp(logarithm + slope * static_cast<double>(scale(abscissa(x))));
    };
    return assessed(value, points, 2.0, [&](double deviation) {
        return coefficientsOf(found, scale, sign, logarithm, deviation / unit);
    });
}

static bool isPositive(const std::vector<double>& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(), [](double number) { return number > 0.0; });
}

static bool haveCommonSign(const std::vector<double>& numbers)
{
    return isPositive(numbers)
        || std::all_of(numbers.begin(), numbers.end(), [](double number) { return number < 0.0; });
}

CurveFit fitExponential(const CurvePoints& points, const GoesOn& goesOn)
{
    const CurvePoints used = usable(points);
    if (!haveCommonSign(used.y))
        return withoutCurve(CurveProblem::NoCommonSign, used.size());
    return fitGrowth(
        used, [](double x) { return x; }, goesOn);
}

CurveFit fitPower(const CurvePoints& points, const GoesOn& goesOn)
{
    const CurvePoints used = usable(points);
    if (!isPositive(used.x))
        return withoutCurve(CurveProblem::NonPositiveX, used.size());
    if (!haveCommonSign(used.y))
        return withoutCurve(CurveProblem::NoCommonSign, used.size());
    return fitGrowth(
        used, [](double x) { return std::log(x); }, goesOn);
}

} // namespace corvala::plot
