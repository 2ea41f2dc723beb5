// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vocabulary/enums.h"

#include <any>
#include <string>

namespace corvala::host {
class Frame;
namespace storage {
class JsonPlace;
}
} // namespace corvala::host

namespace corvala::plot {

/// What a canvas that draws the plot type shows (Canvas::view) as a JSON text for documents; empty
/// where that is the whole, as at the start, or could not be drawn again.
std::string viewText(const std::any& view, PlotType_e plotType);

/// The view of a text, for a canvas that draws the plot type; an empty one for texts that are none.
std::any viewOf(const std::string& text, PlotType_e plotType);

/// Fails at the place of what is no view of the plot type (host::storage::setViewCheck).
void checkView(int plotType, const host::storage::JsonPlace& view);

/// As a frame was seen in a plot type when it was saved; empty if it was not.
std::any storedView(const host::Frame& frame, PlotType_e plotType);

} // namespace corvala::plot
