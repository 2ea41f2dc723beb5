// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corvala::app::play {

/// Runs the event loop until nothing is left to do: posted events, zero timers, deferred
/// deletions, and what the window system still has to deliver.
void waitUntilIdle();

} // namespace corvala::app::play
