// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/gaussian_fit.h"

#include "plot/curves/nonlinear_fit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace corvala::plot {

namespace {

enum Place { Base, Amplitude, Centre, LogSigma };

} // namespace

static double gaussian(double at, const Parameters& parameters, double* slopes)
{
    const double sigma = std::exp(parameters[LogSigma]);
    const double distance = (at - parameters[Centre]) / sigma;
    const double peak = std::exp(-0.5 * distance * distance);
    slopes[Base] = 1.0;
    slopes[Amplitude] = peak;
    slopes[Centre] = parameters[Amplitude] * peak * distance / sigma;
    slopes[LogSigma] = parameters[Amplitude] * peak * distance * distance;
    return parameters[Base] + parameters[Amplitude] * peak;
}

/// Some thousand of the points, or all.
static ScaledPoints thinned(const ScaledPoints& points)
{
    constexpr std::size_t kEnough = 20000;
    const std::size_t step = points.at.size() / kEnough + 1;
    ScaledPoints result;
    result.weightSum = points.weightSum;
    for (std::size_t i = 0; i < points.at.size(); i += step) {
        result.at.push_back(points.at[i]);
        result.values.push_back(points.values[i]);
        result.weights.push_back(points.weights[i]);
    }
    return result;
}

/// The best base and amplitude of a peak, and the share of the squares of the values that they
/// explain.
static double setHeights(const ScaledPoints& points, Parameters& parameters)
{
    double sum = 0.0;
    double mean = 0.0;
    double peakMean = 0.0;
    double square = 0.0;
    double product = 0.0;
    parameters[Base] = 0.0;
    parameters[Amplitude] = 1.0;
    std::array<double, 4> slopes {};
    for (std::size_t i = 0; i < points.at.size(); ++i) {
        const double weight = points.weights[i];
        const double fromPeak = gaussian(points.at[i], parameters, slopes.data()) - peakMean;
        const double fromMean = points.values[i] - mean;
        sum += weight;
        mean += fromMean * weight / sum;
        peakMean += fromPeak * weight / sum;
        square += weight * fromPeak * (slopes[Amplitude] - peakMean);
        product += weight * fromPeak * (points.values[i] - mean);
    }
    if (!(square > 0.0))
        return 0.0;
    parameters[Amplitude] = product / square;
    parameters[Base] = mean - parameters[Amplitude] * peakMean;
    return product * product / square;
}

/// The best dip and the best peak of many widths, in steps along the abscissas and at the lowest
/// and highest points.
static std::array<Parameters, 2> startsOf(const ScaledPoints& points)
{
    constexpr double kWidest = 1.0; // half of the range at least
    constexpr double kNarrowest = 1e-4;
    const auto [low, high] = std::minmax_element(points.values.begin(), points.values.end());
    std::vector<double> centres {points.at[std::size_t(low - points.values.begin())],
                                 points.at[std::size_t(high - points.values.begin())]};
    for (double centre = -1.0; centre <= 1.0; centre += 0.125)
        centres.push_back(centre);

    std::array<Parameters, 2> best;
    std::array<double, 2> mostExplained {0.0, 0.0};
    for (double sigma = kWidest; sigma > kNarrowest; sigma /= 2.0) {
        for (const double centre : centres) {
            Parameters parameters {0.0, 0.0, centre, std::log(sigma)};
            const double explained = setHeights(points, parameters);
            const std::size_t kind = parameters[Amplitude] > 0.0;
            if (explained > mostExplained[kind]) {
                mostExplained[kind] = explained;
                best[kind] = parameters;
            }
        }
    }
    return best;
}

/// The better of dip and peak, which a part of the points decides.
static NonlinearFit search(const ScaledPoints& points, const GoesOn& goesOn)
{
    const ScaledPoints part = thinned(points);
    NonlinearFit best;
    for (const Parameters& start : startsOf(part)) {
        if (start.empty())
            continue;
        NonlinearFit found = fitNonlinear(gaussian, part, start, goesOn);
        if (found.distance < best.distance)
            best = std::move(found);
    }
    const bool isAll = part.at.size() == points.at.size();
    return isAll || !best.isConverged ? best
                                      : fitNonlinear(gaussian, points, best.parameters, goesOn);
}

static std::vector<Coefficient> coefficientsOf(const NonlinearFit& found,
                                               const AbscissaScale& scale, double shift,
                                               double unit, double deviation)
{
    const Parameters& at = found.parameters;
    const double sigma = std::exp(at[LogSigma]) * static_cast<double>(scale.unit);
    const double centre = static_cast<double>(scale.middle + at[Centre] * scale.unit);
    const auto error = [&](Place place) {
        return deviation / unit * std::sqrt(found.covarianceOf(place, place));
    };
    return {
        {"base", shift + at[Base] * unit, error(Base) * unit},
        {"amplitude", at[Amplitude] * unit, error(Amplitude) * unit},
        {"centre", centre, error(Centre) * static_cast<double>(scale.unit)},
        {"sigma", sigma, error(LogSigma) * sigma},
    };
}

CurveFit fitGaussian(const CurvePoints& points, const GoesOn& goesOn)
{
    const CurvePoints used = usable(points);
    const CurveProblem problem = abscissaProblem(used, 4);
    if (problem != CurveProblem::None)
        return withoutCurve(problem, used.size());
    const auto [low, high] = std::minmax_element(used.y.begin(), used.y.end());
    if (*low == *high)
        return withoutCurve(CurveProblem::NoPeak, used.size());

    const AbscissaScale scale(used.x);
    const double shift = *low / 2.0 + *high / 2.0;
    const double unit = *high / 2.0 - *low / 2.0;
    const NonlinearFit found = search(scaled(used, scale, shift, unit), goesOn);
    if (!found.isConverged)
        return withoutCurve(CurveProblem::NoConvergence, used.size());

    const auto value = [scale, shift, unit, parameters = found.parameters](double x) {
        std::array<double, 4> slopes {};
        const double at = static_cast<double>(scale(x));
        return shift + unit * gaussian(at, parameters, slopes.data());
    };
    return assessed(value, used, 4.0, [&](double deviation) {
        return coefficientsOf(found, scale, shift, unit, deviation);
    });
}

} // namespace corvala::plot
