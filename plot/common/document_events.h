// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/events/state_event.h"
#include "host/style/schema.h"

#include <algorithm>

namespace corvala::plot {

/// Whether an event may change what is drawn of a frame: its own events, and those of the document
/// as a whole.
inline bool concerns(const host::StateEvent& event, CvlUniqueId frame)
{
    return event.frame == 0 || event.frame == frame || event.code == StateCode_DocumentCleared
        || event.code == StateCode_DocumentLoaded || event.code == StateCode_FrameListChanged;
}

/// Whether an event gives its frame another plot type.
inline bool namesPlotType(const host::StateEvent& event)
{
    return std::any_of(
        event.styleChanges.begin(), event.styleChanges.end(),
        [](const host::StyleChange& change) { return change.attribute == style::plotType; });
}

} // namespace corvala::plot
