// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/bar_chart.h"

#include "plot/line/cover_grid.h"

#include "plot/line/marked_points.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

namespace {

class BarChartDrawing : public ShapeDrawing
{
public:
    BarChartDrawing(const InkSheet& sheet, const BarChart& chart, const LineView& view)
        : m_sheet(sheet)
        , m_chart(chart)
        , m_view(view)
        , m_ends(view.visible, chart.style().width * sheet.ratio)
    {
    }

    bool step() override
    {
        constexpr std::size_t kPoints = 500;
        const std::size_t end = std::min(m_next + kPoints, m_chart.places().size());
        const double ratio = m_sheet.ratio;
        QPainter painter(&m_sheet.picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(ratio, ratio);
        for (; m_next < end; ++m_next) {
            const QRectF bar = m_chart.bar(m_next, m_view, ratio);
            if (!bar.isNull() && m_ends.isNew(valueEnd(bar)))
                m_chart.style().paint(painter, {bar.topLeft() / ratio, bar.size() / ratio});
        }
        return m_next < m_chart.places().size();
    }
    double share() const override
    {
        return static_cast<double>(m_next)
            / static_cast<double>(std::max<std::size_t>(m_chart.places().size(), 1));
    }

private:
    /// Bars from one line that end at the same place show the same.
    QPointF valueEnd(const QRectF& bar) const
    {
        const QPointF value = m_view.pixel(m_chart.places().x(m_next), m_chart.places().y(m_next));
        return m_chart.style().isUpright ? QPointF(bar.center().x(), value.y())
                                         : QPointF(value.x(), bar.center().y());
    }

    InkSheet m_sheet;
    const BarChart& m_chart;
    LineView m_view;
    MarkPlaces m_ends;
    std::size_t m_next = 0;
};

} // namespace

void BarStyle::paint(QPainter& painter, const QRectF& bar) const
{
    painter.setPen(QPen(line, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.drawRect(bar);
}

double BarChart::base(const LineView& view) const
{
    const LineScale& scale = m_style.isUpright ? view.y : view.x;
    constexpr double kFar = 1e12; // where 0 of a logarithmic axis is
    return m_hasZero ? scale(0.0) : scale.scale > 0.0 ? -kFar : kFar;
}

double BarChart::leastDistance() const
{
    double least = 0.0;
    for (std::size_t i = 1; i < m_places->size() && m_style.together > 1; ++i) {
        const double distance = m_style.isUpright ? std::abs(m_places->x(i) - m_places->x(i - 1))
                                                  : std::abs(m_places->y(i) - m_places->y(i - 1));
        if (distance > 0.0 && (least == 0.0 || distance < least))
            least = distance;
    }
    return least;
}

double BarChart::shift(const LineView& view, double ratio) const
{
    const LineScale& scale = m_style.isUpright ? view.x : view.y;
    const double room = std::abs(m_apart * scale.scale) / m_style.together;
    const double width = m_style.width * ratio;
    return m_style.turn * (m_apart > 0.0 ? std::min(width, room) : width);
}

QRectF BarChart::bar(std::size_t point, const LineView& view, double ratio) const
{
    const double width = m_style.width * ratio;
    const double beyond = 2.0 + m_style.lineWidth * ratio; // where outlines are not seen
    if (!m_places->isFinite(point))
        return {};
    const QPointF value = view.pixel(m_places->x(point), m_places->y(point));
    const LineBox& seen = view.visible;
    const bool isUpright = m_style.isUpright;
    const double first = (isUpright ? seen.low : seen.left) - beyond;
    const double last = (isUpright ? seen.high : seen.right) + beyond;
    const double zero = std::clamp(base(view), first, last);
    const double end = std::clamp(isUpright ? value.y() : value.x(), first, last);
    const double shift = this->shift(view, ratio);
    const QRectF bar = isUpright
        ? QRectF(QPointF(value.x() - width / 2.0, zero), QPointF(value.x() + width / 2.0, end))
        : QRectF(QPointF(zero, value.y() - width / 2.0), QPointF(end, value.y() + width / 2.0));
    const QRectF shown =
        bar.normalized().translated(isUpright ? shift : 0.0, isUpright ? 0.0 : shift);
    const QRectF all(QPointF(seen.left, seen.low), QPointF(seen.right, seen.high));
    const QRectF reached = all.adjusted(-beyond, -beyond, beyond, beyond);
    return shown.right() < reached.left() || shown.left() > reached.right()
            || shown.bottom() < reached.top() || shown.top() > reached.bottom()
        ? QRectF()
        : shown;
}

LineBox BarChart::bounds() const
{
    LineBox box = m_places->bounds();
    if (!box.isEmpty() && m_hasZero)
        box.add(m_style.isUpright ? box.left : 0.0, m_style.isUpright ? 0.0 : box.low);
    return box;
}

double BarChart::distance(const LineView& view, const QPointF& pixel, double limit) const
{
    for (std::size_t point = 0; point < m_places->size() && limit > 0.0; ++point) {
        const QRectF shown = bar(point, view);
        if (shown.isNull())
            continue;
        const double across = std::max({shown.left() - pixel.x(), pixel.x() - shown.right(), 0.0});
        const double up = std::max({shown.top() - pixel.y(), pixel.y() - shown.bottom(), 0.0});
        limit = std::min(limit, std::hypot(across, up));
    }
    return limit;
}

void BarChart::cover(CoverGrid& grid, const LineView& view) const
{
    const double across = m_style.width / 2.0 + std::abs(shift(view, 1.0));
    const double zero = base(view);
    const auto reach = [&](LineBox box) {
        if (m_style.isUpright)
            return LineBox {box.left - across, box.right + across, std::min(box.low, zero),
                            std::max(box.high, zero)};
        return LineBox {std::min(box.left, zero), std::max(box.right, zero), box.low - across,
                        box.high + across};
    };
    grid.addRuns(*m_places, view, reach, [&](std::size_t point) {
        LineBox value;
        const QPointF pixel = view.pixel(m_places->x(point), m_places->y(point));
        value.add(pixel.x(), pixel.y());
        grid.add(reach(value));
    });
}

std::unique_ptr<ShapeDrawing> BarChart::begin(const InkSheet& sheet, const LineView& view) const
{
    return std::make_unique<BarChartDrawing>(sheet, *this, view);
}

void BarChart::paint(QPainter& painter, const LineView& view) const
{
    for (std::size_t point = 0; point < m_places->size(); ++point) {
        const QRectF shown = bar(point, view);
        if (!shown.isNull())
            m_style.paint(painter, shown);
    }
}

} // namespace corvala::plot
