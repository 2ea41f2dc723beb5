// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_fit.h"

namespace corvala::plot {

/// y = base + amplitude exp(-((x - centre) / sigma)^2 / 2) with the least weighted squares of
/// vertical distances; needs four abscissas. The peak may point down. Coefficients are "base",
/// "amplitude", "centre" and "sigma", which is positive.
CurveFit fitGaussian(const CurvePoints& points, const GoesOn& goesOn = {});

} // namespace corvala::plot
