// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/scene_kind.h"
#include "plot/field/geometry/contour_groups.h"
#include "plot/field/scene/block_look.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace corvala::plot {

/// Layers of a field plot from back to front. They are independent of each other: what is drawn
/// later covers what lies in the same place.
enum class FieldLayer {
    Background, ///< the faces of a hidden-line mesh, in the colour of the paper
    Shade,
    Flood,
    Slice1,
    Slice8 = Slice1 + style::Slices::kCount - 1,
    IsoSurfaces,
    ContourLines,
    Mesh,
    Edges,
    Vectors,
    Streamtraces,
    Scatter,
    Count
};
constexpr auto kFieldLayerCount = static_cast<std::size_t>(FieldLayer::Count);
/// Layers of lines on surfaces; what they move by in depth leaves room for no more.
constexpr int kMostLineLayers = 8;

/// Where a layer lies among those that show the same place.
struct LayerPlace
{
    std::size_t number = 0; ///< from the back
    bool isOfFaces = false;
    bool isWithin = false; ///< zones, and not on their surfaces
    int inFront = 0; ///< layers of faces, or else of others, that come later on the same surfaces
};
LayerPlace placeOf(FieldLayer layer);
/// The layers by how much their points tell of a map, most first: those that stand in for it.
std::vector<FieldLayer> layersToStandIn();
/// Layers that show where a zone is, and nothing of what is on it.
LayerMask outlineLayers();

/// A map of a frame with the zone that it shows.
struct ShownMap
{
    const host::Frame& frame;
    CvlInt64 map;
    CvlInt64 zone;

    bool is3D() const { return frame.plotType() == PlotType_Field3D; }
};

/// How the map looks in the layer by its style; nothing when it does not appear there. Whether the
/// layer itself is on does not matter.
std::optional<BlockLook> lookOf(FieldLayer layer, const ShownMap& map, const ContourGroups& groups);

/// The contour groups, and other groups, whose values the map shows, in the layers that are on.
std::vector<int> groupsShown(const ShownMap& map, const ContourGroups& groups);

/// Length of an arrow by magnitude, or of every arrow where all have the same; 0 while no vectors
/// are known.
double arrowScale(const host::Frame& frame, const ContourGroups& groups);

bool isLayerOn(const host::Frame& frame, FieldLayer layer);
/// Name of the layer of the style that it is part of, for the user.
QString layerName(FieldLayer layer);
/// Layers that follow the values of all maps together, as colours do that stand for values.
LayerMask coloredLayers();

/// What a field plot is made of, and what touches it.
const SceneKind& fieldSceneKind();

} // namespace corvala::plot
