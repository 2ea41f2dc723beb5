// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/polyline.h"

namespace corvala::plot {

/// A straight piece of a line, in pixels.
struct LineSegment
{
    QPointF from;
    QPointF to;
    double length = 0.0; ///< of the line up to `from`, from its last break; 0 when not asked for
};

/// Takes the pieces of a line in their order.
class SegmentSink
{
public:
    virtual ~SegmentSink() = default;
    virtual void add(const LineSegment& segment) = 0;
};

/// Follows a line through a picture, at the cost of what the picture shows of it: leaves out what
/// lies outside, and draws points that share a column or row of pixels as their extent; a point
/// that is joined with none, or with equal ones only, is a piece without length. Cut into steps, so
/// that long lines can be drawn in slices.
class LineTracer
{
public:
    /// `lengths` are those of the line in this view, or empty. Line and lengths must outlive it.
    LineTracer(const Polyline& line, const LineView& view, const std::vector<double>& lengths);

    /// Goes on by one run; false at the end of the line.
    bool step(SegmentSink& sink);
    /// The point that it has come to.
    std::size_t position() const { return m_next; }

private:
    /// Points since `first` that share a column or row.
    struct Extent
    {
        QPointF first;
        QPointF last;
        LineBox box;
        double firstLength = 0.0;
        double lastLength = 0.0;
    };

    bool skipOrShrink(std::size_t level, SegmentSink& sink);
    void walk(SegmentSink& sink);
    double lengthAt(std::size_t point) const;
    void begin(const QPointF& at, double length);
    bool extend(const LineBox& box, const QPointF& to, double length, SegmentSink& sink);
    void flush(SegmentSink& sink);
    void lift(SegmentSink& sink);

    const Polyline& m_line;
    LineView m_view;
    const std::vector<double>& m_lengths;
    std::size_t m_next = 0;
    bool m_isDown = false; ///< m_extent ends at the point m_next
    bool m_hasDrawn = false; ///< since it came down
    Extent m_extent;
};

} // namespace corvala::plot
