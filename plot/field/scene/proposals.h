// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/contour_groups.h"

namespace corvala::plot {

/// What is taken for a value of the frame's style while its switch says that it follows from the
/// data: levels of contours, positions of slices, values of iso-surfaces, the range of scatter
/// sizes, the length of vectors. `index` is from 1 for values that have one. Index planes differ
/// from zone to zone: that of the first active one. Nothing while the data are not known.
std::optional<double> proposedValue(const host::Frame& frame, const ContourGroups& groups,
                                    style::Key value, int index = -1);

/// The number of the index plane in the middle of a zone; `axis` is 0 to 2.
int middlePlane(const host::ZoneInfo& zone, int axis);

} // namespace corvala::plot
