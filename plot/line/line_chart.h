// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/chart_look.h"
#include "plot/line/custom_plot.h"
#include "plot/line/line_ink.h"
#include "plot/line/line_plane.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace corvala::plot {

/// A text above or below a chart, in as many lines as the width of the plot asks for.
class BrokenTitle : public QCPTextElement
{
public:
    explicit BrokenTitle(QCustomPlot& plot);
    void set(const QString& text, const QFont& font);
    void update(UpdatePhase phase) override;
    using QCPTextElement::minimumOuterSizeHint;

private:
    QString m_whole;
};

/// Axes with the shapes of line maps in a QCustomPlot; XY and polar charts are its kinds. Whenever
/// the plot is drawn, the shapes follow the axes for a moment; what is left then is work of the
/// ink.
class LineChart
{
public:
    static constexpr int kPatience = 60; ///< milliseconds, unless told

    explicit LineChart(QCustomPlot& plot);
    virtual ~LineChart();

    /// The plane in which shapes along two axes lie at present.
    virtual LinePlane plane(const LineAxes& axes) const = 0;
    /// To be called before each drawing, as long as the chart lives: shapes that lie in another
    /// plane than the present one are to be made again.
    void setBeforeDrawing(std::function<void()> action) { m_beforeDrawing = std::move(action); }
    /// Draws titles, axes and grid so from now on.
    virtual void setLook(const ChartLook& look) = 0;
    /// Shows the axes that shapes are drawn along; an axis that is new shows all of them once all
    /// are there.
    virtual void updateAxes(bool /*isComplete*/) { }
    /// What is shown at first: the ranges that were set, else all shapes with a margin; `radii` are
    /// those of all points.
    virtual ChartRange home(const AxisRange& radii) const = 0;
    virtual void fit(const AxisRange& radii) { setRange(home(radii)); }
    virtual ChartRange range() const = 0;
    virtual void setRange(const ChartRange& range) = 0;
    /// What the axes show of a rectangle in pixels, which may be larger than the plot; nothing for
    /// a chart whose parts cannot fill it.
    virtual std::optional<ChartRange> rangeIn(const QRectF&) const { return {}; }
    /// What the axes have to show for some maps to fill the chart; nothing where these have no
    /// shapes. An axis that they do not use has no range there.
    virtual std::optional<ChartRange> rangeOf(const host::NumberSet&) const { return {}; }

    /// Values of the axes at a pixel in a line; empty beside the chart.
    virtual QString valuesAt(const QPointF& pixel) const = 0;
    /// False when all shapes lie beside what is seen.
    bool seesSomething() const;
    /// Where a legend has its corners, in pixels.
    virtual QRect area() const = 0;
    /// How much of a rectangle in pixels is over shapes that are shown, or over texts of the axes
    /// in the area: cells of a grid over it.
    int hiddenBy(const QRectF& box);
    /// The map of the shape nearest to a pixel, up to `tolerance` pixels away; 0 for none.
    std::int64_t mapAt(const QPointF& pixel, double tolerance);
    LineInk& ink() { return m_ink; }
    const LineInk& ink() const { return m_ink; }
    bool hasWork() const { return m_ink.hasWork(); }
    /// How long drawing the plot may draw shapes at once; negative until all is done.
    void setPatience(int milliseconds) { m_patience = milliseconds; }

protected:
    /// How the shapes lie in the widget at present, whatever is outside left out.
    virtual ChartView view() const = 0;
    virtual QPainterPath outline() const = 0; ///< of the shapes
    virtual void coverTexts(CoverGrid&) const { } ///< of the axes, within the area
    /// Puts the title of the plot above it, none when it is empty, with the gaps between the parts.
    void takeTitle(const ChartLook& look);
    int titleHeight() const; ///< with the gap below, as it was laid out at last

private:
    class Sheet;
    struct Cover;
    /// The view, of which a part of the widget is seen.
    ChartView seenIn(const QRectF& place) const;
    const CoverGrid& cover();
    void draw(QCPPainter& painter);

    LineInk m_ink;
    QCustomPlot& m_plot;
    BrokenTitle* m_title = nullptr; // owned by the plot
    std::unique_ptr<Sheet> m_sheet;
    std::unique_ptr<Cover> m_cover; ///< of what was seen last; null at first
    std::function<void()> m_beforeDrawing;
    int m_patience = kPatience;
};

std::unique_ptr<LineChart> makeXyChart(QCustomPlot& plot);
std::unique_ptr<LineChart> makePolarChart(QCustomPlot& plot);

} // namespace corvala::plot
