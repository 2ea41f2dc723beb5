// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>
#include <sdk/propertybindings/curve_fit_info.h>

#include <QString>

namespace corvala::propertybindings {

/// The settings that a fit of that type uses for a line map, in one line; "N/A" for a fit without
/// settings. The line map must exist.
QString curveFitDetails(const CurveFitInfo& fit, CvlUniqueId frame, CvlInt64 lineMap);

} // namespace corvala::propertybindings
