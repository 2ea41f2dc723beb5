// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"
#include "plot/line/line_chart.h"

namespace corvala::plot {

/// Numbers of the variables along the two axes of a line map: X and Y, or angle and radius.
struct LineVariables
{
    CvlInt64 first = 0;
    CvlInt64 second = 0;
};

LineVariables variablesOf(const host::Frame& frame, CvlInt64 map);

/// The points of a line map: the values of its variables in its zone. Empty when the zone lacks one
/// of them, or has one at its points and the other in its cells.
LineData lineData(const host::Frame& frame, CvlInt64 map);

} // namespace corvala::plot
