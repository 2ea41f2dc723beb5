// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/scene_kind.h"
#include "plot/line/line_shapes.h"

namespace corvala::plot {

/// The axes of an XY chart that the map is drawn along; a polar one has a single pair.
LineAxes axesOf(const host::Frame& frame, CvlInt64 map);

// Layers are numbered from back to front, up to the count of lineSceneKind.
bool isLayerOn(const host::Frame& frame, std::size_t layer);
/// Whether the map appears in the layer, were it on.
bool isInLayer(const host::Frame& frame, CvlInt64 map, std::size_t layer);
/// Whether the map appears in any layer, were it on.
bool isInAnyLayer(const host::Frame& frame, CvlInt64 map);
/// Whether the map appears in a layer that is on.
bool isSeen(const host::Frame& frame, CvlInt64 map);
/// What a layer shows of a map; null for nothing.
std::shared_ptr<const ChartShape> shapeIn(std::size_t layer, const ShownLine& line,
                                          const LineGeometry& geometry);
/// Whether the layer shows what runs through the points, and not these alone.
bool followsCurve(std::size_t layer);
/// Whether the map appears in such a layer that is on.
bool isSeenAsCurve(const host::Frame& frame, CvlInt64 map);
/// What stands for a layer of a map in a legend; null for nothing.
LegendSample sampleIn(std::size_t layer, const ShownLine& line);

/// What a line plot is made of, and what touches it.
const SceneKind& lineSceneKind();

} // namespace corvala::plot
