// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/chart_shape.h"

#include <QColor>

#include <utility>
#include <vector>

namespace corvala::plot {

/// How a line is stroked; lengths in pixels of the widget.
struct LineStroke
{
    QColor color;
    double width = 1.0; ///< at least 1
    std::vector<double> pattern; ///< strokes and gaps in turn; empty for a solid line
    double dot = 1.0; ///< across one that stands for a point without neighbours
};

/// Points that are joined by strokes; one that is joined with none is a dot.
class StrokedLine : public ChartShape
{
public:
    /// Pixels that the strokes of one line may cover at its own width, each as often as it is
    /// covered. A line that would cover more is drawn thin, solid and without smoothing.
    static constexpr double kMostInk = 3e8;

    StrokedLine(std::shared_ptr<const Polyline> points, LineStroke stroke)
        : m_points(std::move(points))
        , m_stroke(std::move(stroke))
    {
    }

    const Polyline& points() const { return *m_points; }
    const LineStroke& stroke() const { return m_stroke; }

    const Polyline& places() const override { return *m_points; }
    LineBox bounds() const override { return m_points->bounds(); }
    double distance(const LineView& view, const QPointF& pixel, double limit) const override
    {
        return m_points->distance(view, pixel, limit);
    }
    void cover(CoverGrid& grid, const LineView& view) const override;
    std::unique_ptr<ShapeDrawing> begin(const InkSheet& sheet, const LineView& view) const override;
    void paint(QPainter& painter, const LineView& view) const override;

private:
    std::shared_ptr<const Polyline> m_points;
    LineStroke m_stroke;
};

} // namespace corvala::plot
