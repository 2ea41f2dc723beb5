// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/nice_steps.h"
#include "plot/line/broken_text.h"
#include "plot/line/line_chart.h"
#include "plot/line/xy_axis.h"

#include <QDateTime>
#include <QFontMetrics>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <tuple>
#include <utility>

namespace corvala::plot {

/// Lines over rectangular axes. An axis is there while a line is drawn along it; without any line,
/// the first one of each direction is.
class XyChart : public LineChart
{
public:
    explicit XyChart(QCustomPlot& plot);

    LinePlane plane(const LineAxes& axes) const override;
    void setLook(const ChartLook& look) override;
    void updateAxes(bool isComplete) override;
    ChartRange home(const AxisRange& radii) const override;
    void fit(const AxisRange& radii) override;
    ChartRange range() const override;
    void setRange(const ChartRange& range) override;
    std::optional<ChartRange> rangeIn(const QRectF& pixels) const override;
    std::optional<ChartRange> rangeOf(const host::NumberSet& maps) const override;
    QString valuesAt(const QPointF& pixel) const override;
    QRect area() const override;

protected:
    ChartView view() const override;
    QPainterPath outline() const override;

private:
    class Box;

    struct Direction
    {
        std::array<XyAxis, kAxisCount> axes;
        std::array<QCPAxis*, 2> borders {}; ///< without an axis, its sides of the box
        std::size_t leading = 0; ///< the first axis that is there: grid and borders are its
        bool isFirst = true;
    };

    void addAxes(Direction& direction, QCPAxis::AxisType side, QCPAxis::AxisType across);
    void showInUse(Direction& direction, QList<QCPAxis*>& shown);
    void hideEqual(Direction& direction);
    void followBorders(Direction& direction);
    AxisRange home(const Direction& direction, std::size_t number) const;
    AxisRange fitted(const Direction& direction, std::size_t number,
                     const host::NumberSet* maps) const;
    void adaptTo(const QSizeF& axes, double beyond);
    int overhangOfDates() const;

    Box* m_box; // owned by the plot
    Direction m_first;
    Direction m_second;
    ChartLook m_look;
};

/// Adapts the texts before each layout, first to the plot, then to what texts leave of it.
class XyChart::Box : public QCPAxisRect
{
public:
    Box(QCustomPlot& plot, XyChart& chart)
        : QCPAxisRect(&plot, false)
        , m_chart(chart)
    {
    }
    void update(UpdatePhase phase) override
    {
        if (phase == upPreparation) {
            const QSizeF plot = parentPlot()->viewport().size();
            m_chart.adaptTo(plot, 0.0);
            QCPAxisRect::update(phase); // the margins follow from the ticks
            const int above = margin(QCP::msTop);
            const int below = margin(QCP::msBottom);
            m_chart.adaptTo({plot.width() - margin(QCP::msLeft) - margin(QCP::msRight),
                             plot.height() - m_chart.titleHeight() - above - below},
                            2.0 * std::min(above, below));
        }
        QCPAxisRect::update(phase);
    }

protected:
    /// Dates at the ends of level axes have room, wherever they stand.
    int calculateAutoMargin(QCP::MarginSide side) override
    {
        const bool isBeside = side == QCP::msLeft || side == QCP::msRight;
        const int margin = QCPAxisRect::calculateAutoMargin(side);
        return isBeside ? std::max(margin, m_chart.overhangOfDates()) : margin;
    }

private:
    int margin(QCP::MarginSide side)
    {
        return std::max(calculateAutoMargin(side), QCP::getMarginValue(minimumMargins(), side));
    }

