// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_fit.h"

namespace corvala::plot {

constexpr int kLargestOrder = 10; ///< of a polynomial; the smallest is 1

/// The polynomial with the least weighted squares of vertical distances; needs one more abscissa
/// than its order, which is brought into its limits. Coefficients are those of the powers of x,
/// "c0" first. They lose digits where x is far from 0; the value of the curve does not, since it
/// comes from polynomials that are orthogonal on the points.
CurveFit fitPolynomial(const CurvePoints& points, int order);

} // namespace corvala::plot
