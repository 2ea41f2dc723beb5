// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/scene_note.h"
#include "plot/field/scene/layer_looks.h"

#include <vector>

namespace corvala::plot {

/// What notes about a scene that is complete go by.
struct NoteFacts
{
    const host::Frame& frame;
    const ContourGroups& groups;
    const host::NumberSet& maps; ///< that are shown
    bool isAllBlanked; ///< cells are there, and none is left
    bool startsOutside; ///< no streamtrace starts in a cell
    int lackingGroup = 0; ///< a contour group whose variable lacks in zones that use it; 0 for none
    std::vector<CvlInt64> lackingMaps = {}; ///< that show these zones
};

/// What to wonder about, the gravest first; of things of one kind the first one.
std::vector<SceneNote> notesOn(const NoteFacts& facts);

} // namespace corvala::plot
