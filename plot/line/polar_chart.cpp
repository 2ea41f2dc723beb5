// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_chart.h"

#include <QCoreApplication>

#include <algorithm>

namespace corvala::plot {

/// Lines over an angle in degrees and a radius. They are joined straight, in the plane whose origin
/// is the middle of the chart.
class PolarChart : public LineChart
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::PolarChart)

public:
    explicit PolarChart(QCustomPlot& plot);

    LinePlane plane(const LineAxes& axes) const override;
    void setTitles(const ChartTitles& titles) override;
    void fit(const AxisRange& radii) override;
    ChartRange range() const override;
    void setRange(const ChartRange& range) override;
    void setFont(const QFont& font) override;

protected:
    ChartView view() override;
    QPainterPath outline() const override;

private:
    QCPPolarAxisRadial* radius() const { return m_angle->radialAxis(); }

    QCPPolarAxisAngular* m_angle; // owned by the plot
    QCPTextElement* m_title; // owned by the plot
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

QPainterPath PolarChart::outline() const
{
    QPainterPath outline;
    outline.addEllipse(m_angle->center(), m_angle->radius(), m_angle->radius());
    return outline;
}

LinePlane PolarChart::plane(const LineAxes&) const
{
    LinePlane plane;
    plane.isPolar = true;
    plane.middle = radius()->range().lower;
    return plane;
}

void PolarChart::setTitles(const ChartTitles& titles)
{
    const QString& angle = titles.first[0].text;
    m_title->setText(angle.isEmpty() ? QString()
                                     : tr("%1 over %2").arg(titles.second[0].text, angle));
}

void PolarChart::fit(const AxisRange& radii)
{
    const double lowest = std::min(0.0, radii.minimum <= radii.maximum ? radii.minimum : 0.0);
    const double highest = std::max(0.0, radii.minimum <= radii.maximum ? radii.maximum : 0.0);
    radius()->setRange(lowest,
                       highest > lowest ? highest + 0.05 * (highest - lowest) : lowest + 1.0);
}

ChartView PolarChart::view()
{
    const QCPRange range = radius()->range();
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
