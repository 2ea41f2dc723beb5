// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_fit.h"
#include "plot/line/line_points.h"

#include <vector>

namespace corvala::plot {

/// How a curve runs through the points of a line map. What does not count for its type has the
/// value that it has here.
struct CurveRecipe
{
    int type = 0; ///< a CurveType_e
    int extendedFit = 0; ///< an ExtendedFit_e
    int sampleCount = 0; ///< places at which the curve of each run is drawn
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

/// A curve as points to be joined, and what came of the fit of each run.
struct LineCurve
{
    LinePoints points; ///< without sources
    std::vector<CurveFit> fits; ///< none for points that are only joined

    /// What keeps the first run from having a curve.
    CurveProblem problem() const;
};

/// The curve through each run of points. A logarithmic plane has its places closer where that
/// shows.
LineCurve curveThrough(const host::DataSet& data, const LineRecipe& line, const LinePoints& points,
                       const CurveRecipe& recipe, const LinePlane& plane);

} // namespace corvala::plot
