// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/error_bars.h"

#include "plot/line/cover_grid.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

namespace {

enum End : std::size_t { Left, Right, Low, High };

using Strokes = std::vector<std::pair<QPointF, QPointF>>;

/// A place of the plane in pixels; what lies beyond everything ends at the edge of the view, which
/// is given for the values below and above all.
double pixelOf(const LineScale& scale, double place, double below, double above)
{
    if (std::isfinite(place))
        return std::clamp(scale(place), std::min(below, above), std::max(below, above));
    const bool isBelow = std::signbit(place);
    return isBelow == (scale.scale > 0.0) ? std::min(below, above) : std::max(below, above);
}

class BarDrawing : public ShapeDrawing
{
public:
    BarDrawing(const InkSheet& sheet, const ErrorBars& bars, const LineView& view)
        : m_sheet(sheet)
        , m_bars(bars)
        , m_view(view)
        , m_points(bars.points())
        , m_walker(m_points, everything(view), 0.0)
    {
        m_points.spacing.step *= m_points.spacing.isByDistance ? sheet.ratio : 1.0;
    }

    bool step() override
    {
        constexpr std::size_t kPoints = 2000;
        constexpr int kBars = 500;
        const ErrorBarStyle& style = m_bars.style();
        const double width = style.width * m_sheet.ratio;
        for (int i = 0; i < kBars && !m_walker.isAtEnd(); ++i) {
            const auto point = m_walker.nextOf(kPoints);
            if (!point)
                continue;
            for (const auto& [from, to] : m_bars.strokes(*point, m_view, m_sheet.ratio))
                m_sheet.mask.add(from, to, width, StrokeEnd::Flat, StrokeEnd::Flat);
        }
        if (!m_walker.isAtEnd())
            return true;
        addTo(m_sheet.picture);
        m_sheet.mask.clear();
        return false;
    }
    void addTo(QImage& picture) const override
    {
        m_sheet.mask.paint(picture, m_bars.style().color.rgb());
    }
    double share() const override { return m_walker.share(); }

    /// A bar may be seen whose point is not.
    static LineView everything(LineView view)
    {
        constexpr double kFar = 1e12;
        view.visible = {-kFar, kFar, -kFar, kFar};
        return view;
    }

private:
    InkSheet m_sheet;
    const ErrorBars& m_bars;
    LineView m_view;
    MarkedPoints m_points;
    MarkWalker m_walker;
};

} // namespace

Strokes ErrorBars::strokes(std::size_t point, const LineView& view, double ratio) const
{
    const double size = m_style.capSize * ratio;
    const QPointF middle = view.pixel(m_points.places->x(point), m_points.places->y(point));
    const LineBox& seen = view.visible;
    const double beyond = 2.0 + size + m_style.width * ratio; // where caps are not seen
    Strokes strokes;
    const auto add = [&](double from, double to, bool isUpright) {
        const auto at = [&](double along, double across) {
            return isUpright ? QPointF(middle.x() + across, along)
                             : QPointF(along, middle.y() + across);
        };
        if (from == to)
            return;
        strokes.emplace_back(at(from, 0.0), at(to, 0.0));
        const double place = isUpright ? middle.y() : middle.x();
        for (const double end : {from, to})
            if (size > 0.0 && end != place)
                strokes.emplace_back(at(end, -size / 2.0), at(end, size / 2.0));
    };
    const auto end = [&](End which, const LineScale& scale, double below, double above) {
        return pixelOf(scale, m_ends[which][point], below - beyond, above + beyond);
    };
    if (!std::isnan(m_ends[Left][point]))
        add(end(Left, view.x, seen.left, seen.right), end(Right, view.x, seen.left, seen.right),
            false);
    if (!std::isnan(m_ends[Low][point]))
        add(end(Low, view.y, seen.low, seen.high), end(High, view.y, seen.low, seen.high), true);
    return strokes;
}

LineBox ErrorBars::bounds() const
{
    LineBox box;
    for (std::size_t point = 0; point < m_points.places->size(); ++point) {
        if (!m_points.places->isFinite(point))
            continue;
        for (const End across : {Left, Right}) {
            for (const End up : {Low, High}) {
                const double x = m_ends[across][point];
                const double y = m_ends[up][point];
                if (std::isfinite(x) && std::isfinite(y))
                    box.add(x, y);
            }
        }
    }
    return box;
}

double ErrorBars::distance(const LineView& view, const QPointF& pixel, double limit) const
{
    MarkWalker walker(m_points, BarDrawing::everything(view), 0.0);
    while (const auto point = walker.next()) {
        for (const auto& [from, to] : strokes(*point, view))
            limit = std::min(limit, distanceToSegment(pixel, from, to));
    }
    return limit;
}

/// The ends of bars are in no boxes of runs: of many bars, some are looked at.
void ErrorBars::cover(CoverGrid& grid, const LineView& view) const
{
    constexpr std::size_t kMost = 10'000;
    for (std::size_t point = 0; point < places().size(); point += places().size() / kMost + 1)
        if (places().isFinite(point))
            for (const auto& [from, to] : strokes(point, view))
                grid.add(from, to);
}

std::unique_ptr<ShapeDrawing> ErrorBars::begin(const InkSheet& sheet, const LineView& view) const
{
    return std::make_unique<BarDrawing>(sheet, *this, view);
}

void ErrorBars::paint(QPainter& painter, const LineView& view) const
{
    painter.setPen(QPen(m_style.color, m_style.width, Qt::SolidLine, Qt::FlatCap));
    MarkWalker walker(m_points, BarDrawing::everything(view), 0.0);
    while (const auto point = walker.next())
        for (const auto& [from, to] : strokes(*point, view))
            painter.drawLine(from, to);
}

} // namespace corvala::plot
