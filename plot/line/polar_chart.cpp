// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_chart.h"

#include <QCoreApplication>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

namespace corvala::plot {

/// Lines over an angle in degrees and a radius. They are joined straight, in the plane whose origin
/// is the middle of the chart.
class PolarChart : public LineChart
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::PolarChart)

public:
    explicit PolarChart(QCustomPlot& plot);

    void setLine(std::int64_t map, LineData data) override;
    void removeLine(std::int64_t map) override;
    void setTitles(const ChartTitles& titles) override;
    void fit() override;
    ChartRange range() const override;
    void setRange(const ChartRange& range) override;
    void setFont(const QFont& font) override;

protected:
    ChartView view() override;
    QRegion outline() const override { return m_angle->exactClipRegion(); }

private:
    QCPPolarAxisRadial* radius() const { return m_angle->radialAxis(); }
    Polyline unrolled(const LineData& data) const;

    QCPPolarAxisAngular* m_angle; // owned by the plot
    QCPTextElement* m_title; // owned by the plot
    std::map<std::int64_t, LineData> m_data;
    double m_middle = 0.0; ///< radius at the middle, for which the lines are made
};

PolarChart::PolarChart(QCustomPlot& plot)
    : LineChart(plot)
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

Polyline PolarChart::unrolled(const LineData& data) const
{
    std::vector<double> x(data.first.size());
    std::vector<double> y(data.first.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double angle = qDegreesToRadians(data.first[i]);
        x[i] = (data.second[i] - m_middle) * std::cos(angle);
        y[i] = (data.second[i] - m_middle) * std::sin(angle);
    }
    return {std::move(x), std::move(y)};
}

void PolarChart::setLine(std::int64_t map, LineData data)
{
    ink().setLine(map, unrolled(data));
    m_data[map] = std::move(data);
}

void PolarChart::removeLine(std::int64_t map)
{
    LineChart::removeLine(map);
    m_data.erase(map);
}

void PolarChart::setTitles(const ChartTitles& titles)
{
    const QString& angle = titles.first[0];
    m_title->setText(angle.isEmpty() ? QString() : tr("%1 over %2").arg(titles.second[0], angle));
}

void PolarChart::fit()
{
    double lowest = 0.0;
    double highest = 0.0;
    for (const auto& [map, data] : m_data) {
        for (const double value : data.second) {
            if (std::isfinite(value)) {
                lowest = std::min(lowest, value);
                highest = std::max(highest, value);
            }
        }
    }
    radius()->setRange(lowest,
                       highest > lowest ? highest + 0.05 * (highest - lowest) : lowest + 1.0);
}

ChartView PolarChart::view()
{
    const QCPRange range = radius()->range();
    if (range.lower != m_middle) {
        m_middle = range.lower;
        for (const auto& [map, data] : m_data)
            ink().setLine(map, unrolled(data));
    }
    ChartView view;
    view.first[0] = {0.0, m_angle->center().x(), m_angle->radius() / range.size()};
    view.second[0] = {0.0, m_angle->center().y(), -m_angle->radius() / range.size()};
    return view;
}

ChartRange PolarChart::range() const
{
    ChartRange range;
    range.second[0] = {radius()->range().lower, radius()->range().upper};
    return range;
}

void PolarChart::setRange(const ChartRange& range)
{
    radius()->setRange(range.second[0].minimum, range.second[0].maximum);
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