    XyChart& m_chart;
};

XyChart::XyChart(QCustomPlot& plot)
    : LineChart(plot)
{
    plot.plotLayout()->clear();
    m_box = new Box(plot, *this);
    plot.plotLayout()->addElement(0, 0, m_box);
    m_second.isFirst = false;
    addAxes(m_first, QCPAxis::atBottom, QCPAxis::atTop);
    addAxes(m_second, QCPAxis::atLeft, QCPAxis::atRight);
    plot.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    updateAxes(false);
}

/// Both sides have the axes of a direction in their order, and a border after them.
void XyChart::addAxes(Direction& direction, QCPAxis::AxisType side, QCPAxis::AxisType across)
{
    const std::array<QCPAxis::AxisType, 2> sides {side, across};
    for (std::size_t i = 0; i < sides.size(); ++i) {
        const auto add = [&] {
            QCPAxis* const axis = m_box->addAxis(sides[i]);
            axis->grid()->setLayer("grid");
            axis->setLayer("axes");
            axis->grid()->setVisible(false);
            axis->setVisible(false);
            axis->setLowerEnding({});
            axis->setUpperEnding({});
            return axis;
        };
        for (XyAxis& axis : direction.axes) {
            axis.sides[i] = add();
            QObject::connect(axis.sides[i], QOverload<const QCPRange&>::of(&QCPAxis::rangeChanged),
                             m_box, [this, &direction] { followBorders(direction); });
        }
        direction.borders[i] = add();
        direction.borders[i]->setTickLabels(false);
    }
}

void XyChart::setLook(const ChartLook& look)
{
    takeTitle(look);
    m_look = look;
    const int margin = look.share(0.7);
    m_box->setMinimumMargins({margin, margin, margin, margin});
    const auto take = [&look](Direction& direction, const auto& looks) {
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            XyAxis& axis = direction.axes[i];
            const QCPRange range = axis.shown().range();
            axis.look = looks[i];
            axis.shown().setRange(range);
            axis.apply(look);
        }
        for (QCPAxis* const border : direction.borders)
            setSizes(*border, look);
    };
    take(m_first, look.first);
    take(m_second, look.second);
    updateAxes(false); // shapes may lie in another plane yet
}

/// Titles are as long as the axes, upright ones by so many pixels longer, and as many numbers are
/// written as have room.
void XyChart::adaptTo(const QSizeF& axes, double beyond)
{
    const auto adapt = [this](Direction& direction, double length, double longer,
                              double perNumber) {
        const int most = std::clamp(static_cast<int>(length / (perNumber * m_look.font)), 2, 5);
        for (XyAxis& axis : direction.axes) {
            QCPAxis& shown = axis.shown();
            shown.ticker()->setTickCount(most);
            shown.setLabel(brokenText(axis.look.title, shown.labelFont(), length + longer));
        }
    };
    adapt(m_first, axes.width(), 0.0, 7.0);
    adapt(m_second, axes.height(), beyond, 3.5);
}

/// How far dates at the end of an axis stand out beside it at most.
int XyChart::overhangOfDates() const
{
    int widest = 0;
    for (const XyAxis& axis : m_first.axes) {
        if (axis.ticks != Ticks::Dates || !axis.shown().visible())
            continue;
        const QFontMetrics metrics(axis.shown().tickLabelFont());
        for (const QString& text : axis.shown().tickVectorLabels())
            widest = std::max(widest, metrics.size(0, text).width() + metrics.height() / 2);
    }
    return (widest + 1) / 2;
}

QRect XyChart::area() const
{
    return m_box->rect();
}

QPainterPath XyChart::outline() const
{
    QPainterPath outline;
    outline.addRect(m_box->rect());
    return outline;
}

LinePlane XyChart::plane(const LineAxes& axes) const
{
    LinePlane plane;
    plane.isFirstLogarithmic = m_first.axes[axes.first].look.isLogarithmic;
    plane.isSecondLogarithmic = m_second.axes[axes.second].look.isLogarithmic;
    return plane;
}

/// Sides without an axis show the leading axis once more, without its texts.
void XyChart::followBorders(Direction& direction)
{
    const QCPAxis& leading = direction.axes[direction.leading].shown();
    for (QCPAxis* const border : direction.borders) {
        setLogarithmic(*border, isLogarithmic(leading));
        border->setTicker(leading.ticker());
        border->setRangeReversed(leading.rangeReversed());
        border->setRange(leading.range());
        setPen(*border, leading.basePen());
    }
}

