// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/chart_shape.h"

#include <QColor>
#include <QRectF>

#include <utility>

namespace corvala::plot {

/// How bars are drawn; lengths in pixels of the widget.
struct BarStyle
{
    bool isUpright =
        true; ///< bars stand on 0 of the second axis, else they lie on that of the first
    double width = 10.0;
    int together = 1; ///< bars of so many maps stand at a point, side by side
    double turn = 0.0; ///< its place among them: steps from the middle, of a width at most
    QColor line;
    double lineWidth = 1.0;
    QColor fill; ///< not valid for none

    void paint(QPainter& painter, const QRectF& bar) const;
};

/// A bar at every point of a line map, from 0 to the value. On a logarithmic axis they come from
/// the edge of the plot.
class BarChart : public ChartShape
{
public:
    /// `hasZero` says that 0 has a place along the axis of the values.
    BarChart(std::shared_ptr<const Polyline> places, bool hasZero, BarStyle style)
        : m_places(std::move(places))
        , m_hasZero(hasZero)
        , m_style(std::move(style))
        , m_apart(leastDistance())
    {
    }

    const Polyline& places() const override { return *m_places; }
    const BarStyle& style() const { return m_style; }
    /// The bar at a point in a view of `ratio` pixels to a pixel of the widget; null for one that
    /// is not seen.
    QRectF bar(std::size_t point, const LineView& view, double ratio = 1.0) const;

    LineBox bounds() const override;
    double distance(const LineView& view, const QPointF& pixel, double limit) const override;
    void cover(CoverGrid& grid, const LineView& view) const override;
    std::unique_ptr<ShapeDrawing> begin(const InkSheet& sheet, const LineView& view) const override;
    void paint(QPainter& painter, const LineView& view) const override;

private:
    /// The pixel where bars come from.
    double base(const LineView& view) const;
    /// Between points that follow each other, along the axis that bars stand on; 0 without two.
    double leastDistance() const;
    /// Pixels from the point: never so far that bars seem to be those of the next one.
    double shift(const LineView& view, double ratio) const;

    std::shared_ptr<const Polyline> m_places;
    bool m_hasZero;
    BarStyle m_style;
    double m_apart;
};

} // namespace corvala::plot
