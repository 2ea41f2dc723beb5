// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"
#include "plot/field/zone_edges.h"
#include "plot/field/zone_surface.h"

#include <tuple>

namespace corvala::plot {

/// What all blocks of one mapper have in common, because a mapper cannot vary it by block.
struct MapperLook
{
    double thickness = 0.0; ///< of lines, in percent of the frame's height
    int pattern = LinePattern_Solid;
    double patternLength = 0.0; ///< in percent of the frame's height; 0 for solid lines
    bool lit = false;
    bool smooth = false; ///< light is interpolated between points
    bool shiny = false; ///< with highlights
    bool inFront = false; ///< seen through everything else
    int floodGroup = 0; ///< coloured by the bands of this contour group
    bool ownColors = false; ///< coloured by an array of the blocks

    auto tied() const
    {
        return std::tie(thickness, pattern, patternLength, lit, smooth, shiny, inFront, floodGroup,
                        ownColors);
    }
};

inline bool operator<(const MapperLook& left, const MapperLook& right)
{
    return left.tied() < right.tied();
}

enum class BlockKind {
    Faces, ///< of the surface
    Flood, ///< faces, lines and points with values
    CellFlood, ///< the same with one value a cell
    ContourLines,
    Edges,
    MeshLines
};

/// What the geometry of a block is made from; equal recipes give equal geometry.
struct BlockRecipe
{
    BlockKind kind = BlockKind::Faces;
    CvlInt64 zone = 0;
    SurfaceChoice surfaces;
    EdgeChoice edges; ///< of Edges
    bool arcLength = false; ///< lines carry a pattern
    bool normals = false;
    bool primaryValues = false; ///< of CellFlood
    int group = 0; ///< contour group of the values, or of contour lines
    int colorGroup = 0; ///< group that colours the points, ContourGroups::kRed for RGB; 0 for none
    int revision = 0; ///< sum of the revisions of the groups that the geometry depends on

    auto tied() const
    {
        return std::tie(kind, zone, arcLength, normals, primaryValues, group, colorGroup, revision);
    }
};

inline bool operator==(const BlockRecipe& left, const BlockRecipe& right)
{
    return left.tied() == right.tied() && left.surfaces == right.surfaces
        && left.edges == right.edges;
}

/// How one map looks in one layer.
struct BlockLook
{
    MapperLook mapper;
    BlockRecipe recipe;
    host::Rgb color {0, 0, 0};
};

} // namespace corvala::plot
