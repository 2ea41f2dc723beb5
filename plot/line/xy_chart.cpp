// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_chart.h"

#include <utility>

namespace corvala::plot {

/// Lines over rectangular axes.
class XyChart : public LineChart
{
public:
    explicit XyChart(QCustomPlot& plot);

    void setLine(std::int64_t map, LineData data) override;
    void setTitles(const QString& first, const QString& second) override;
    void fit() override;
    ChartRange range() const override;
    void setRange(const ChartRange& range) override;
    void setFont(const QFont& font) override;

protected:
    LineView view() override;
    QRegion outline() const override { return m_plot.axisRect()->rect(); }

private:
    QCPAxis& axis(QCPAxis::AxisType side) const { return *m_plot.axisRect()->axis(side); }

    QCustomPlot& m_plot;
};

XyChart::XyChart(QCustomPlot& plot)
    : LineChart(plot)
    , m_plot(plot)
{
    plot.plotLayout()->clear();
    auto* axes = new QCPAxisRect(&plot);
    plot.plotLayout()->addElement(0, 0, axes);
    axes->setupFullAxesBox(true);
    for (QCPAxis* const axis : axes->axes()) {
        axis->grid()->setLayer("grid");
        axis->setLayer("axes");
    }
    plot.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    axes->setRangeDragAxes(axes->axis(QCPAxis::atBottom), axes->axis(QCPAxis::atLeft));
}

void XyChart::setLine(std::int64_t map, LineData data)
{
    ink().setLine(map, Polyline(std::move(data.first), std::move(data.second)));
}

void XyChart::setTitles(const QString& first, const QString& second)
{
    axis(QCPAxis::atBottom).setLabel(first);
    axis(QCPAxis::atLeft).setLabel(second);
}

/// Shows an interval with a margin; from 0 to 1 when it is empty.
static void show(QCPAxis& axis, double minimum, double maximum)
{
    if (minimum > maximum) {
        axis.setRange(0.0, 1.0);
        return;
    }
    const double margin = maximum > minimum ? 0.05 * (maximum - minimum) : 0.5;
    axis.setRange(minimum - margin, maximum + margin);
}

void XyChart::fit()
{
    const LineBox box = ink().bounds();
    show(axis(QCPAxis::atBottom), box.left, box.right);
    show(axis(QCPAxis::atLeft), box.low, box.high);
}

ChartRange XyChart::range() const
{
    const QCPRange x = axis(QCPAxis::atBottom).range();
    const QCPRange y = axis(QCPAxis::atLeft).range();
    return {x.lower, x.upper, y.lower, y.upper};
}

void XyChart::setRange(const ChartRange& range)
{
    axis(QCPAxis::atBottom).setRange(range.firstMinimum, range.firstMaximum);
    axis(QCPAxis::atLeft).setRange(range.secondMinimum, range.secondMaximum);
}

static LineScale scaleOf(const QCPAxis& axis)
{
    const QCPRange range = axis.range();
    const double first = axis.coordToPixel(range.lower);
    return {range.lower, first, (axis.coordToPixel(range.upper) - first) / range.size()};
}

LineView XyChart::view()
{
    LineView view;
    view.x = scaleOf(axis(QCPAxis::atBottom));
    view.y = scaleOf(axis(QCPAxis::atLeft));
    return view;
}

void XyChart::setFont(const QFont& font)
{
    QFont bold = font;
    bold.setBold(true);
    for (QCPAxis* const axis : m_plot.axisRect()->axes()) {
        axis->setTickLabelFont(font);
        axis->setLabelFont(bold);
    }
}

std::unique_ptr<LineChart> makeXyChart(QCustomPlot& plot)
{
    return std::make_unique<XyChart>(plot);
}

} // namespace corvala::plot
