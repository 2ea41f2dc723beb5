// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/curves/curve_fit.h"
#include "vocabulary/types.h"

#include <QString>

namespace corvala::host {
class Frame;
}

namespace corvala::plot {

/// A problem in words, such as "too few points"; empty for none.
QString problemText(CurveProblem problem);

/// What came of the fit of a line map: coefficients with their standard errors and R squared, or
/// the problem, in lines of plain text. Empty for a map without a fit. The map must exist.
QString fitReport(const host::Frame& frame, CvlInt64 map);

} // namespace corvala::plot
