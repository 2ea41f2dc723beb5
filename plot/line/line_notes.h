// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/scene_note.h"
#include "plot/line/line_shapes.h"

#include <unordered_map>
#include <vector>

namespace corvala::plot {

/// What notes on a line plot are made from.
struct LineNoteFacts
{
    const host::Frame& frame;
    const host::NumberSet& maps; ///< that are drawn
    const std::unordered_map<CvlInt64, LineGeometry>& geometries;
};

/// What the user may wonder at in the picture of these, the gravest first.
std::vector<SceneNote> lineNotesOn(const LineNoteFacts& facts);

} // namespace corvala::plot
