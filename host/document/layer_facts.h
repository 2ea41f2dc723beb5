// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/operations/operation.h"
#include "vocabulary/layers.h"
#include "vocabulary/types.h"

namespace corvala::host {

class Frame;

/// Why a plot layer that is on shows nothing.
enum class LayerGap {
    None, ///< it shows something
    NoActiveMaps,
    NotShown, ///< its "Show" value is off in all active maps
    NoSurfaces, ///< the maps that show it are volumes that draw no surfaces, and no other points
    NoVariable, ///< no contour group that the maps follow has a variable
    NoVector, ///< the components of vectors have no variables
    NotInSpace, ///< lighting of a 2D plot
    NoFaces ///< lighting, and neither contours nor shade are on
};

struct LayerFacts
{
    LayerGap gap = LayerGap::None;
    NumberSet maps; ///< active maps that show the layer; all active maps when none does
    const style::Layer* layer = nullptr; ///< that the gap is in
};

/// What there is to see of a layer that the canvases draw.
LayerFacts layerFacts(const Frame& frame, const style::Layer& layer);
/// What there is to see of lighting, which takes contours or shade; a gap may be that of the shade.
LayerFacts lightingFacts(const Frame& frame);

/// The field map draws some of its surfaces; with `orPoints` also when it draws points that do not
/// come from a surface.
bool drawsSurfaces(const Frame& frame, CvlInt64 map, bool orPoints);

/// Makes the field maps of the active frame draw their boundary cell faces.
SetStyle drawBoundaryFaces(const NumberSet& maps);

} // namespace corvala::host
