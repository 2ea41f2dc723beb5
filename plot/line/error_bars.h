// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/chart_shape.h"
#include "plot/line/marked_points.h"

#include <QColor>

#include <array>
#include <utility>
#include <vector>

namespace corvala::plot {

/// How error bars are drawn; lengths in pixels of the widget.
struct ErrorBarStyle
{
    QColor color;
    double width = 1.0; ///< at least 1
    double capSize = 10.0; ///< length of the strokes across their ends; 0 for none
};

/// Bars at the points of a line map, along one of the axes or both.
class ErrorBars : public ChartShape
{
public:
    /// The ends of the bar of each place: left, right, low and high. One that the bar does not
    /// extend to is the place itself; a place without a bar has no finite ends at all.
    using Ends = std::array<std::vector<double>, 4>;

    ErrorBars(MarkedPoints points, Ends ends, ErrorBarStyle style)
        : m_points(std::move(points))
        , m_ends(std::move(ends))
        , m_style(std::move(style))
    {
    }

    const MarkedPoints& points() const { return m_points; }
    const ErrorBarStyle& style() const { return m_style; }
    /// The strokes of the bar at a point in a view of `ratio` pixels to a pixel of the widget.
    std::vector<std::pair<QPointF, QPointF>> strokes(std::size_t point, const LineView& view,
                                                     double ratio = 1.0) const;

    const Polyline& places() const override { return *m_points.places; }
    LineBox bounds() const override;
    double distance(const LineView& view, const QPointF& pixel, double limit) const override;
    void cover(CoverGrid& grid, const LineView& view) const override;
    std::unique_ptr<ShapeDrawing> begin(const InkSheet& sheet, const LineView& view) const override;
    void paint(QPainter& painter, const LineView& view) const override;

private:
    MarkedPoints m_points;
    Ends m_ends;
    ErrorBarStyle m_style;
};

} // namespace corvala::plot
