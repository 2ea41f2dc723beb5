// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/arrows.h"
#include "plot/field/geometry/glyph_points.h"
#include "plot/field/geometry/streamtraces.h"
#include "plot/field/geometry/zone_edges.h"
#include "plot/field/geometry/zone_surface.h"
#include "sdk/base/types.h"

#include <tuple>

namespace corvala::plot {

enum class BlockKind {
    Faces, ///< of the surface
    Flood, ///< faces, lines and points with values
    CellFlood, ///< the same with one value a cell
    ContourLines,
    Edges,
    MeshLines,
    Arrows,
    Streamtraces ///< of several zones
};

/// What the geometry of a block is made from; equal recipes give equal geometry.
struct BlockRecipe
{
    BlockKind kind = BlockKind::Faces;
    CvlInt64 zone = 0;
    SurfaceChoice surfaces;
    EdgeChoice edges; ///< of Edges
    PointChoice points; ///< of Arrows
    ArrowChoice arrows;
    StreamChoice streams; ///< of Streamtraces
    bool arcLength = false; ///< lines carry a pattern
    bool normals = false;
    bool primaryValues = false; ///< of CellFlood
    int group = 0; ///< contour group of the values, or of contour lines
    int colorGroup = 0; ///< group that colours the points, ContourGroups::kRed for RGB; 0 for none
    int placeGroup = 0; ///< group whose range says where the surface lies; 0 for none
    int revision = 0; ///< sum of the revisions of the groups that the geometry depends on

    auto tied() const
    {
        return std::tie(kind, zone, arcLength, normals, primaryValues, group, colorGroup, revision);
    }
};

inline bool operator==(const BlockRecipe& left, const BlockRecipe& right)
{
    return left.tied() == right.tied() && left.surfaces == right.surfaces
        && left.edges == right.edges && left.points == right.points && left.arrows == right.arrows
        && left.streams == right.streams;
}

} // namespace corvala::plot
