// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/cover_grid.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

struct CoverGrid::Runs
{
    const Polyline& line;
    const LineView& view;
    const std::function<LineBox(const LineBox&)>& reach;
    const std::function<void(std::size_t)>& addAt;
};

static LineBox boxOf(const QRectF& rectangle)
{
    LineBox box;
    box.add(rectangle.left(), rectangle.top());
    box.add(rectangle.right(), rectangle.bottom());
    return box;
}

static int cellAt(double pixel, double begin, double length)
{
    constexpr int kLast = CoverGrid::kCells - 1;
    const double place = (pixel - begin) / std::max(length, 1.0) * CoverGrid::kCells;
    return static_cast<int>(std::clamp(place, 0.0, static_cast<double>(kLast)));
}

int CoverGrid::column(double pixel) const
{
    return cellAt(pixel, m_area.left(), m_area.width());
}

int CoverGrid::row(double pixel) const
{
    return cellAt(pixel, m_area.top(), m_area.height());
}

std::uint64_t CoverGrid::Cells::row() const
{
    const std::uint64_t upToRight = ~std::uint64_t {0} >> (kCells - 1 - right);
    return upToRight & (~std::uint64_t {0} << left);
}

CoverGrid::Cells CoverGrid::cellsOf(const LineBox& box) const
{
    if (box.isEmpty() || !box.meets(boxOf(m_area)))
        return {};
    return {column(box.left), column(box.right), row(box.low), row(box.high)};
}

bool CoverGrid::isCovered(const Cells& cells) const
{
    for (int row = cells.top; row <= cells.bottom; ++row)
        if (cells.row() & ~m_rows[static_cast<std::size_t>(row)])
            return false;
    return true;
}

void CoverGrid::add(const LineBox& box)
{
    const Cells cells = cellsOf(box);
    for (int row = cells.top; row <= cells.bottom; ++row)
        m_rows[static_cast<std::size_t>(row)] |= cells.row();
}

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

void CoverGrid::add(const QPointF& from, const QPointF& to)
{
    double begin = 0.0;
    double end = 1.0;
    clip(from.x(), to.x(), m_area.left(), m_area.right(), begin, end);
    clip(from.y(), to.y(), m_area.top(), m_area.bottom(), begin, end);
    if (begin > end)
        return;
    const QPointF first = from + begin * (to - from);
    const QPointF way = from + end * (to - from) - first;
    const int steps = 2
        * std::max(std::abs(column(first.x() + way.x()) - column(first.x())),
                   std::abs(row(first.y() + way.y()) - row(first.y())));
    for (int i = 0; i <= steps; ++i) {
        const QPointF at = first + way * i / std::max(steps, 1);
        m_rows[static_cast<std::size_t>(row(at.y()))] |= std::uint64_t {1} << column(at.x());
    }
}

void CoverGrid::addRuns(const Polyline& line, const LineView& view,
                        const std::function<LineBox(const LineBox&)>& reach,
                        const std::function<void(std::size_t)>& addAt)
{
    if (line.levelCount() > 0)
        addRun({line, view, reach, addAt}, line.levelCount() - 1, 0);
}

void CoverGrid::addRun(const Runs& runs, std::size_t level, std::size_t run)
{
    const LineBox& points = runs.line.level(level)[run].box;
    const LineBox box = points.isEmpty() ? points : runs.reach(runs.view.pixels(points));
    const Cells cells = cellsOf(box);
    if (isCovered(cells))
        return;
    if (cells.isOne()) {
        add(box);
        return;
    }
    if (level > 0) {
        for (std::size_t half = 2 * run; half <= 2 * run + 1; ++half)
            if (half < runs.line.level(level - 1).size())
                addRun(runs, level - 1, half);
        return;
    }
    const std::size_t end = runs.line.firstPoint(0, run + 1);
    for (std::size_t point = runs.line.firstPoint(0, run); point <= end; ++point) {
        if (runs.line.isFinite(point))
            runs.addAt(point);
        if (--m_budget < 0)
            return;
    }
}

int CoverGrid::count(const QRectF& box) const
{
    const QSizeF half(m_area.width() / kCells / 2.0, m_area.height() / kCells / 2.0);
    const QRectF middles = box.adjusted(half.width(), half.height(), -half.width(), -half.height());
    const Cells cells = cellsOf(boxOf(middles));
    int covered = 0;
    for (int row = cells.top; row <= cells.bottom; ++row)
        for (int column = cells.left; column <= cells.right; ++column)
            covered += static_cast<int>(m_rows[static_cast<std::size_t>(row)] >> column & 1U);
    return covered;
}

} // namespace corvala::plot
