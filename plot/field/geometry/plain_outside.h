// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_surface.h"

#include <optional>

namespace corvala::plot {

/// The faces that only one cell has, of tetrahedra, pyramids, wedges and hexahedra with straight
/// edges; empty for a zone of other cells. Ghost marks are not looked at. Faces that meet are
/// forgotten at once, so it takes a few bytes per point beside the outside itself when neighbours
/// have near numbers.
std::optional<ZoneSurface> plainOutside(vtkDataSet& data);

} // namespace corvala::plot
