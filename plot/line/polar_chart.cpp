// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_chart.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <map>

namespace corvala::plot {

/// Lines over an angle in degrees and a radius.
class PolarChart : public LineChart
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::PolarChart)

public:
    explicit PolarChart(QCustomPlot& plot);
    ~PolarChart() override;

    void setLine(std::int64_t map, const LineData& data) override;
    void setPen(std::int64_t map, const QPen& pen) override { m_graphs.at(map)->setPen(pen); }
    void removeLine(std::int64_t map) override;
    void setTitles(const QString& first, const QString& second) override;
    void fit() override;
    ChartRange range() const override;
    void setRange(const ChartRange& range) override;
    std::int64_t lineAt(const QPointF& pixel, double tolerance) const override;
    void setFont(const QFont& font) override;

private:
    QCPPolarAxisRadial* radius() const { return m_angle->radialAxis(); }

    QCPPolarAxisAngular* m_angle; // owned by the plot
    QCPTextElement* m_title; // owned by the plot
    std::map<std::int64_t, QCPPolarGraph*> m_graphs; // owned by the plot
};

PolarChart::PolarChart(QCustomPlot& plot)
{
    plot.plotLayout()->clear();
    m_angle = new QCPPolarAxisAngular(&plot);
    m_title = new QCPTextElement(&plot);
    plot.plotLayout()->addElement(0, 0, m_angle);
    plot.plotLayout()->addElement(1, 0, m_title);
    plot.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    m_angle->setRange(0.0, 360.0);
    m_angle->setRangeDrag(false);
    m_angle->setRangeZoom(false);
    m_angle->setRangeReversed(true); // counted against the clock, from the right
    m_angle->setAngle(0.0);
    m_angle->grid()->setAngularPen(QPen(QColor(200, 200, 200), 0, Qt::DotLine));
    m_angle->grid()->setRadialPen(QPen(QColor(200, 200, 200), 0, Qt::DotLine));
    radius()->setAngle(90.0);
}

// Axes do not take their graphs along.
PolarChart::~PolarChart()
{
    for (const auto& [map, graph] : m_graphs)
        m_angle->removeGraph(graph);
}

void PolarChart::setLine(std::int64_t map, const LineData& data)
{
    QCPPolarGraph*& graph = m_graphs[map];
    if (!graph) {
        graph = new QCPPolarGraph(m_angle, radius());
        graph->setPeriodic(false);
    }
    // Sorted by angle, the points would be joined in another order.
    graph->setData(data.first, data.second, true);
}

void PolarChart::removeLine(std::int64_t map)
{
    const auto found = m_graphs.find(map);
    if (found != m_graphs.end()) {
        m_angle->removeGraph(found->second);
        m_graphs.erase(found);
    }
}

void PolarChart::setTitles(const QString& first, const QString& second)
{
    m_title->setText(first.isEmpty() ? QString() : tr("%1 over %2").arg(second, first));
}

void PolarChart::fit()
{
    double lowest = 0.0;
    double highest = 0.0;
    for (const auto& [map, graph] : m_graphs) {
        for (const QCPGraphData& point : *graph->data()) {
            if (std::isfinite(point.value)) {
                lowest = std::min(lowest, point.value);
                highest = std::max(highest, point.value);
            }
        }
    }
    radius()->setRange(lowest,
                       highest > lowest ? highest + 0.05 * (highest - lowest) : lowest + 1.0);
}

ChartRange PolarChart::range() const
{
    return {0.0, 360.0, radius()->range().lower, radius()->range().upper};
}

void PolarChart::setRange(const ChartRange& range)
{
    radius()->setRange(range.secondMinimum, range.secondMaximum);
}

std::int64_t PolarChart::lineAt(const QPointF& pixel, double tolerance) const
{
    std::int64_t nearest = 0;
    for (const auto& [map, graph] : m_graphs) {
        const double distance = graph->selectTest(pixel, false);
        if (distance >= 0.0 && distance <= tolerance) {
            nearest = map;
            tolerance = distance;
        }
    }
    return nearest;
}

void PolarChart::setFont(const QFont& font)
{
    QFont bold = font;
    bold.setBold(true);
    m_title->setFont(bold);
    m_angle->setTickLabelFont(font);
    radius()->setTickLabelFont(font);
}

std::unique_ptr<LineChart> makePolarChart(QCustomPlot& plot)
{
    return std::make_unique<PolarChart>(plot);
}

} // namespace corvala::plot
