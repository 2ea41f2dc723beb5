// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/custom_plot.h"

#include <QPen>
#include <QString>
#include <QVector>

#include <cstdint>
#include <memory>

namespace corvala::plot {

/// Points of a line in the order in which they are joined.
struct LineData
{
    QVector<double> first; ///< X, or the angle in degrees
    QVector<double> second; ///< Y, or the radius
};

/// What a chart shows along its axes.
struct ChartRange
{
    double firstMinimum = 0.0;
    double firstMaximum = 1.0;
    double secondMinimum = 0.0;
    double secondMaximum = 1.0;
};

/// Axes with lines in a QCustomPlot; XY and polar charts are its kinds. Lines are known by the
/// number of their map.
class LineChart
{
public:
    virtual ~LineChart() = default;

    virtual void setLine(std::int64_t map, const LineData& data) = 0; ///< new or changed
    virtual void setPen(std::int64_t map, const QPen& pen) = 0; ///< of a line that is there
    virtual void removeLine(std::int64_t map) = 0;
    virtual void setTitles(const QString& first, const QString& second) = 0;
    /// Shows all lines with a margin.
    virtual void fit() = 0;
    virtual ChartRange range() const = 0;
    virtual void setRange(const ChartRange& range) = 0;
    /// The line nearest to a pixel, up to `tolerance` pixels away; 0 for none.
    virtual std::int64_t lineAt(const QPointF& pixel, double tolerance) const = 0;
    virtual void setFont(const QFont& font) = 0;
};

std::unique_ptr<LineChart> makeXyChart(QCustomPlot& plot);
std::unique_ptr<LineChart> makePolarChart(QCustomPlot& plot);

} // namespace corvala::plot
