// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_curves.h"

#include "host/document/frame.h"
#include "plot/curves/exponential_fit.h"
#include "plot/curves/gaussian_fit.h"
#include "plot/curves/polynomial_fit.h"
#include "plot/curves/smoothing_spline.h"

#include <algorithm>
#include <new>
#include <tuple>
#include <utility>

namespace corvala::plot {

static constexpr const auto& kCurves = style::lineMap.curves;

bool CurveRecipe::operator==(const CurveRecipe& other) const
{
    const auto tied = [](const CurveRecipe& some) {
        return std::tie(some.type, some.extendedFit, some.order, some.detail, some.range,
                        some.weight, some.isClamped, some.slopes, some.isSwapped);
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

int curvePlaceCount(const host::Frame& frame, CvlInt64 map)
{
    return std::max(frame.lineInteger(kCurves.numPts, map), 2);
}

CurveProblem problemOf(const std::vector<RunCurve>& curves)
{
    return curves.empty() ? CurveProblem::None : curves.front().fit.problem;
}

static EndSlopes slopesOf(const CurveRecipe& recipe)
{
    return recipe.isClamped ? EndSlopes {recipe.slopes[0], recipe.slopes[1]} : EndSlopes {};
}

static CurveFit fitted(const CurvePoints& points, const CurveRecipe& recipe, const GoesOn& goesOn)
{
    switch (recipe.type) {
    case CurveType_PolynomialFit: return fitPolynomial(points, recipe.order);
    case CurveType_ExponentialFit: return fitExponential(points, goesOn);
    case CurveType_PowerFit: return fitPower(points, goesOn);
    case CurveType_Spline: return splineThrough(points, slopesOf(recipe));
    default: break;
    }
    return recipe.extendedFit == ExtendedFit_Gaussian ? fitGaussian(points, goesOn)
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

static RunCurve curveThrough(const CurvePoints& run, const CurveRecipe& recipe,
                             const GoesOn& goesOn)
{
    RunCurve curve;
    if (recipe.type == CurveType_ParametricSpline) {
        curve.path = parametricSplineThrough(run, slopesOf(recipe));
        curve.fit = withoutCurve(curve.path.problem, curve.path.pointCount);
        return curve;
    }
    curve.fit = fitted(run, recipe, goesOn);
    const CurvePoints taken = usable(run);
    const auto [least, largest] = std::minmax_element(taken.x.begin(), taken.x.end());
    if (least != taken.x.end())
        curve.ends = {{*least, *largest}};
    return curve;
}

std::vector<RunCurve> curvesThrough(const LinePoints& points, const std::vector<double>& weights,
                                    const CurveRecipe& recipe, const GoesOn& goesOn)
{
    std::vector<RunCurve> curves;
    std::size_t begin = 0;
    for (const std::size_t end : points.runEnds) {
        if (goesOn && !goesOn())
            break;
        try {
            curves.push_back(
                curveThrough(runOf(points, begin, end, weights, recipe), recipe, goesOn));
        } catch (const std::bad_alloc&) {
            curves.push_back({withoutCurve(CurveProblem::NoMemory, end - begin), {}, {}});
        }
        begin = end;
    }
    return curves;
}

std::vector<double> weightsOf(const host::DataSet& data, const LineRecipe& line,
                              const LinePoints& points, const CurveRecipe& recipe)
{
    return recipe.weight > 0 ? valuesAt(data, line, points, recipe.weight) : std::vector<double>();
}

/// Places along a function over the abscissas that took part.
static CurvePoints sampled(const RunCurve& curve, std::size_t count, bool isLogarithmic)
{
    const auto [first, last] = curve.ends;
    const auto& value = curve.fit.value;
    if (!isLogarithmic || first <= 0.0)
        return sampleCurve(value, first, last, count);
    CurvePoints places =
        sampleCurve([&value](double power) { return value(std::pow(10.0, power)); },
                    std::log10(first), std::log10(last), count);
    for (double& x : places.x)
        x = std::pow(10.0, x);
    return places;
}

LinePoints placesAlong(const std::vector<RunCurve>& curves, const CurveRecipe& recipe, int count,
                       const LinePlane& plane)
{
    const bool isLogarithmic =
        recipe.isSwapped ? plane.isSecondLogarithmic : plane.isFirstLogarithmic;
    const auto number = static_cast<std::size_t>(count);
    LinePoints points;
    const auto append = [](std::vector<double>& to, const std::vector<double>& from) {
        to.insert(to.end(), from.begin(), from.end());
    };
    for (const RunCurve& curve : curves) {
        CurvePoints places;
        if (curve.fit.isValid())
            places = recipe.type == CurveType_ParametricSpline
                ? samplePath(curve.path, number)
                : sampled(curve, number, isLogarithmic);
        append(points.first, recipe.isSwapped ? places.y : places.x);
        append(points.second, recipe.isSwapped ? places.x : places.y);
        points.runEnds.push_back(points.first.size());
    }
    return points;
}

} // namespace corvala::plot