void XyChart::showInUse(Direction& direction, QList<QCPAxis*>& shown)
{
    std::array<bool, kAxisCount> isInUse {};
    for (const auto& [key, placed] : ink().shapes())
        isInUse[direction.isFirst ? placed.axes.first : placed.axes.second] = true;
    const auto first = std::find(isInUse.begin(), isInUse.end(), true);
    direction.leading =
        first == isInUse.end() ? 0 : static_cast<std::size_t>(first - isInUse.begin());
    isInUse[direction.leading] = true;
    std::array<bool, 2> isTaken {};
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        XyAxis& axis = direction.axes[i];
        const std::size_t side = axis.look.isOpposite ? 1 : 0;
        for (QCPAxis* const one : axis.sides) {
            one->setVisible(isInUse[i] && one == axis.sides[side]);
            one->grid()->setVisible(one->visible() && m_look.showsGrid && i == direction.leading);
        }
        if (!isInUse[i])
            continue;
        isTaken[side] = true;
        shown.append(&axis.shown());
    }
    for (std::size_t side = 0; side < isTaken.size(); ++side)
        direction.borders[side]->setVisible(m_look.showsBox && !isTaken[side]);
    followBorders(direction);
}

void XyChart::updateAxes(bool isComplete)
{
    QList<QCPAxis*> shown;
    showInUse(m_first, shown);
    showInUse(m_second, shown);
    m_box->setRangeDragAxes(shown);
    m_box->setRangeZoomAxes(shown);
    // Axes that have come to be in use begin with all that is drawn along them.
    const auto fitNew = [this, isComplete](Direction& direction) {
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            XyAxis& axis = direction.axes[i];
            const AxisRange range = axis.hasRange ? AxisRange() : home(direction, i);
            if (range.minimum < range.maximum) {
                axis.shown().setRange(range.minimum, range.maximum);
                axis.hasRange = isComplete;
            } else if (!axis.hasRange) {
                axis.shown().setRange(axis.look.isLogarithmic ? 1.0 : 0.0,
                                      axis.look.isLogarithmic ? 10.0 : 1.0);
            }
        }
    };
    fitNew(m_first);
    fitNew(m_second);
    hideEqual(m_first);
    hideEqual(m_second);
}

/// Whether two axes on one side would be drawn alike.
static bool areAlike(const XyAxis& one, const XyAxis& other)
{
    const auto tied = [](const AxisLook& look) {
        return std::tie(look.title, look.isOfInstants, look.isLogarithmic, look.isReversed,
                        look.isOpposite);
    };
    return tied(one.look) == tied(other.look) && one.look.color == other.look.color
        && one.shown().range() == other.shown().range();
}

/// An axis that would only be drawn once more has its lines and no place. It moves with the others.
void XyChart::hideEqual(Direction& direction)
{
    for (std::size_t i = 0; i < kAxisCount; ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (direction.axes[j].shown().visible()
                && areAlike(direction.axes[i], direction.axes[j]))
                direction.axes[i].shown().setVisible(false);
}

/// What the plotting library takes for a range.
static AxisRange withinLimits(const AxisRange& range)
{
    constexpr double kMost = 1e249;
    return {std::clamp(range.minimum, -kMost, kMost), std::clamp(range.maximum, -kMost, kMost)};
}

/// The range that was set, else all lines along an axis with a margin; nothing when there is none.
AxisRange XyChart::home(const Direction& direction, std::size_t number) const
{
    const AxisLook& look = direction.axes[number].look;
    return look.range.minimum < look.range.maximum ? look.range
                                                   : fitted(direction, number, nullptr);
}

/// All lines along an axis with a margin, or those of some maps; nothing when there is none.
AxisRange XyChart::fitted(const Direction& direction, std::size_t number,
                          const host::NumberSet* maps) const
{
    constexpr double kMargin = 0.05;
    const AxisLook& look = direction.axes[number].look;
    LineBox box;
    for (const auto& [key, placed] : ink().shapes())
        if (ink().isShown(key) && (!maps || maps->contains(static_cast<std::uint32_t>(key.map)))
            && (direction.isFirst ? placed.axes.first : placed.axes.second) == number)
            box.add(placed.shape->bounds());
    if (box.isEmpty())
        return {};
    const double minimum = direction.isFirst ? box.left : box.low;
    const double maximum = direction.isFirst ? box.right : box.high;
    const double size = maximum - minimum;
    if (look.isLogarithmic) {
        const double margin = size > 0.0 ? kMargin * size : 0.5;
        return withinLimits({std::pow(10.0, minimum - margin), std::pow(10.0, maximum + margin)});
    }
    const double margin = size > 0.0 ? kMargin * size : std::max(0.5, kMargin * std::abs(maximum));
    return withinLimits({minimum - margin, maximum + margin});
}

ChartRange XyChart::home(const AxisRange&) const
{
    ChartRange range;
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        range.first[i] = home(m_first, i);
        range.second[i] = home(m_second, i);
    }
    return range;
}

