// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/marked_points.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

MarkWalker::MarkWalker(const MarkedPoints& points, const LineView& view, double reach)
    : m_points(points)
    , m_view(view)
{
    m_view.visible = view.visible.grown(reach);
}

QPointF MarkWalker::pixel(std::size_t point) const
{
    return m_view.pixel(m_points.places->x(point), m_points.places->y(point));
}

double MarkWalker::share() const
{
    return static_cast<double>(m_next)
        / static_cast<double>(std::max<std::size_t>(m_points.places->size(), 1));
}

/// Leaves out the points of a lowest run of the polyline that begins here and is not seen.
bool MarkWalker::skipUnseenRun()
{
    const Polyline& places = *m_points.places;
    const std::size_t run = m_next / Polyline::kRun;
    const bool isStart =
        m_next % Polyline::kRun == 0 && places.levelCount() > 0 && run < places.level(0).size();
    if (!isStart || m_points.spacing.isByDistance)
        return false;
    const Polyline::Run& points = places.level(0)[run];
    if (!points.isWhole || m_view.pixels(points.box).meets(m_view.visible))
        return false;
    m_next += Polyline::kRun;
    return true;
}

bool MarkWalker::isMark(std::size_t point)
{
    const Polyline& places = *m_points.places;
    if (!places.isFinite(point)) {
        // Between runs, and where a value is missing, counting begins anew.
        m_runStart = point + 1;
        m_last.reset();
        return false;
    }
    const MarkSpacing& spacing = m_points.spacing;
    const QPointF at = pixel(point);
    if (spacing.isByDistance) {
        const QPointF way = m_last ? at - *m_last : QPointF();
        if (m_last && std::hypot(way.x(), way.y()) < spacing.step)
            return false;
        m_last = at;
    } else {
        const auto step = static_cast<std::size_t>(std::max(std::round(spacing.step), 1.0));
        if ((point - m_runStart) % step != 0)
            return false;
    }
    const LineBox& seen = m_view.visible;
    return at.x() >= seen.left && at.x() <= seen.right && at.y() >= seen.low && at.y() <= seen.high;
}

std::optional<std::size_t> MarkWalker::nextOf(std::size_t count)
{
    for (std::size_t tried = 0; tried < count && !isAtEnd(); ++tried) {
        if (skipUnseenRun())
            continue;
        const std::size_t point = m_next++;
        if (isMark(point))
            return point;
    }
    return std::nullopt;
}

std::optional<std::size_t> MarkWalker::next()
{
    return nextOf(m_points.places->size() + 1);
}

/// The half of a pixel that a place lies in, as symbols are drawn.
static std::int64_t cellOf(double place)
{
    constexpr double kCells = 2.0; // of a pixel, each way
    return static_cast<std::int64_t>(std::floor(kCells * place));
}

MarkPlaces::MarkPlaces(const LineBox& visible, double reach)
    : MarkPlaces(visible.grown(reach))
{
}

MarkPlaces::MarkPlaces(const LineBox& all)
    : m_left(cellOf(all.left))
    , m_low(cellOf(all.low))
    , m_width(std::max<std::int64_t>(cellOf(all.right) - m_left, 0) + 1)
    , m_height(std::max<std::int64_t>(cellOf(all.high) - m_low, 0) + 1)
    , m_isTaken(static_cast<std::size_t>(m_width * m_height))
{
}

bool MarkPlaces::isNew(const QPointF& pixel)
{
    const std::int64_t column =
        std::clamp<std::int64_t>(cellOf(pixel.x()) - m_left, 0, m_width - 1);
    const std::int64_t row = std::clamp<std::int64_t>(cellOf(pixel.y()) - m_low, 0, m_height - 1);
    const auto number = static_cast<std::size_t>(row * m_width + column);
    const bool isNew = !m_isTaken[number];
    m_isTaken[number] = true;
    return isNew;
}

} // namespace corvala::plot
