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
};

/// The lines of an XY plot: the first column of a zone that goes one way only, or else the first
/// one, against the next ones, on a second axis those that are much larger or smaller.
/// docs/decisions.md has the numbers.
std::vector<FirstLine> firstLines(const host::DataSet& data);

} // namespace corvala::app
