// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/polyline.h"

#include <QRectF>

#include <array>

namespace corvala::plot {

/// Finds through how much of a rectangle lines run, as cells of a grid over it.
class CoverGrid
{
public:
    static constexpr int kCells = 10; ///< each way

    explicit CoverGrid(const QRectF& box)
        : m_box(box)
    {
    }
    /// Adds what of a line runs through the box, which is in pixels of the view; of its points,
    /// only every so many are looked at.
    void add(const Polyline& line, const LineView& view, std::size_t step);
    int count() const; ///< of cells that a line runs through

private:
    void addSegment(const QPointF& from, const QPointF& to);

    QRectF m_box;
    std::array<bool, kCells * kCells> m_isCovered {};
};

} // namespace corvala::plot
