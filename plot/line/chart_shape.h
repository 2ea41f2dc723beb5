// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/polyline.h"
#include "plot/line/stroke_mask.h"

#include <QImage>

#include <memory>

class QPainter;

namespace corvala::plot {

class CoverGrid;

/// Where shapes are drawn in slices. The mask is of the picture's size, and empty before and after
/// each shape.
struct InkSheet
{
    QImage& picture; ///< ARGB32 premultiplied
    StrokeMask& mask;
    double ratio = 1.0; ///< its pixels to a pixel of the widget
};

/// One shape on its way onto a sheet.
class ShapeDrawing
{
public:
    virtual ~ShapeDrawing() = default;
    /// Goes on for a moment; false when the shape is done, which is then in the picture.
    virtual bool step() = 0;
    /// Adds what is not in the picture of the sheet yet.
    virtual void addTo(QImage&) const { }
    virtual double share() const = 0; ///< that is done, 0 to 1
    /// Whether it is drawn simpler than it looks.
    virtual bool isSimplified() const { return false; }
};

/// Something of one line map that lies over the axes of a chart. Shapes do not change.
class ChartShape
{
public:
    virtual ~ChartShape() = default;
    /// The points that it shows, in the plane of its axes.
    virtual const Polyline& places() const = 0;
    /// Of what must be seen, in the plane of its axes.
    virtual LineBox bounds() const = 0;
    /// Pixels between the shape and a pixel, when less than `limit`, else `limit`.
    virtual double distance(const LineView& view, const QPointF& pixel, double limit) const = 0;
    /// Adds what it covers in a view.
    virtual void cover(CoverGrid& grid, const LineView& view) const = 0;
    /// Begins to draw it as it is seen in a view, which is in pixels of the sheet. The sheet must
    /// outlive the drawing, and so must the shape.
    virtual std::unique_ptr<ShapeDrawing> begin(const InkSheet& sheet,
                                                const LineView& view) const = 0;
    /// Draws all of it at once, as lines, areas and texts of the painter.
    virtual void paint(QPainter& painter, const LineView& view) const = 0;
};

} // namespace corvala::plot
