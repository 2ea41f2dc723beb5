// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/polyline.h"
#include "vocabulary/style.h"

#include <array>

namespace corvala::plot {

/// Axes that a chart has of each direction.
constexpr std::size_t kAxisCount = style::LineAssign::kAxes;

/// The axes that a line is drawn along, from 0.
struct LineAxes
{
    std::size_t first = 0;
    std::size_t second = 0;
};

/// How the planes of all pairs of axes become pixels, and what of them is seen.
struct ChartView
{
    std::array<LineScale, kAxisCount> first;
    std::array<LineScale, kAxisCount> second;
    LineBox visible; ///< pixels

    LineView along(const LineAxes& axes) const;
    /// The same with pixels from another origin, and then `ratio` times as many.
    ChartView seenFrom(const QPointF& origin, double ratio) const;
    bool operator==(const ChartView& other) const;
};

/// What an axis shows; nothing when the ends are in the wrong order.
struct AxisRange
{
    double minimum = 1.0;
    double maximum = 0.0;
};

/// What a chart shows along its axes.
struct ChartRange
{
    std::array<AxisRange, kAxisCount> first;
    std::array<AxisRange, kAxisCount> second;
};

} // namespace corvala::plot
