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
    Symbols,
    Streamtraces ///< of several zones
};

/// Sizes by the values of a variable: straight from that of the lowest to that of the highest
/// value.
struct SymbolSizes
{
    bool areOwn = false; ///< else all are the same, and nothing below matters
    double lowest = 0.0;
    double highest = 1.0;
    double smallest = 0.0; ///< in percent of the frame's height
    double largest = 0.0;

    auto tied() const { return std::tie(areOwn, lowest, highest, smallest, largest); }
};

/// What the geometry of a block is made from; equal recipes give equal geometry.
struct BlockRecipe
{
    BlockKind kind = BlockKind::Faces;
    CvlInt64 zone = 0;
    SurfaceChoice surfaces;
    EdgeChoice edges; ///< of Edges
    PointChoice points; ///< of Arrows and Symbols
    ArrowChoice arrows;
    StreamChoice streams; ///< of Streamtraces
    SymbolSizes sizes;
    int fillGroup = 0; ///< as colorGroup, for the inside of symbols
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
        && left.streams == right.streams && left.sizes.tied() == right.sizes.tied()
        && left.fillGroup == right.fillGroup;
}

} // namespace corvala::plot
