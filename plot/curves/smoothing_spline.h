// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_fit.h"

namespace corvala::plot {

/// The function with the least sum of weighted squares of vertical distances and of a penalty on
/// its squared curvature; needs two abscissas. `detail` in 0 to 1 says how much of the points it
/// shows: 0 is the straight line, 1 the spline through the points, and waves of which
/// 10 detail / (1 - detail) halves fit between the first and the last abscissa come through with
/// half their height, shorter ones with less. So it depends neither on units nor on the number of
/// points. The one coefficient is "degrees of freedom", 2 for the line and the number of abscissas
/// for the spline through the points.
CurveFit fitSmoothingSpline(const CurvePoints& points, double detail);

} // namespace corvala::plot
