// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_surface.h"

namespace corvala::plot {

/// The surface of an ordered zone, made from its indices: faces for two or three dimensions above
/// 1, lines for one, points for none. `data` must be a structured kind with the zone's dimensions.
ZoneSurface extractOrderedSurface(vtkDataSet& data, const host::ZoneInfo& zone,
                                  const SurfaceChoice& choice);

} // namespace corvala::plot
