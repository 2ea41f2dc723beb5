// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/data_set.h"

#include <vector>

namespace corvala::app {

/// A line that shows something of data that have just been opened.
struct FirstLine
{
    int zone;
    int x; ///< variables
    int y;
    int yAxis; ///< from 1
    bool isScattered; ///< the rows do not follow the abscissa: points, not a line
    int error = 0; ///< variable of its error bars; 0 for none
};

/// The lines of an XY plot: the first column of a zone that goes one way only, or else does so in
/// cycles, or else the first one, against the next ones, on a second axis those that are much
/// larger or smaller. Columns with the errors of another one are no lines. docs/decisions.md has
/// the numbers. `possible` (may be null) becomes how many there could be.
std::vector<FirstLine> firstLines(const host::DataSet& data, std::size_t* possible = nullptr);

/// The line of an XY plot of a field: the first contour variable along I of the first zone, over
/// the coordinate that goes farthest there. None without a contour variable in that zone, or when
/// finding out would take long.
std::vector<FirstLine> firstFieldLines(const host::DataSet& data);

/// Whether the data are tables whose rows are points of a field plot.
bool havePlaces(const host::DataSet& data);

/// For tables an XY plot, or a field plot where the rows have places and follow no abscissa.
PlotType_e firstPlotType(const host::DataSet& data, const std::vector<FirstLine>& lines);

} // namespace corvala::app
