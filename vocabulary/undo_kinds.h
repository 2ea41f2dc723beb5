// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "vocabulary/types.h"

namespace corvala {

/// The kind of an undo bracket around what puts right a value that nobody could have meant. It is
/// no step of its own: it belongs to the step before it, and is forgotten where there is none or
/// one has been undone, so that steps can be undone and redone across it.
constexpr CvlInt64 kUndoMend = 1000;

} // namespace corvala
