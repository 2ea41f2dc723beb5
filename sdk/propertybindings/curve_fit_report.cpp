// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/curve_fit_report.h"

#include <utility>

namespace corvala::propertybindings {

static CurveFitReporter& reporter()
{
    static CurveFitReporter current;
    return current;
}

void setCurveFitReporter(CurveFitReporter other)
{
    reporter() = std::move(other);
}

std::optional<QString> curveFitReport(CvlUniqueId frame, CvlInt64 lineMap)
{
    return reporter() ? reporter()(frame, lineMap) : QString();
}

} // namespace corvala::propertybindings
