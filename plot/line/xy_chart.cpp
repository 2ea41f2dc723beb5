// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_chart.h"

#include <cmath>

namespace corvala::plot {

/// Dates and times of day in UTC, as exact as the ticks are close.
class DateTicker : public QCPAxisTickerDateTime
{
public:
    DateTicker() { setDateTimeSpec(Qt::UTC); }

protected:
    double getTickStep(const QCPRange& range) override
    {
        constexpr double kMinute = 60;
        constexpr double kDay = 86'400;
        const double step = QCPAxisTickerDateTime::getTickStep(range);
        const QString time = step < kMinute ? QStringLiteral("hh:mm:ss") : QStringLiteral("hh:mm");
        const QString date = QStringLiteral("yyyy-MM-dd");
        setDateTimeFormat(step >= kDay               ? date
                              : range.size() >= kDay ? date + QLatin1Char('\n') + time
                                                     : time);
        return step;
    }
};

/// Lines over rectangular axes. The first axis of each direction is always there, below and to the
/// left; the others come when a line is drawn along them, on the sides in turn.
class XyChart : public LineChart
{
public:
    explicit XyChart(QCustomPlot& plot);

    LinePlane plane(const LineAxes& axes) const override;
    void setTitles(const ChartTitles& titles) override;
    void updateAxes() override;
    void fit(const AxisRange& radii) override;
    ChartRange range() const override;
    void setRange(const ChartRange& range) override;
    void setFont(const QFont& font) override;

protected:
    ChartView view() override;
    QPainterPath outline() const override;

private:
    /// An axis, and whether it shows what somebody has chosen or fitted.
    struct Axis
    {
        QCPAxis* axis = nullptr; // owned by the plot
        bool hasRange = false;
        bool hasDates = false;
    };
    using Axes = std::array<Axis, kAxisCount>;

    void fit(Axes& axes, std::size_t number);
    static void setTitle(Axis& axis, const AxisTitle& title);

    QCustomPlot& m_plot;
    Axes m_first;
    Axes m_second;
};

QPainterPath XyChart::outline() const
{
    QPainterPath outline;
    outline.addRect(m_plot.axisRect()->rect());
    return outline;
}

/// Axes of one direction: the first on a side of the box, the others outside.
template<class Axes>
static void addAxes(QCPAxisRect& box, Axes& axes, QCPAxis::AxisType side, QCPAxis::AxisType across)
{
    axes[0].axis = box.axis(side);
    for (std::size_t i = 1; i < axes.size(); ++i) {
        axes[i].axis = box.addAxis(i % 2 == 0 ? side : across);
        axes[i].axis->grid()->setVisible(false);
        axes[i].axis->setVisible(false);
    }
}

XyChart::XyChart(QCustomPlot& plot)
    : LineChart(plot)
    , m_plot(plot)
{
    plot.plotLayout()->clear();
    auto* box = new QCPAxisRect(&plot);
    plot.plotLayout()->addElement(0, 0, box);
    box->setupFullAxesBox(true);
    addAxes(*box, m_first, QCPAxis::atBottom, QCPAxis::atTop);
    addAxes(*box, m_second, QCPAxis::atLeft, QCPAxis::atRight);
    // Drawn in this order; that of all axes is another one in each run.
    for (const auto side : {QCPAxis::atLeft, QCPAxis::atRight, QCPAxis::atTop, QCPAxis::atBottom}) {
        for (QCPAxis* const axis : box->axes(side)) {
            axis->grid()->setLayer("grid");
            axis->setLayer("axes");
        }
    }
    plot.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    updateAxes();
}

static bool isLogarithmic(const QCPAxis& axis)
{
    return axis.scaleType() == QCPAxis::stLogarithmic;
}

/// What an axis shows, in the plane of the shapes.
static QCPRange inPlane(const QCPAxis& axis)
{
    const QCPRange range = axis.range();
    return isLogarithmic(axis) ? QCPRange(std::log10(range.lower), std::log10(range.upper)) : range;
}

LinePlane XyChart::plane(const LineAxes& axes) const
{
    LinePlane plane;
    plane.isFirstLogarithmic = isLogarithmic(*m_first[axes.first].axis);
    plane.isSecondLogarithmic = isLogarithmic(*m_second[axes.second].axis);
    return plane;
}

void XyChart::setTitles(const ChartTitles& titles)
{
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        setTitle(m_first[i], titles.first[i]);
        setTitle(m_second[i], titles.second[i]);
    }
}

