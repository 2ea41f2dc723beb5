// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/first_lines.h"
#include "host/document/frame.h"
#include "host/operations/operation.h"

#include <vector>

namespace corvala::app {

/// What a field plot looks like when its data have just been opened: the style that shows most of
/// what is in them, chosen from the data alone. No undo steps: it is where the user begins. Empty
/// for a line plot. docs/decisions.md has the cases.
std::vector<host::SetStyle> firstLook(const host::Frame& frame);

/// What the line maps of a line plot, which are as many, look like then.
std::vector<host::SetStyle> firstLook(const std::vector<FirstLine>& lines);

} // namespace corvala::app
