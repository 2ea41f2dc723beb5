// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_surface.h"

namespace corvala::plot {

/// Which edges of a zone are drawn.
struct EdgeChoice
{
    EdgeType_e type = EdgeType_BordersAndCreases;
    std::array<BorderLocation_e, 3> borders {
        {BorderLocation_Both, BorderLocation_Both, BorderLocation_Both}}; ///< I, J, K
};

bool operator==(const EdgeChoice& left, const EdgeChoice& right);

/// Lines along the edges of a zone. Borders are where the indices of an ordered zone end (as far as
/// `borders` says), or edges of one face only; creases are edges where faces of `surface`, the
/// boundary of the zone, meet at more than 30 degrees. Ordered volumes have no creases but their
/// borders.
vtkSmartPointer<vtkPolyData> zoneEdges(vtkDataSet& data, const host::ZoneInfo& zone,
                                       const ZoneSurface& surface, const EdgeChoice& choice);

} // namespace corvala::plot