void XyChart::setTitle(Axis& axis, const AxisTitle& title)
{
    axis.axis->setLabel(title.text);
    if (axis.hasDates == title.isOfInstants)
        return;
    axis.hasDates = title.isOfInstants;
    axis.axis->setTicker(axis.hasDates ? QSharedPointer<QCPAxisTicker>(new DateTicker)
                                       : QSharedPointer<QCPAxisTicker>(new QCPAxisTicker));
}

void XyChart::updateAxes()
{
    std::array<bool, kAxisCount> isFirst {true};
    std::array<bool, kAxisCount> isSecond {true};
    for (const auto& [key, placed] : ink().shapes())
        isFirst[placed.axes.first] = isSecond[placed.axes.second] = true;
    QCPAxisRect& box = *m_plot.axisRect();
    QList<QCPAxis*> moved;
    const auto show = [&](Axes& axes, const auto& isInUse, QCPAxis::AxisType across) {
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            axes[i].axis->setVisible(isInUse[i]);
            if (isInUse[i] && !axes[i].hasRange)
                fit(axes, i);
            if (isInUse[i])
                moved.append(axes[i].axis);
        }
        // The side of the box opposite to the first axis repeats it while it is free.
        box.axis(across)->setVisible(!isInUse[1] && !isInUse[3]);
    };
    show(m_first, isFirst, QCPAxis::atTop);
    show(m_second, isSecond, QCPAxis::atRight);
    box.setRangeDragAxes(moved);
    box.setRangeZoomAxes(moved);
}

/// Shows all lines along an axis with a margin; 0 to 1 when there is none.
void XyChart::fit(Axes& axes, std::size_t number)
{
    const bool isFirst = &axes == &m_first;
    LineBox box;
    for (const auto& [key, placed] : ink().shapes())
        if (ink().isShown(key) && (isFirst ? placed.axes.first : placed.axes.second) == number)
            box.add(placed.shape->bounds());
    QCPAxis& axis = *axes[number].axis;
    axes[number].hasRange = !box.isEmpty();
    if (box.isEmpty()) {
        axis.setRange(0.0, 1.0);
        return;
    }
    const double minimum = isFirst ? box.left : box.low;
    const double maximum = isFirst ? box.right : box.high;
    const double margin = maximum > minimum ? 0.05 * (maximum - minimum) : 0.5;
    if (isLogarithmic(axis))
        axis.setRange(std::pow(10.0, minimum - margin), std::pow(10.0, maximum + margin));
    else
        axis.setRange(minimum - margin, maximum + margin);
}

void XyChart::fit(const AxisRange&)
{
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        fit(m_first, i);
        fit(m_second, i);
    }
}

ChartRange XyChart::range() const
{
    ChartRange result;
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        const auto take = [i](const Axes& axes, auto& ranges) {
            if (axes[i].hasRange)
                ranges[i] = {axes[i].axis->range().lower, axes[i].axis->range().upper};
        };
        take(m_first, result.first);
        take(m_second, result.second);
    }
    return result;
}

void XyChart::setRange(const ChartRange& range)
{
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        const auto put = [i](Axes& axes, const auto& ranges) {
            if (ranges[i].minimum < ranges[i].maximum) {
                axes[i].axis->setRange(ranges[i].minimum, ranges[i].maximum);
                axes[i].hasRange = true;
            }
        };
        put(m_first, range.first);
        put(m_second, range.second);
    }
}

static LineScale scaleOf(const QCPAxis& axis)
{
    const QCPRange range = inPlane(axis);
    const double first = axis.coordToPixel(axis.range().lower);
    return {range.lower, first, (axis.coordToPixel(axis.range().upper) - first) / range.size()};
}

ChartView XyChart::view()
{
    ChartView view;
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        view.first[i] = scaleOf(*m_first[i].axis);
        view.second[i] = scaleOf(*m_second[i].axis);
    }
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
