// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace corvala::plot {

/// One period of a line pattern: lengths of strokes and gaps in turn, from a stroke, as shares of
/// the period. A solid line, or an unknown pattern, is a single stroke.
const std::vector<double>& patternStrokes(int pattern);

/// Whether a line of this pattern is drawn at a position along its period, 0 to 1.
bool isStrokeAt(int pattern, double position);

/// A length in percent of the frame's height in pixels; lines are at least one pixel wide.
double linePixels(double percent, int frameHeight);

} // namespace corvala::plot
