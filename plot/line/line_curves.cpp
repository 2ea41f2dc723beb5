// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_curves.h"

#include "host/document/frame.h"
#include "plot/curves/cubic_spline.h"
#include "plot/curves/exponential_fit.h"
#include "plot/curves/gaussian_fit.h"
#include "plot/curves/polynomial_fit.h"
#include "plot/curves/smoothing_spline.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace corvala::plot {

static constexpr const auto& kCurves = style::lineMap.curves;

bool CurveRecipe::operator==(const CurveRecipe& other) const
{
    const auto tied = [](const CurveRecipe& some) {
        return std::tie(some.type, some.extendedFit, some.sampleCount, some.order, some.detail,
                        some.range, some.weight, some.isClamped, some.slopes, some.isSwapped);
    };
    return tied(*this) == tied(other);
}

bool isSplineType(int type)
{
    return type == CurveType_Spline || type == CurveType_ParametricSpline;
}

CurveRecipe curveRecipeOf(const host::Frame& frame, CvlInt64 map)
{
    const auto number = [&](style::Key key) { return frame.lineInteger(key, map); };
    const auto real = [&](style::RealKey key) { return frame.lineReal(key, map); };
    CurveRecipe recipe;
    recipe.type = number(kCurves.curveType);
    if (recipe.type == CurveType_LineSegments)
        return recipe;
    recipe.sampleCount = number(kCurves.numPts);
    recipe.isSwapped = recipe.type != CurveType_ParametricSpline
        && number(style::lineMap.assign.functionDependency) == FunctionDependency_XofY;
    if (isSplineType(recipe.type)) {
        recipe.isClamped = number(kCurves.clampSpline) != 0;
        if (recipe.isClamped)
            recipe.slopes = {
                {real(kCurves.splineDerivativeAtStart), real(kCurves.splineDerivativeAtEnd)}};
        return recipe;
    }
    if (recipe.type == CurveType_Extended)
        recipe.extendedFit = number(kCurves.extendedFit);
    if (recipe.type == CurveType_PolynomialFit)
        recipe.order = number(kCurves.polyOrder);
    if (recipe.type == CurveType_Extended && recipe.extendedFit == ExtendedFit_SmoothingSpline)
        recipe.detail = real(kCurves.smoothing);
    if (number(kCurves.useIndVarRange) != 0)
        recipe.range = {{real(kCurves.indVarMin), real(kCurves.indVarMax)}};
    if (number(kCurves.useWeightVar) != 0)
        recipe.weight = number(kCurves.weightVar);
    return recipe;
}

CurveProblem LineCurve::problem() const
{
    return fits.empty() ? CurveProblem::None : fits.front().problem;
}

static EndSlopes slopesOf(const CurveRecipe& recipe)
{
    return recipe.isClamped ? EndSlopes {recipe.slopes[0], recipe.slopes[1]} : EndSlopes {};
}

static CurveFit fitted(const CurvePoints& points, const CurveRecipe& recipe)
{
    switch (recipe.type) {
    case CurveType_PolynomialFit: return fitPolynomial(points, recipe.order);
    case CurveType_ExponentialFit: return fitExponential(points);
    case CurveType_PowerFit: return fitPower(points);
    case CurveType_Spline: return splineThrough(points, slopesOf(recipe));
    default: break;
    }
    return recipe.extendedFit == ExtendedFit_Gaussian ? fitGaussian(points)
                                                      : fitSmoothingSpline(points, recipe.detail);
}

/// One run as the points that its curve is drawn through.
static CurvePoints runOf(const LinePoints& points, std::size_t begin, std::size_t end,
                         const std::vector<double>& weights, const CurveRecipe& recipe)
{
    const auto part = [&](const std::vector<double>& values) {
        return std::vector<double>(values.begin() + static_cast<std::ptrdiff_t>(begin),
                                   values.begin() + static_cast<std::ptrdiff_t>(end));
    };
    CurvePoints run;
    run.x = part(recipe.isSwapped ? points.second : points.first);
    run.y = part(recipe.isSwapped ? points.first : points.second);
    if (!weights.empty())
        run.weights = part(weights);
    if (recipe.range[0] != recipe.range[1]) {
        run.from = recipe.range[0];
        run.to = recipe.range[1];
    }
    return run;
}

/// Places along a function over the abscissas that took part.
static CurvePoints sampled(const CurveFit& fit, const CurvePoints& points,
                           const CurveRecipe& recipe, bool isLogarithmic)
{
    const CurvePoints taken = usable(points);
    if (!fit.isValid() || taken.x.empty())
        return {};
    const auto [first, last] = std::minmax_element(taken.x.begin(), taken.x.end());
    const auto count = static_cast<std::size_t>(std::max(recipe.sampleCount, 2));
    if (!isLogarithmic || *first <= 0.0)
        return sampleCurve(fit.value, *first, *last, count);
    const auto value = fit.value;
    CurvePoints places = sampleCurve([value](double power) { return value(std::pow(10.0, power)); },
                                     std::log10(*first), std::log10(*last), count);
    for (double& x : places.x)
        x = std::pow(10.0, x);
    return places;
}

/// Adds the curve of one run.
static void add(LineCurve& curve, const CurvePoints& places, bool isSwapped)
{
    LinePoints& points = curve.points;
    const auto append = [](std::vector<double>& to, const std::vector<double>& from) {
        to.insert(to.end(), from.begin(), from.end());
    };
    append(points.first, isSwapped ? places.y : places.x);
    append(points.second, isSwapped ? places.x : places.y);
    points.runEnds.push_back(points.first.size());
}

static CurvePoints addFit(LineCurve& curve, const CurvePoints& run, const CurveRecipe& recipe,
                          bool isLogarithmic)
{
    if (recipe.type == CurveType_ParametricSpline) {
        const SplinePath path = parametricSplineThrough(run, slopesOf(recipe));
        curve.fits.push_back(withoutCurve(path.problem, path.pointCount));
        return path.problem == CurveProblem::None
            ? samplePath(path, static_cast<std::size_t>(std::max(recipe.sampleCount, 2)))
            : CurvePoints();
    }
    curve.fits.push_back(fitted(run, recipe));
    return sampled(curve.fits.back(), run, recipe, isLogarithmic);
}

LineCurve curveThrough(const host::DataSet& data, const LineRecipe& line, const LinePoints& points,
                       const CurveRecipe& recipe, const LinePlane& plane)
{
    const std::vector<double> weights =
        recipe.weight > 0 ? valuesAt(data, line, points, recipe.weight) : std::vector<double>();
    const bool isLogarithmic =
        recipe.isSwapped ? plane.isSecondLogarithmic : plane.isFirstLogarithmic;
    LineCurve curve;
    std::size_t begin = 0;
    for (const std::size_t end : points.runEnds) {
        const CurvePoints run = runOf(points, begin, end, weights, recipe);
        add(curve, addFit(curve, run, recipe, isLogarithmic), recipe.isSwapped);
        begin = end;
    }
    return curve;
}

} // namespace corvala::plot
