// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/curve_fit.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvala::plot {

CurveFit withoutCurve(CurveProblem problem, std::size_t pointCount)
{
    CurveFit result;
    result.problem = problem;
    result.pointCount = pointCount;
    return result;
}

CurveProblem abscissaProblem(const CurvePoints& points, std::size_t needed)
{
    if (points.size() < needed)
        return CurveProblem::TooFewPoints;
    return hasAbscissas(points, needed) ? CurveProblem::None : CurveProblem::SameAbscissas;
}

static long double mean(const CurvePoints& points)
{
    long double weight = 0.0L;
    long double sum = 0.0L;
    for (std::size_t i = 0; i < points.size(); ++i) {
        weight += points.weight(i);
        sum += static_cast<long double>(points.weight(i)) * points.y[i];
    }
    return sum / weight;
}

CurveFit assessed(std::function<double(double)> value, const CurvePoints& points,
                  double parameterCount,
                  const std::function<std::vector<Coefficient>(double deviation)>& coefficients)
{
    const long double middle = mean(points);
    long double total = 0.0L;
    long double rest = 0.0L;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const long double weight = points.weight(i);
        const long double away = points.y[i] - middle;
        const long double residual = static_cast<long double>(points.y[i]) - value(points.x[i]);
        total += weight * away * away;
        rest += weight * residual * residual;
    }
    if (!std::isfinite(rest))
        return withoutCurve(CurveProblem::OutOfRange, points.size());

    CurveFit fit;
    fit.pointCount = points.size();
    fit.value = std::move(value);
    const auto [low, high] = std::minmax_element(points.y.begin(), points.y.end());
    fit.rSquared = *low < *high ? static_cast<double>(1.0L - rest / total) : 1.0;
    const long double freedom = static_cast<long double>(points.size()) - parameterCount;
    if (freedom > 0.0L)
        fit.residualDeviation = static_cast<double>(std::sqrt(rest / freedom));
    fit.coefficients = coefficients(fit.residualDeviation);
    return fit;
}

CurvePoints sampleCurve(const std::function<double(double)>& curve, double from, double to,
                        std::size_t count)
{
    CurvePoints result;
    if (!std::isfinite(from) || !std::isfinite(to))
        return result;
    for (std::size_t i = 0; i < count; ++i) {
        const double share =
            count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0;
        result.x.push_back((1.0 - share) * from + share * to);
        result.y.push_back(curve(result.x.back()));
    }
    return result;
}

} // namespace corvala::plot
