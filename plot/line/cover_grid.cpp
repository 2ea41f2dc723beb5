// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/cover_grid.h"

#include <algorithm>

namespace corvala::plot {

/// Where a coordinate is within two limits, on its way from one value to another: shares of the
/// way.
static void clip(double from, double to, double low, double high, double& begin, double& end)
{
    const double way = to - from;
    if (way == 0.0) {
        if (from < low || from > high)
            end = -1.0;
        return;
    }
    const auto [first, last] = std::minmax({(low - from) / way, (high - from) / way});
    begin = std::max(begin, first);
    end = std::min(end, last);
}

void CoverGrid::addSegment(const QPointF& from, const QPointF& to)
{
    constexpr int kSteps = 2 * kCells;
    double begin = 0.0;
    double end = 1.0;
    clip(from.x(), to.x(), m_box.left(), m_box.right(), begin, end);
    clip(from.y(), to.y(), m_box.top(), m_box.bottom(), begin, end);
    for (int i = 0; i <= kSteps && begin <= end; ++i) {
        const QPointF at = from + (begin + (end - begin) * i / kSteps) * (to - from);
        const auto cell = [](double place, double length) {
            return static_cast<std::size_t>(
                std::clamp(static_cast<int>(place / length * kCells), 0, kCells - 1));
        };
        m_isCovered[cell(at.y() - m_box.top(), m_box.height()) * kCells
                    + cell(at.x() - m_box.left(), m_box.width())] = true;
    }
}

void CoverGrid::add(const Polyline& line, const LineView& view, std::size_t step)
{
    for (std::size_t i = 0; i < line.size(); i += step) {
        const std::size_t next = std::min(i + step, line.size() - 1);
        if (!line.isFinite(i))
            continue;
        const QPointF from = view.pixel(line.x(i), line.y(i));
        addSegment(from, line.isFinite(next) ? view.pixel(line.x(next), line.y(next)) : from);
    }
}

int CoverGrid::count() const
{
    return static_cast<int>(std::count(m_isCovered.begin(), m_isCovered.end(), true));
}

} // namespace corvala::plot
