// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/scene_kind.h"
#include "plot/line/chart_layer.h"

namespace corvala::plot {

/// How the points of a line map are made from data.
struct LineRecipe
{
    CvlInt64 zone = 0;
    CvlInt64 first = 0; ///< variable along X, or of the angle
    CvlInt64 second = 0; ///< variable along Y, or of the radius

    bool operator==(const LineRecipe& other) const
    {
        return zone == other.zone && first == other.first && second == other.second;
    }
};

LineRecipe recipeOf(const host::Frame& frame, CvlInt64 map);
/// The axes of an XY chart that the map is drawn along; a polar one has a single pair.
LineAxes axesOf(const host::Frame& frame, CvlInt64 map);

// Layers are numbered from back to front, up to the count of lineSceneKind.
const ChartLayer& chartLayer(std::size_t layer);
bool isLayerOn(const host::Frame& frame, std::size_t layer);
/// Whether the map appears in the layer, were it on.
bool isInLayer(const host::Frame& frame, CvlInt64 map, std::size_t layer);
/// Whether the map appears in any layer, were it on.
bool isInAnyLayer(const host::Frame& frame, CvlInt64 map);

/// What a line plot is made of, and what touches it.
const SceneKind& lineSceneKind();

} // namespace corvala::plot
