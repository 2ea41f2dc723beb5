// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_ink.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

/// Shares of a segment that lie in a box, from 0 to 1; empty when none does.
static std::optional<std::pair<double, double>> clipped(const LineSegment& segment,
                                                        const LineBox& box)
{
    double first = 0.0;
    double last = 1.0;
    const auto clip = [&](double from, double to, double low, double high) {
        if (from == to) {
            if (from < low || from > high)
                last = -1.0;
            return;
        }
        const double one = (low - from) / (to - from);
        const double other = (high - from) / (to - from);
        first = std::max(first, std::min(one, other));
        last = std::min(last, std::max(one, other));
    };
    clip(segment.from.x(), segment.to.x(), box.left, box.right);
    clip(segment.from.y(), segment.to.y(), box.low, box.high);
    if (first > last)
        return std::nullopt;
    return std::pair(first, last);
}

static LineBox grown(LineBox box, double by)
{
    box.left -= by;
    box.right += by;
    box.low -= by;
    box.high += by;
    return box;
}

/// Pixels that the strokes of a line cover, each as often as it is covered.
class InkMeter : public SegmentSink
{
public:
    InkMeter(const LineBox& visible, double width)
        : m_visible(visible)
        , m_width(width)
    {
    }
    void add(const LineSegment& segment) override
    {
        if (const auto seen = clipped(segment, m_visible)) {
            const QPointF way = (segment.to - segment.from) * (seen->second - seen->first);
            m_ink += (std::hypot(way.x(), way.y()) + m_width) * m_width;
        }
    }
    double ink() const { return m_ink; }

private:
    LineBox m_visible;
    double m_width;
    double m_ink = 0.0;
};

/// Strokes a line piece by piece; lengths in pixels of the picture.
class LineInk::Stroker : public SegmentSink
{
public:
    Stroker(StrokeMask& mask, const Line& line, const LineView& view, double ratio);

    /// Goes on for a while; false when the line is done.
    bool step() { return m_tracer->step(*this); }
    void add(const LineSegment& segment) override;

    bool isThinned() const { return m_isThinned; }
    QRgb color() const { return m_line.stroke.color.rgb(); }
    double share() const; ///< of the line that is done

private:
    bool isTooDense(const LineView& view) const;
    void addDashes(const LineSegment& segment, double first, double last);
    StrokeEnd jointBefore(const LineSegment& segment) const;

    StrokeMask& m_mask;
    const Line& m_line;
    LineBox m_visible; ///< with all from where strokes reach into it
    double m_width;
    std::vector<double> m_pattern; ///< empty for a solid line
    double m_period = 0.0;
    bool m_isThinned = false;
    std::vector<double> m_lengths;
    std::optional<LineTracer> m_tracer;
    std::optional<LineSegment> m_before;
};

LineInk::Stroker::Stroker(StrokeMask& mask, const Line& line, const LineView& view, double ratio)
    : m_mask(mask)
    , m_line(line)
    , m_width(line.stroke.width * ratio)
{
    constexpr double kShortestPeriod = 2.0; // of which strokes and gaps can be told apart
    LineView reached = view;
    reached.visible = grown(view.visible, m_width + 2.0);
    m_isThinned = isTooDense(reached);
    if (m_isThinned)
        reached.visible = view.visible;
    m_visible = reached.visible;
    for (const double part : line.stroke.pattern) {
        m_pattern.push_back(part * ratio);
        m_period += part * ratio;
    }
    if (m_isThinned || m_period < kShortestPeriod)
        m_pattern.clear();
    if (!m_pattern.empty())
        m_lengths = line.points.lengths(view);
    m_tracer.emplace(line.points, reached, m_lengths);
}

bool LineInk::Stroker::isTooDense(const LineView& view) const
{
    const LineBox& box = view.visible;
    const double most = std::hypot(box.right - box.left, box.high - box.low) + m_width;
    if (static_cast<double>(m_line.points.size()) * most * m_width <= kMostInk)
        return false;
    InkMeter meter(view.visible, m_width);
    const std::vector<double> noLengths;
    LineTracer tracer(m_line.points, view, noLengths);
    while (meter.ink() <= kMostInk && tracer.step(meter)) { }
    return meter.ink() > kMostInk;
}

double LineInk::Stroker::share() const
{
    const auto size = static_cast<double>(std::max<std::size_t>(m_line.points.size(), 1));
    return static_cast<double>(m_tracer->position()) / size;
}

void LineInk::Stroker::add(const LineSegment& segment)
{
    if (const auto seen = clipped(segment, m_visible)) {
        const QPointF way = segment.to - segment.from;
        if (m_isThinned)
            m_mask.addThin(segment.from + seen->first * way, segment.from + seen->second * way);
        else if (m_pattern.empty())
            m_mask.add(segment.from, segment.to, m_width, StrokeEnd::Round, StrokeEnd::Round);
        else
            addDashes(segment, seen->first, seen->second);
    }
    m_before = segment;
}

