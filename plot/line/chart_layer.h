// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/line_chart.h"

namespace corvala::host {
class Frame;
}

namespace corvala::plot {

/// A line map in a picture `height` pixels high, of which thicknesses and lengths are a share.
struct ShownLine
{
    const host::Frame& frame;
    CvlInt64 map;
    int height;
};

/// How a layer draws line maps in a chart.
struct ChartLayer
{
    void (*setVisible)(LineChart& chart, bool isVisible);
    void (*setPoints)(LineChart& chart, CvlInt64 map, LineData data); ///< new or changed
    void (*setLook)(LineChart& chart, const ShownLine& line); ///< of a map that has points
    void (*remove)(LineChart& chart, CvlInt64 map);
};

/// Joins the points by strokes.
extern const ChartLayer kChartLines;

} // namespace corvala::plot
