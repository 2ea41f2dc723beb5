// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/scene/layer_looks.h"

namespace corvala::plot {

// How the volume of a map looks in space: what the frame describes, for maps that show it.

/// A plane through the zone; `number` is from 1.
std::optional<BlockLook> sliceLook(int number, const ShownMap& shown, const ContourGroups& groups);
std::optional<BlockLook> isoSurfacesLook(const ShownMap& shown, const ContourGroups& groups);
/// Without the zones in which the lines run: these are drawn with the first map that shows them,
/// the others have a look with nothing to draw, so that their values count.
std::optional<BlockLook> streamtracesLook(const ShownMap& shown, const ContourGroups& groups);

/// A map that shows streamtraces.
struct StreamMap
{
    CvlInt64 map = 0;
    StreamZone zone;
};
/// All of them, ascending.
std::vector<StreamMap> streamMaps(const host::Frame& frame);

/// The numbers in a text, by threes; nothing from the first word on that is no number.
std::vector<double> pointsIn(const std::string& text);

} // namespace corvala::plot
