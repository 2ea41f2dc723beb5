// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/operations/operation.h"

namespace corvala::app {

/// Adds data to those of the active frame, in one undo step: their zones look as they would have
/// at their opening; a line plot gets the lines that it would have begun with.
host::Outcome addToFrame(const host::AddData& addition);

} // namespace corvala::app
