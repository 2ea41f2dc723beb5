// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace corvala::play {

/// Runs the event loop until nothing is left to do: posted events, zero timers, deferred
/// deletions, and what the window system still has to deliver.
void waitUntilIdle();

} // namespace corvala::play
