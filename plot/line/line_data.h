// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/data_set.h"
#include "plot/line/line_chart.h"
#include "plot/line/line_looks.h"

namespace corvala::plot {

/// The values of two variables in a zone. Empty when the zone lacks one of them, or has one at its
/// points and the other in its cells.
LineData lineData(const host::DataSet& data, const LineRecipe& recipe);

} // namespace corvala::plot
