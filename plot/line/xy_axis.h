// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/chart_look.h"
#include "plot/line/custom_plot.h"
#include "plot/line/line_plane.h"

#include <array>
#include <optional>

namespace corvala::plot {

enum class Ticks { Numbers, Powers, Dates };

/// One of the axes along a direction of an XY chart; it stands on one of two sides of the box.
struct XyAxis
{
    std::array<QCPAxis*, 2> sides {}; // owned by the plot
    AxisLook look;
    std::optional<Ticks> ticks; ///< once it has a look
    bool hasRange = false; ///< that somebody has chosen or fitted

    QCPAxis& shown() const { return *sides[look.isOpposite ? 1 : 0]; }
    /// Takes over its look, and what it shares with the others.
    void apply(const ChartLook& shared);
};

bool isLogarithmic(const QCPAxis& axis);
void setLogarithmic(QCPAxis& axis, bool isLogarithmic);
void setPen(QCPAxis& axis, const QPen& pen);
/// Of texts, ticks, distances and the grid.
void setSizes(QCPAxis& axis, const ChartLook& look);

/// What an axis shows, in the plane of the shapes.
QCPRange inPlane(const QCPAxis& axis);
/// From the plane to pixels.
LineScale scaleOf(const QCPAxis& axis);

} // namespace corvala::plot
