// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_chart.h"

#include <map>

namespace corvala::plot {

/// Lines over rectangular axes.
class XyChart : public LineChart
{
public:
    explicit XyChart(QCustomPlot& plot);

    void setLine(std::int64_t map, const LineData& data) override;
    void setPen(std::int64_t map, const QPen& pen) override { m_curves.at(map)->setPen(pen); }
    void removeLine(std::int64_t map) override;
    void setTitles(const QString& first, const QString& second) override;
    void fit() override;
    ChartRange range() const override;
    void setRange(const ChartRange& range) override;
    std::int64_t lineAt(const QPointF& pixel, double tolerance) const override;
    void setFont(const QFont& font) override;

private:
    QCustomPlot& m_plot;
    std::map<std::int64_t, QCPCurve*> m_curves; // owned by the plot
};

XyChart::XyChart(QCustomPlot& plot)
    : m_plot(plot)
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

void XyChart::setLine(std::int64_t map, const LineData& data)
{
    QCPCurve*& curve = m_curves[map];
    if (!curve) {
        const QCPAxisRect* const axes = m_plot.axisRect();
        curve = new QCPCurve(axes->axis(QCPAxis::atBottom), axes->axis(QCPAxis::atLeft));
        curve->setSelectable(QCP::stNone);
        curve->setAntialiased(true);
    }
    curve->setData(data.first, data.second);
}

void XyChart::removeLine(std::int64_t map)
{
    const auto found = m_curves.find(map);
    if (found != m_curves.end()) {
        m_plot.removePlottable(found->second);
        m_curves.erase(found);
    }
}

void XyChart::setTitles(const QString& first, const QString& second)
{
    m_plot.axisRect()->axis(QCPAxis::atBottom)->setLabel(first);
    m_plot.axisRect()->axis(QCPAxis::atLeft)->setLabel(second);
}

static void addMargin(QCPAxis& axis)
{
    const QCPRange range = axis.range();
    const double margin = range.size() > 0.0 ? 0.05 * range.size() : 0.5;
    axis.setRange(range.lower - margin, range.upper + margin);
}

void XyChart::fit()
{
    for (const auto side : {QCPAxis::atBottom, QCPAxis::atLeft}) {
        QCPAxis* const axis = m_plot.axisRect()->axis(side);
        axis->rescale();
        addMargin(*axis);
    }
}

ChartRange XyChart::range() const
{
    const QCPRange x = m_plot.axisRect()->axis(QCPAxis::atBottom)->range();
    const QCPRange y = m_plot.axisRect()->axis(QCPAxis::atLeft)->range();
    return {x.lower, x.upper, y.lower, y.upper};
}

void XyChart::setRange(const ChartRange& range)
{
    m_plot.axisRect()->axis(QCPAxis::atBottom)->setRange(range.firstMinimum, range.firstMaximum);
    m_plot.axisRect()->axis(QCPAxis::atLeft)->setRange(range.secondMinimum, range.secondMaximum);
}

std::int64_t XyChart::lineAt(const QPointF& pixel, double tolerance) const
{
    std::int64_t nearest = 0;
    for (const auto& [map, curve] : m_curves) {
        const double distance = curve->selectTest(pixel, false);
        if (distance >= 0.0 && distance <= tolerance) {
            nearest = map;
            tolerance = distance;
        }
    }
    return nearest;
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
