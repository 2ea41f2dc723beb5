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
    double creaseAngle = 30.0; ///< degrees

    auto tied() const { return std::tie(type, borders, creaseAngle); }
};

inline bool operator==(const EdgeChoice& left, const EdgeChoice& right)
{
    return left.tied() == right.tied();
}

/// Lines along the edges of a zone. Borders are where the indices of an ordered zone end (as far as
/// `borders` says), or edges of one face only; creases are edges where faces of `surface`, the
/// boundary of the zone, meet at more than the crease angle. Ordered volumes have no creases but
/// their borders. Edges of hidden cells only are left out, and those of indices end where the
/// fields cut them.
vtkSmartPointer<vtkPolyData> zoneEdges(vtkDataSet& data, const host::ZoneInfo& zone,
                                       const ZoneSurface& surface, const EdgeChoice& choice,
                                       const CutFields& fields = {});

} // namespace corvala::plot
