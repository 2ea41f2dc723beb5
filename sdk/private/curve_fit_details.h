// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>
#include <sdk/base/types.h>

#include <QString>

namespace corvala::propertybindings {

/// The settings that a fit of that type uses for a line map, in one line; "N/A" for a fit without
/// settings, empty for a fit that this host does not offer. The line map must exist.
QString curveFitDetails(CurveType_e type, CvlUniqueId frame, CvlInt64 lineMap);

} // namespace corvala::propertybindings
