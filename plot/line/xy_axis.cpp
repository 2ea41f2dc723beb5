// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/xy_axis.h"

#include "plot/common/axis_ticks.h"
#include "plot/line/date_ticker.h"
#include "plot/line/log_ticker.h"
#include "plot/line/number_ticker.h"

#include <cmath>
#include <utility>

namespace corvala::plot {

bool isLogarithmic(const QCPAxis& axis)
{
    return axis.scaleType() == QCPAxis::stLogarithmic;
}

QCPRange inPlane(const QCPAxis& axis)
{
    const QCPRange range = axis.range();
    return isLogarithmic(axis) ? QCPRange(std::log10(range.lower), std::log10(range.upper)) : range;
}

LineScale scaleOf(const QCPAxis& axis)
{
    const QCPRange range = inPlane(axis);
    const double first = axis.coordToPixel(axis.range().lower);
    // A range may be too narrow for its logarithms to differ.
    const double length = axis.coordToPixel(axis.range().upper) - first;
    return {range.lower, first, range.size() > 0.0 ? length / range.size() : 0.0};
}

static Ticks ticksOf(const AxisLook& look)
{
    return look.isLogarithmic ? Ticks::Powers : look.isOfInstants ? Ticks::Dates : Ticks::Numbers;
}

static QSharedPointer<QCPAxisTicker> tickerOf(Ticks ticks)
{
    switch (ticks) {
    case Ticks::Powers: return QSharedPointer<QCPAxisTicker>(new LogTicker);
    case Ticks::Dates: return QSharedPointer<QCPAxisTicker>(new DateTicker);
    default: return QSharedPointer<QCPAxisTicker>(new NumberTicker);
    }
}

void setLogarithmic(QCPAxis& axis, bool isLogarithmic)
{
    axis.setScaleType(isLogarithmic ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
}

void setPen(QCPAxis& axis, const QPen& pen)
{
    axis.setBasePen(pen);
    axis.setTickPen(pen);
    axis.setSubTickPen(pen);
    axis.setTickLabelColor(pen.color());
    axis.setLabelColor(pen.color());
}

void setSizes(QCPAxis& axis, const ChartLook& look)
{
    axis.setTickLabelFont(plotFont(look.font));
    axis.setLabelFont(plotFont(look.font, true));
    axis.setTickLength(look.share(0.4));
    axis.setSubTickLength(look.share(0.2));
    axis.setTickLabelPadding(look.share(0.35));
    axis.setLabelPadding(look.share(0.25));
    axis.setPadding(look.share(1.0));
    axis.grid()->setPen(look.gridPen(Qt::DotLine));
    axis.grid()->setZeroLinePen(look.gridPen(Qt::SolidLine));
}

void XyAxis::apply(const ChartLook& shared)
{
    const Ticks now = ticksOf(look);
    const bool isOther = std::exchange(ticks, now) != now;
    for (QCPAxis* const side : sides) {
        const QCPRange range = side->range();
        setLogarithmic(*side, look.isLogarithmic);
        if (look.isLogarithmic && range.lower <= 0.0) {
            side->setRange(1.0, 10.0);
            hasRange = hasRange && side != &shown();
        }
        if (isOther)
            side->setTicker(tickerOf(now));
        side->setRangeReversed(look.isReversed);
        setPen(*side, shared.axisPen(look.color));
        setSizes(*side, shared);
    }
}

} // namespace corvala::plot
