// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/events/state_event.h"

namespace corvala::plot {

/// Whether an event may change what is drawn of a frame: its own events, and those of the document
/// as a whole.
inline bool concerns(const host::StateEvent& event, CvlUniqueId frame)
{
    return event.frame == 0 || event.frame == frame || event.code == StateCode_DocumentCleared
        || event.code == StateCode_DocumentLoaded || event.code == StateCode_FrameListChanged;
}

} // namespace corvala::plot
