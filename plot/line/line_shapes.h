// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/chart_shape.h"
#include "plot/line/line_axes.h"
#include "plot/line/line_curves.h"
#include "plot/line/line_points.h"

#include <QRectF>

#include <functional>
#include <memory>

namespace corvala::plot {

/// A line map in a picture `height` pixels high, of which thicknesses and lengths are a share.
struct ShownLine
{
    const host::Frame& frame;
    CvlInt64 map;
    int height;
};

/// The points of a line map and what runs through them, in a plane.
struct LineGeometry
{
    LineRecipe recipe;
    LinePlane plane;
    std::shared_ptr<const LinePoints> points;
    std::shared_ptr<const Polyline> places; ///< of the points
    CurveRecipe curveRecipe;
    std::shared_ptr<const std::vector<RunCurve>>
        curves; ///< null without any, and until they are made
    CurveProblem curveProblem = CurveProblem::None;
    int curvePlaceCount = 0;
    std::shared_ptr<const Polyline> curve;
};

// What the layers show of a line map; null for nothing.
/// While its curve is made: nothing, which takes the place of the points.
std::shared_ptr<const ChartShape> awaitedShape(const LineGeometry& geometry);
std::shared_ptr<const ChartShape> curveShape(const ShownLine& line, const LineGeometry& geometry);
std::shared_ptr<const ChartShape> symbolShape(const ShownLine& line, const LineGeometry& geometry);
std::shared_ptr<const ChartShape> errorBarShape(const ShownLine& line,
                                                const LineGeometry& geometry);
std::shared_ptr<const ChartShape> barShape(const ShownLine& line, const LineGeometry& geometry);

/// Draws what stands for a layer of a line map in a rectangle of a legend.
using LegendSample = std::function<void(QPainter&, const QRectF&)>;

// The samples of the layers; null for nothing.
LegendSample curveSample(const ShownLine& line);
LegendSample symbolSample(const ShownLine& line);
LegendSample errorBarSample(const ShownLine& line);
LegendSample barSample(const ShownLine& line);

} // namespace corvala::plot
