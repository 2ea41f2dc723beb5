// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/polyline.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace corvala::plot {

/// Which of its points a line map marks.
struct MarkSpacing
{
    bool isByDistance = false;
    double step = 1.0; ///< points, or pixels that marks of a run are apart at least
};

/// Points that may carry marks: places in a plane, in runs, as inPlane makes them of LinePoints.
struct MarkedPoints
{
    std::shared_ptr<const Polyline> places;
    MarkSpacing spacing;
};

/// Finds the marks that a view shows, in their order, at the cost of what it shows where the
/// spacing goes by points.
class MarkWalker
{
public:
    /// `reach` is how far marks extend from their points, in pixels. The points must outlive it.
    MarkWalker(const MarkedPoints& points, const LineView& view, double reach);

    /// The next point with a mark; nothing at the end.
    std::optional<std::size_t> next();
    /// The same, but gives up after some points: the end is reached when isAtEnd says so.
    std::optional<std::size_t> nextOf(std::size_t count);
    bool isAtEnd() const { return m_next >= m_points.places->size(); }
    QPointF pixel(std::size_t point) const;
    double share() const;

private:
    bool skipUnseenRun();
    bool isMark(std::size_t point);

    const MarkedPoints& m_points;
    LineView m_view;
    std::size_t m_next = 0;
    std::size_t m_runStart = 0;
    std::optional<QPointF> m_last; ///< mark of the run
};

/// Remembers where marks were drawn: one more at the same place, to half a pixel, shows nothing.
class MarkPlaces
{
public:
    /// `reach` is how far marks extend from their places, in pixels.
    MarkPlaces(const LineBox& visible, double reach);
    bool isNew(const QPointF& pixel); ///< and remembers it

private:
    explicit MarkPlaces(const LineBox& all);

    // In halves of pixels.
    std::int64_t m_left;
    std::int64_t m_low;
    std::int64_t m_width;
    std::int64_t m_height;
    std::vector<bool> m_isTaken;
};

} // namespace corvala::plot
