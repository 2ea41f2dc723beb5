// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/polyline.h"

#include <QRectF>

#include <array>
#include <cstdint>
#include <functional>

namespace corvala::plot {

/// Tells how much of any rectangle in a chart is covered, by the cells of a grid over the chart.
/// Whole runs of points are taken for what they cover together where that is in one cell or covered
/// already.
class CoverGrid
{
public:
    static constexpr int kCells = 64; ///< each way

    /// `area` is that of the chart in pixels.
    explicit CoverGrid(const QRectF& area)
        : m_area(area)
    {
    }
    /// Covers a box in pixels.
    void add(const LineBox& box);
    /// Covers a straight line in pixels.
    void add(const QPointF& from, const QPointF& to);
    /// Covers what stands at the points of a line. `reach` turns the box of some points in pixels
    /// into that of what stands at them; `addAt` adds what stands at a point, or from it to the
    /// next one, where that is finite.
    void addRuns(const Polyline& line, const LineView& view,
                 const std::function<LineBox(const LineBox&)>& reach,
                 const std::function<void(std::size_t)>& addAt);

    /// Of the cells of a box in pixels those that are covered; of cells at its edges, those that
    /// are in it for the greater part.
    int count(const QRectF& box) const;

private:
    /// Cells from the first to the last one, each way.
    struct Cells
    {
        int left = 0;
        int right = -1;
        int top = 0;
        int bottom = -1;
        bool isOne() const { return left == right && top == bottom; }
        std::uint64_t row() const; ///< the bits of a row
    };
    struct Runs;

    int column(double pixel) const;
    int row(double pixel) const;
    Cells cellsOf(const LineBox& box) const; ///< none outside
    bool isCovered(const Cells& cells) const;
    void addRun(const Runs& runs, std::size_t level, std::size_t run);

    QRectF m_area;
    std::array<std::uint64_t, kCells> m_rows {}; ///< a bit for each cell
    std::int64_t m_budget = 100'000; ///< points that are looked at; then the first of each run is
};

} // namespace corvala::plot
