// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_fit.h"

namespace corvala::plot {

// Both have the least weighted squares of vertical distances, as the other fits: the distances that
// one sees, and not those of the logarithms, which would follow the smallest values. Weights of
// 1 / y^2 make it relative distances. Coefficients are "a" and "b"; two abscissas are needed.

// The values of y are all positive, or all negative: so is "a" then.

/// y = a exp(b x).
CurveFit fitExponential(const CurvePoints& points, const GoesOn& goesOn = {});
/// y = a x^b, through points with x > 0.
CurveFit fitPower(const CurvePoints& points, const GoesOn& goesOn = {});

} // namespace corvala::plot
