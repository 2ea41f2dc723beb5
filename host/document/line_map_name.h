// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/frame.h"

#include <string>

namespace corvala::host {

/// The name of a line map with its dynamic text filled in: "&ZN&" and "&Z#&" zone name and number,
/// "&DV&" and "&D#&" dependent variable, "&IV&" and "&I#&" independent variable, "&M#&" map
/// number, "&X#&" and "&Y#&" axis numbers. On a polar plot theta and radius take the places of x
/// and y. Unknown tokens stay as typed. The map must exist.
std::string shownLineMapName(const Frame& frame, CvlInt64 map);

/// Name of a variable of the data set, its alias if it has one; empty for a bad number.
std::string shownVariableName(const DataSet* data, CvlInt64 variable);

} // namespace corvala::host
