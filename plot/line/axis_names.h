// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"
#include "plot/line/chart_look.h"

namespace corvala::plot {

/// Gives axes without a title of their own the names of the variables that maps have along them,
/// and tells which of them show instants, and what all their titles say.
void addVariableNames(const host::Frame& frame, const host::NumberSet& maps, ChartLook& look);

} // namespace corvala::plot
