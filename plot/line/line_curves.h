// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/cubic_spline.h"
#include "plot/line/line_points.h"

#include <vector>

namespace corvala::plot {

/// How a curve runs through the points of a line map: all that it depends on besides these. What
/// does not count for its type has the value that it has here.
struct CurveRecipe
{
    int type = 0; ///< a CurveType_e
    int extendedFit = 0; ///< an ExtendedFit_e
    int order = 0; ///< of a polynomial
    double detail = 0.0; ///< of a smoothing spline
    std::array<double, 2> range {{0.0, 0.0}}; ///< of abscissas that take part; equal for all
    std::int64_t weight = 0; ///< variable; 0 for none
    bool isClamped = false;
    std::array<double, 2> slopes {{0.0, 0.0}}; ///< at the ends of a clamped spline
    bool isSwapped = false; ///< the first coordinate is a function of the second

    bool operator==(const CurveRecipe& other) const;
};

/// Whether a curve of the type (a CurveType_e) runs through its points, so that nothing is fitted.
bool isSplineType(int type);
CurveRecipe curveRecipeOf(const host::Frame& frame, CvlInt64 map);

/// Places at which the curve of each run is drawn.
int curvePlaceCount(const host::Frame& frame, CvlInt64 map);

/// What came of one run of points.
struct RunCurve
{
    CurveFit fit; ///< for a parametric spline, which is no function, its problem only
    SplinePath path; ///< of a parametric spline
    std::array<double, 2> ends {{0.0, 0.0}}; ///< the least and largest abscissa that took part
};

/// The curve through each run of points. `weights` are those of the points, by `weightsOf`.
std::vector<RunCurve> curvesThrough(const LinePoints& points, const std::vector<double>& weights,
                                    const CurveRecipe& recipe, const GoesOn& goesOn = {});
/// None where all points count alike.
std::vector<double> weightsOf(const host::DataSet& data, const LineRecipe& line,
                              const LinePoints& points, const CurveRecipe& recipe);
/// What keeps the first run from having a curve.
CurveProblem problemOf(const std::vector<RunCurve>& curves);

/// So many points on the curve of each run, to be joined; without sources. A logarithmic plane has
/// them closer where that shows.
LinePoints placesAlong(const std::vector<RunCurve>& curves, const CurveRecipe& recipe, int count,
                       const LinePlane& plane);

} // namespace corvala::plot
