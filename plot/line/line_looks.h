// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/scene_kind.h"
#include "plot/line/line_ink.h"

#include <optional>

namespace corvala::plot {

/// Layers of a line plot, from back to front.
enum class LineLayer { Lines };
constexpr std::size_t kLineLayerCount = 1;

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

/// How a line map looks in one layer, and from what it is made.
struct LineLook
{
    LineRecipe recipe;
    LineAxes axes;
    LineStroke stroke;
};

/// A line map in a picture `height` pixels high, of which thicknesses and lengths are a share.
struct ShownLine
{
    const host::Frame& frame;
    CvlInt64 map;
    int height;
};

LineRecipe recipeOf(const host::Frame& frame, CvlInt64 map);
/// The axes of an XY chart that the map is drawn along; a polar one has a single pair.
LineAxes axesOf(const host::Frame& frame, CvlInt64 map);

/// How the map looks in the layer by its style; nothing when it does not appear there. Whether the
/// layer itself is on does not matter.
std::optional<LineLook> lookOf(LineLayer layer, const ShownLine& line);

bool isLayerOn(const host::Frame& frame, LineLayer layer);
/// Whether the map appears in any layer, were it on.
bool isInAnyLayer(const host::Frame& frame, CvlInt64 map);

/// What a line plot is made of, and what touches it.
const SceneKind& lineSceneKind();

} // namespace corvala::plot