/// How a stroke goes on that comes round a corner: round, where the corner would show a notch.
StrokeEnd LineInk::Stroker::jointBefore(const LineSegment& segment) const
{
    constexpr double kNotch = 1.0; // pixels
    if (!m_before || m_before->to != segment.from)
        return StrokeEnd::Flat;
    const QPointF before = m_before->to - m_before->from;
    const QPointF after = segment.to - segment.from;
    const double lengths = std::hypot(before.x(), before.y()) * std::hypot(after.x(), after.y());
    const double sine = std::abs(before.x() * after.y() - before.y() * after.x()) / lengths;
    const bool turnsBack = QPointF::dotProduct(before, after) < 0.0;
    return turnsBack || sine * m_width / 2.0 > kNotch ? StrokeEnd::Round : StrokeEnd::Joined;
}

/// Draws the strokes of the pattern between two shares of a segment.
void LineInk::Stroker::addDashes(const LineSegment& segment, double first, double last)
{
    const QPointF way = segment.to - segment.from;
    const double length = std::hypot(way.x(), way.y());
    const double end = last * length;
    double at = first * length;
    double phase = std::fmod(segment.length + at, m_period);
    std::size_t part = 0;
    while (part + 1 < m_pattern.size() && phase >= m_pattern[part])
        phase -= m_pattern[part++];
    while (at < end) {
        const double next = at + std::max(m_pattern[part] - phase, 1e-3);
        if (part % 2 == 0) {
            m_mask.add(segment.from + way * (at / length),
                       segment.from + way * (std::min(next, end) / length), m_width,
                       at == 0.0 && phase > 0.0 ? jointBefore(segment) : StrokeEnd::Flat,
                       next > end ? StrokeEnd::Joined : StrokeEnd::Flat);
        }
        at = next;
        phase = 0.0;
        part = (part + 1) % m_pattern.size();
    }
}

LineInk::LineInk() = default;
LineInk::~LineInk() = default;

void LineInk::setLine(std::int64_t map, Polyline line)
{
    m_stroker.reset();
    m_lines[map].points = std::move(line);
    restart();
}

void LineInk::setLook(std::int64_t map, LineStroke stroke, const LineAxes& axes)
{
    Line& line = m_lines.at(map);
    line.stroke = std::move(stroke);
    line.axes = axes;
    restart();
}

void LineInk::remove(std::int64_t map)
{
    m_stroker.reset();
    if (m_lines.erase(map) > 0)
        restart();
}

void LineInk::restart()
{
    m_stroker.reset();
    m_hasWork = m_isStale = !m_picture.isNull();
    m_isCancelled = false;
    m_done = 0;
}

void LineInk::wipe()
{
    m_isStale = false;
    m_mask.clear();
    m_picture.fill(Qt::transparent);
    m_current = 0;
    m_thinned = 0;
}

void LineInk::setView(const ChartView& view, const QSize& size, double ratio)
{
    if (view == m_view && size == m_picture.size() && ratio == m_ratio)
        return;
    m_view = view;
    m_ratio = ratio;
    if (size != m_picture.size()) {
        m_picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
        m_picture.fill(Qt::transparent);
        m_mask.resize(size);
    }
    restart();
}

void LineInk::paintOn(QImage& picture) const
{
    if (m_stroker)
        m_mask.paint(picture, m_stroker->color());
}

bool LineInk::advance(int milliseconds)
{
    constexpr int kSteps = 8; // between looks at the clock
    QElapsedTimer clock;
    clock.start();
    if (m_isStale)
        wipe();
    while (hasWork()) {
        if (!m_stroker) {
            const auto line = m_lines.upper_bound(m_current);
            m_hasWork = line != m_lines.end();
            if (!m_hasWork)
                break;
            m_current = line->first;
            m_stroker = std::make_unique<Stroker>(m_mask, line->second,
                                                  m_view.along(line->second.axes), m_ratio);
            m_thinned += m_stroker->isThinned() ? 1 : 0;
        }
        bool hasMore = true;
        for (int i = 0; i < kSteps && hasMore; ++i)
            hasMore = m_stroker->step();
        if (!hasMore) {
            paintOn(m_picture);
            m_mask.clear();
            m_stroker.reset();
            ++m_done;
        }
        if (milliseconds >= 0 && clock.elapsed() >= milliseconds)
            break;
    }
    return hasWork();
}

std::pair<std::int64_t, std::int64_t> LineInk::progress() const
{
    constexpr int kPieces = 100;
    const auto part = m_stroker ? static_cast<std::int64_t>(kPieces * m_stroker->share()) : 0;
    return {kPieces * m_done + part, kPieces * static_cast<std::int64_t>(m_lines.size())};
}

QImage LineInk::picture() const
{
    QImage picture = m_picture;
    paintOn(picture);
    return picture;
}

std::int64_t LineInk::missingCount() const
{
    return m_isCancelled ? static_cast<std::int64_t>(m_lines.size()) - m_done : 0;
}

std::int64_t LineInk::lineAt(const ChartView& view, const QPointF& pixel, double tolerance) const
{
    std::int64_t nearest = 0;
    for (const auto& [map, line] : m_lines) {
        const double distance = line.points.distance(view.along(line.axes), pixel, tolerance);
        if (distance < tolerance) {
            nearest = map;
            tolerance = distance;
        }
    }
    return nearest;
}

} // namespace corvala::plot