void XyChart::fit(const AxisRange&)
{
    for (Direction* const direction : {&m_first, &m_second})
        for (XyAxis& axis : direction->axes)
            axis.hasRange = false;
    updateAxes(true);
}

ChartRange XyChart::range() const
{
    ChartRange result;
    const auto take = [](const Direction& direction, auto& ranges) {
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            const QCPRange range = direction.axes[i].shown().range();
            if (direction.axes[i].hasRange)
                ranges[i] = {range.lower, range.upper};
        }
    };
    take(m_first, result.first);
    take(m_second, result.second);
    return result;
}

void XyChart::setRange(const ChartRange& range)
{
    const auto put = [](Direction& direction, const auto& ranges) {
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            XyAxis& axis = direction.axes[i];
            const AxisRange& given = ranges[i];
            if (given.minimum < given.maximum
                && (!axis.look.isLogarithmic || given.minimum > 0.0)) {
                axis.shown().setRange(given.minimum, given.maximum);
                axis.hasRange = true;
            }
        }
    };
    put(m_first, range.first);
    put(m_second, range.second);
}

/// As the axis writes it, but to the pixel.
static QString valueText(const XyAxis& axis, double value)
{
    const double seen = axis.look.isLogarithmic ? 0.0 : axis.shown().range().size();
    const QString text = axis.look.isOfInstants && std::abs(value) < 1e12
        ? QDateTime::fromMSecsSinceEpoch(std::llround(1000.0 * value), Qt::UTC)
              .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
        : QString::number(withoutNoise(value, seen), 'g', 6);
    return axis.look.name.isEmpty() ? text : QStringLiteral("%1 = %2").arg(axis.look.name, text);
}

/// Of all axes that are seen, from the first on.
QString XyChart::valuesAt(const QPointF& pixel) const
{
    QStringList texts;
    if (!m_box->rect().contains(pixel.toPoint()))
        return {};
    const auto add = [&](const Direction& direction, double place) {
        for (const XyAxis& axis : direction.axes)
            if (axis.shown().visible())
                texts << valueText(axis, axis.shown().pixelToCoord(place));
    };
    add(m_first, pixel.x());
    add(m_second, pixel.y());
    return texts.join(QStringLiteral(", "));
}

std::optional<ChartRange> XyChart::rangeIn(const QRectF& pixels) const
{
    ChartRange result = range();
    const auto take = [](const Direction& direction, auto& ranges, double one, double other) {
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            const QCPAxis& axis = direction.axes[i].shown();
            const auto [low, high] =
                std::minmax({axis.pixelToCoord(one), axis.pixelToCoord(other)});
            if (ranges[i].minimum < ranges[i].maximum)
                ranges[i] = withinLimits({low, high});
        }
    };
    take(m_first, result.first, pixels.left(), pixels.right());
    take(m_second, result.second, pixels.top(), pixels.bottom());
    return result;
}

std::optional<ChartRange> XyChart::rangeOf(const host::NumberSet& maps) const
{
    ChartRange result;
    bool hasAny = false;
    const auto take = [&](const Direction& direction, auto& ranges) {
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            ranges[i] = fitted(direction, i, &maps);
            hasAny = hasAny || ranges[i].minimum < ranges[i].maximum;
        }
    };
    take(m_first, result.first);
    take(m_second, result.second);
    return hasAny ? std::optional(result) : std::nullopt;
}

ChartView XyChart::view() const
{
    ChartView view;
    for (std::size_t i = 0; i < kAxisCount; ++i) {
        view.first[i] = scaleOf(m_first.axes[i].shown());
        view.second[i] = scaleOf(m_second.axes[i].shown());
    }
    return view;
}

std::unique_ptr<LineChart> makeXyChart(QCustomPlot& plot)
{
    return std::make_unique<XyChart>(plot);
}

} // namespace corvala::plot
