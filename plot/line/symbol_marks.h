// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/chart_shape.h"
#include "plot/line/marked_points.h"
#include "plot/line/symbol_path.h"

#include <QColor>

#include <utility>

namespace corvala::plot {

/// How a symbol is drawn; lengths in pixels of the widget.
struct SymbolStyle
{
    SymbolPath path;
    double size = 10.0; ///< of its height
    QColor line;
    double lineWidth = 1.0;
    QColor fill; ///< not valid for none

    /// How far it extends from its middle.
    double reach() const;
    /// Draws one round a place.
    void paint(QPainter& painter, const QPointF& middle) const;
};

/// Symbols at the points of a line map.
class SymbolMarks : public ChartShape
{
public:
    SymbolMarks(MarkedPoints points, SymbolStyle style)
        : m_points(std::move(points))
        , m_style(std::move(style))
    {
    }

    const MarkedPoints& points() const { return m_points; }
    const SymbolStyle& style() const { return m_style; }

    const Polyline& places() const override { return *m_points.places; }
    LineBox bounds() const override { return m_points.places->bounds(); }
    double distance(const LineView& view, const QPointF& pixel, double limit) const override;
    void cover(CoverGrid& grid, const LineView& view) const override;
    std::unique_ptr<ShapeDrawing> begin(const InkSheet& sheet, const LineView& view) const override;
    void paint(QPainter& painter, const LineView& view) const override;

private:
    MarkedPoints m_points;
    SymbolStyle m_style;
};

} // namespace corvala::plot
