// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/axis_ticks.h"
#include "plot/line/cover_grid.h"
#include "plot/line/line_chart.h"
#include "plot/line/number_ticker.h"

#include <QCoreApplication>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

/// Lines over an angle in degrees and a radius. They are joined straight, in the plane whose origin
/// is the middle of the chart.
class PolarChart : public LineChart
{
public:
    explicit PolarChart(QCustomPlot& plot);

    LinePlane plane(const LineAxes& axes) const override;
    void setLook(const ChartLook& look) override;
    ChartRange home(const AxisRange& radii) const override;
    ChartRange range() const override;
    void setRange(const ChartRange& range) override;
    QString valuesAt(const QPointF& pixel) const override;
    QRect area() const override { return m_angle->outerRect(); }

protected:
    ChartView view() const override;
    QPainterPath outline() const override;
    void coverTexts(CoverGrid& grid) const override;

private:
    class Disc;

    void adaptToSize();
    QCPPolarAxisRadial* radius() const { return m_angle->radialAxis(); }

    QCPPolarAxisAngular* m_angle; // owned by the plot
    BrokenTitle* m_titles; // owned by the plot
    PolarLook m_look;
    double m_font = 12.0;
};

/// Adapts the numbers before each layout.
class PolarChart::Disc : public QCPPolarAxisAngular
{
public:
    Disc(QCustomPlot& plot, PolarChart& chart)
        : QCPPolarAxisAngular(&plot)
        , m_chart(chart)
    {
    }
    void update(UpdatePhase phase) override
    {
        if (phase == upPreparation)
            m_chart.adaptToSize();
        QCPPolarAxisAngular::update(phase);
    }

private:
    PolarChart& m_chart;
};

/// As many numbers of the radius as have room.
void PolarChart::adaptToSize()
{
    const QRect plot = m_angle->parentPlot()->viewport();
    const QMargins margins = m_angle->minimumMargins();
    const double across = std::min(plot.width() - margins.left() - margins.right(),
                                   plot.height() - margins.top() - margins.bottom());
    radius()->ticker()->setTickCount(
        std::clamp(static_cast<int>(across / 2.0 / (1.5 * m_font)), 1, 5));
}

PolarChart::PolarChart(QCustomPlot& plot)
    : LineChart(plot)
{
    plot.plotLayout()->clear();
    m_angle = new Disc(plot, *this);
    m_titles = new BrokenTitle(plot);
    plot.plotLayout()->addElement(0, 0, m_angle);
    plot.plotLayout()->addElement(1, 0, m_titles);
    plot.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    plot.setPlottingHint(QCP::phCacheLabels, false); // polar axes would keep those of another font
    radius()->setTicker(QSharedPointer<QCPAxisTicker>(new NumberTicker));
    m_angle->setRange(0.0, 360.0);
    m_angle->setRangeDrag(false);
    m_angle->setRangeZoom(false);
}

QPainterPath PolarChart::outline() const
{
    QPainterPath outline;
    outline.addEllipse(m_angle->center(), m_angle->radius(), m_angle->radius());
    return outline;
}

/// Numbers of the angle stand outside the circle.
void PolarChart::coverTexts(CoverGrid& grid) const
{
    const QFontMetricsF metrics(m_angle->tickLabelFont());
    const QVector<double> places = m_angle->tickVector();
    const QVector<QString> texts = m_angle->tickVectorLabels();
    for (int i = 0; i < std::min(places.size(), texts.size()); ++i) {
        const QPointF rim = m_angle->coordToPixel(places[i], radius()->range().upper);
        const QPointF out = (rim - m_angle->center()) / std::max(m_angle->radius(), 1.0);
        const QSizeF half(metrics.horizontalAdvance(texts[i]) / 2.0, metrics.height() / 2.0);
        const double away = std::abs(out.x()) * half.width() + std::abs(out.y()) * half.height();
        const QPointF middle = rim + (m_angle->tickLabelPadding() + away) * out;
        grid.add({middle.x() - half.width(), middle.x() + half.width(), middle.y() - half.height(),
                  middle.y() + half.height()});
    }
}

LinePlane PolarChart::plane(const LineAxes&) const
{
    LinePlane plane;
    plane.isPolar = true;
    plane.middle = radius()->range().lower;
    plane.start = m_look.start;
    plane.isClockwise = m_look.isClockwise;
    return plane;
}

/// Texts, ticks and distances of the angle or the radius.
template<typename Axis>
static void setSizes(Axis& axis, const ChartLook& look)
{
    const QPen pen = look.axisPen(Qt::black);
    axis.setBasePen(pen);
    axis.setTickPen(pen);
    axis.setSubTickPen(pen);
    axis.setTickLabelFont(plotFont(look.font));
    axis.setTickLength(look.share(0.25));
    axis.setSubTickLength(look.share(0.1));
    axis.setTickLabelPadding(look.share(0.25));
}

void PolarChart::setLook(const ChartLook& look)
{
    takeTitle(look);
    m_look = look.polar;
    m_font = look.font;
    m_titles->set(m_look.title, plotFont(look.font, true));
    m_angle->setRangeReversed(!m_look.isClockwise);
    m_angle->setAngle(-m_look.start);
    radius()->setAngle(90.0 + m_look.start); // downwards, whatever the angle is there
    m_angle->grid()->setAngularPen(look.gridPen(Qt::DotLine));
    m_angle->grid()->setRadialPen(look.gridPen(Qt::DotLine));
    m_angle->grid()->setVisible(look.showsGrid);
    const int above = look.share(1.7); // room for numbers
    const int beside = look.share(2.6);
    m_angle->setMinimumMargins({beside, above, beside, above});
    setSizes(*m_angle, look);
    setSizes(*radius(), look);
    if (!look.showsBox)
        m_angle->setBasePen(Qt::NoPen);
}

ChartRange PolarChart::home(const AxisRange& radii) const
{
    ChartRange home;
    home.second[0] = m_look.radii;
    if (m_look.radii.minimum < m_look.radii.maximum)
        return home;
    const double lowest = std::min(0.0, radii.minimum <= radii.maximum ? radii.minimum : 0.0);
    const double highest = std::max(0.0, radii.minimum <= radii.maximum ? radii.maximum : 0.0);
    home.second[0] = {lowest,
                      highest > lowest ? highest + 0.05 * (highest - lowest) : lowest + 1.0};
    return home;
}

ChartView PolarChart::view() const
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

QString PolarChart::valuesAt(const QPointF& pixel) const
{
    if (!outline().contains(pixel))
        return {};
    double angle = 0.0;
    double radius = 0.0;
    m_angle->pixelToCoord(pixel, angle, radius);
    return QCoreApplication::translate("corvala::plot::PolarChart", "angle = %1, radius = %2")
        .arg(std::fmod(angle + 720.0, 360.0), 0, 'g', 6)
        .arg(radius, 0, 'g', 6);
}

std::unique_ptr<LineChart> makePolarChart(QCustomPlot& plot)
{
    return std::make_unique<PolarChart>(plot);
}

} // namespace corvala::plot
