// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"
#include "plot/line/line_axes.h"

#include <QColor>
#include <QPen>
#include <QStringList>

#include <array>

namespace corvala::plot {

/// What the style says of an axis.
struct AxisLook
{
    QString title;
    QString name; ///< in a line of text: also of many variables that only the legend tells
    bool isOfInstants = false; ///< values are seconds since 1970-01-01 00:00 UTC
    AxisRange range; ///< that was set and can be shown; nothing when it follows from the data
    bool isLogarithmic = false;
    bool isReversed = false;
    bool isOpposite = false; ///< above, or to the right
    QColor color = Qt::black;
};

struct PolarLook
{
    QString title;
    AxisRange radii; ///< as in AxisLook
    double start = 0.0; ///< degrees against the clock from the right to the angle 0
    bool isClockwise = false;
};

/// What the style says of a chart beside its shapes.
struct ChartLook
{
    std::array<AxisLook, kAxisCount> first;
    std::array<AxisLook, kAxisCount> second;
    PolarLook polar;
    QString title;
    QStringList told; ///< what titles of axes in use name, each as a whole
    double font = 12.0; ///< height of texts in pixels
    double lineWidth = 1.0; ///< of axes, ticks and grid, in whole pixels
    bool showsGrid = true;
    bool showsBox = true;

    /// Of axes and ticks.
    QPen axisPen(const QColor& color) const
    {
        return {color, lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin};
    }
    QPen gridPen(Qt::PenStyle style) const
    {
        return {QColor(200, 200, 200), lineWidth, style, Qt::SquareCap};
    }
    /// A length in whole pixels that is a part of the height of texts.
    int share(double part) const;
};

/// The look of a frame in a picture `height` pixels high. Titles are those that were set.
ChartLook chartLookOf(const host::Frame& frame, int height);

/// Whether the value is a range that a view begins with.
bool isChartRange(style::Key value);

} // namespace corvala::plot
