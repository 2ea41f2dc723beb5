// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/line_patterns.h"

#include "sdk/base/enums.h"

#include <algorithm>
#include <cstddef>

namespace corvala::plot {

const std::vector<double>& patternStrokes(int pattern)
{
    static const std::vector<double> kStrokes[] = {
        {1.0}, // solid
        {0.6, 0.4}, // dashed
        {0.5, 0.2, 0.1, 0.2}, // dash dot
        {0.2, 0.3, 0.2, 0.3}, // dotted
        {0.8, 0.2}, // long dash
        {0.4, 0.15, 0.1, 0.1, 0.1, 0.15}, // dash dot dot
    };
    const bool isKnown = pattern >= LinePattern_Solid && pattern <= LinePattern_DashDotDot;
    return kStrokes[isKnown ? static_cast<std::size_t>(pattern) : 0];
}

bool isStrokeAt(int pattern, double position)
{
    bool isStroke = true;
    for (const double length : patternStrokes(pattern)) {
        if (position < length)
            return isStroke;
        position -= length;
        isStroke = !isStroke;
    }
    return isStroke;
}

double linePixels(double percent, int frameHeight)
{
    return std::max(1.0, percent / 100.0 * frameHeight);
}

} // namespace corvala::plot
