// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_tracer.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

LineTracer::LineTracer(const Polyline& line, const LineView& view,
                       const std::vector<double>& lengths)
    : m_line(line)
    , m_view(view)
    , m_lengths(lengths)
{
}

double LineTracer::lengthAt(std::size_t point) const
{
    return m_lengths.empty() ? 0.0 : m_lengths[point / Polyline::kRun];
}

void LineTracer::begin(const QPointF& at, double length)
{
    m_extent = {at, at, {}, length, length};
    m_extent.box.add(at.x(), at.y());
    m_isDown = true;
}

/// Draws the extent: from its first point by way of the extremes to its last.
void LineTracer::flush(SegmentSink& sink)
{
    if (!m_isDown)
        return;
    const LineBox& box = m_extent.box;
    const QPointF& first = m_extent.first;
    const QPointF& last = m_extent.last;
    const bool isColumn = box.right - box.left <= box.high - box.low;
    double near = isColumn ? box.low : box.left;
    double far = isColumn ? box.high : box.right;
    const double start = isColumn ? first.y() : first.x();
    if (far - start < start - near)
        std::swap(near, far);
    const QPointF one = isColumn ? QPointF(first.x(), near) : QPointF(near, first.y());
    const QPointF other = isColumn ? QPointF(last.x(), far) : QPointF(far, last.y());
    QPointF at = first;
    double length = m_extent.firstLength;
    for (const QPointF& to : {one, other, last}) {
        if (to == at)
            continue;
        sink.add({at, to, length});
        m_hasDrawn = true;
        length += std::hypot(to.x() - at.x(), to.y() - at.y());
        at = to;
    }
}

/// Ends the piece of line that it has come along.
void LineTracer::lift(SegmentSink& sink)
{
    flush(sink);
    if (m_isDown && !m_hasDrawn)
        sink.add({m_extent.first, m_extent.first, m_extent.firstLength});
    m_isDown = m_hasDrawn = false;
}

/// Adds a run that leads from the end of the extent to a point; false when it shows more than an
/// extent can tell.
bool LineTracer::extend(const LineBox& run, const QPointF& to, double length, SegmentSink& sink)
{
    LineBox joined = run;
    joined.add(m_extent.box);
    if (!joined.isThin(m_view.resolution)) {
        joined = run;
        joined.add(m_extent.last.x(), m_extent.last.y());
        if (!joined.isThin(m_view.resolution))
            return false;
        flush(sink);
        begin(m_extent.last, m_extent.lastLength);
    }
    m_extent.box = joined;
    m_extent.last = to;
    m_extent.lastLength = length;
    return true;
}

bool LineTracer::skipOrShrink(std::size_t level, SegmentSink& sink)
{
    const std::size_t number = (m_next / Polyline::kRun) >> level;
    const Polyline::Run& run = m_line.level(level)[number];
    const std::size_t end = m_line.firstPoint(level, number + 1);
    const LineBox box = m_view.pixels(run.box);
    if (run.box.isEmpty() || !box.meets(m_view.visible)) {
        lift(sink);
    } else {
        if (!run.isWhole)
            return false;
        if (!m_isDown)
            begin(m_view.pixel(m_line.x(m_next), m_line.y(m_next)), lengthAt(m_next));
        if (!extend(box, m_view.pixel(m_line.x(end), m_line.y(end)), lengthAt(end), sink))
            return false;
    }
    m_next = end;
    return true;
}

/// Follows the points of a lowest run one by one.
void LineTracer::walk(SegmentSink& sink)
{
    const std::size_t end = m_line.firstPoint(0, m_next / Polyline::kRun + 1);
    for (std::size_t point = m_next; point <= end; ++point) {
        if (!m_line.isFinite(point)) {
            lift(sink);
            continue;
        }
        const QPointF to = m_view.pixel(m_line.x(point), m_line.y(point));
        if (!m_isDown) {
            begin(to, point == m_next ? lengthAt(point) : 0.0);
            continue;
        }
        const QPointF from = m_extent.last;
        const double before = m_extent.lastLength;
        const double length = before + std::hypot(to.x() - from.x(), to.y() - from.y());
        LineBox box;
        box.add(to.x(), to.y());
        if (!extend(box, to, length, sink)) {
            flush(sink);
            sink.add({from, to, before});
            m_hasDrawn = true;
            begin(to, length);
        }
    }
    m_next = end;
}

bool LineTracer::step(SegmentSink& sink)
{
    if (m_next + 1 >= m_line.size()) {
        if (m_line.size() == 1) // no run leads to it
            walk(sink);
        lift(sink);
        return false;
    }
    const std::size_t run = m_next / Polyline::kRun;
    std::size_t level = 0;
    while (level + 1 < m_line.levelCount() && run % (std::size_t(2) << level) == 0)
        ++level;
    while (!skipOrShrink(level, sink)) {
        if (level-- == 0) {
            walk(sink);
            break;
        }
    }
    return true;
}

} // namespace corvala::plot
