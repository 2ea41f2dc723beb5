// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/custom_plot.h"
#include "plot/line/line_ink.h"

#include <QString>

#include <memory>
#include <vector>

namespace corvala::plot {

/// Points of a line in the order in which they are joined.
struct LineData
{
    std::vector<double> first; ///< X, or the angle in degrees
    std::vector<double> second; ///< Y, or the radius
};

/// What is written along the axes.
struct ChartTitles
{
    std::array<QString, kAxisCount> first;
    std::array<QString, kAxisCount> second;
};

/// Axes with lines in a QCustomPlot; XY and polar charts are its kinds. Lines are known by the
/// number of their map. Whenever the plot is drawn, the lines follow the axes for a moment; what is
/// left then is work of the ink.
class LineChart
{
public:
    explicit LineChart(QCustomPlot& plot);
    virtual ~LineChart();

    virtual void setLine(std::int64_t map, LineData data) = 0; ///< new or changed
    virtual void removeLine(std::int64_t map) { m_ink.remove(map); }
    virtual void setTitles(const ChartTitles& titles) = 0;
    /// Shows the axes that lines are drawn along.
    virtual void updateAxes() { }
    /// Shows all lines with a margin.
    virtual void fit() = 0;
    virtual ChartRange range() const = 0;
    virtual void setRange(const ChartRange& range) = 0;
    virtual void setFont(const QFont& font) = 0;

    /// The line nearest to a pixel, up to `tolerance` pixels away; 0 for none.
    std::int64_t lineAt(const QPointF& pixel, double tolerance);
    LineInk& ink() { return m_ink; }
    const LineInk& ink() const { return m_ink; }
    /// Shows or hides all lines.
    void setLinesVisible(bool isVisible);
    bool areLinesVisible() const;
    /// Whether lines are to be seen that are not drawn yet.
    bool hasWork() const;
    /// How long drawing the plot may draw lines at once; negative until all is done.
    void setPatience(int milliseconds) { m_patience = milliseconds; }
    int patience() const { return m_patience; }

protected:
    /// How the lines lie in the widget at present, whatever is outside left out.
    virtual ChartView view() = 0;
    virtual QRegion outline() const = 0; ///< of the lines

private:
    class Sheet;
    void draw(QCPPainter& painter);

    LineInk m_ink;
    std::unique_ptr<Sheet> m_sheet;
    int m_patience = 60;
};

std::unique_ptr<LineChart> makeXyChart(QCustomPlot& plot);
std::unique_ptr<LineChart> makePolarChart(QCustomPlot& plot);

} // namespace corvala::plot
