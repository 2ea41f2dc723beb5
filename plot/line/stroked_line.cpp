// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/stroked_line.h"

#include "plot/line/cover_grid.h"

#include "plot/line/line_tracer.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <optional>

namespace corvala::plot {

namespace {

/// Shares of a segment that lie in a box, from 0 to 1; empty when none does.
std::optional<std::pair<double, double>> clipped(const LineSegment& segment, const LineBox& box)
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
class Stroker : public ShapeDrawing, private SegmentSink
{
public:
    Stroker(const InkSheet& sheet, const StrokedLine& line, const LineView& view);

    bool step() override;
    void addTo(QImage& picture) const override
    {
        m_sheet.mask.paint(picture, m_line.stroke().color.rgb());
    }
    double share() const override;
    bool isSimplified() const override { return m_isThinned; }

private:
    void add(const LineSegment& segment) override;
    bool isTooDense(const LineView& view) const;
    void addDashes(const LineSegment& segment, double first, double last);
    StrokeEnd jointBefore(const LineSegment& segment) const;

    InkSheet m_sheet;
    const StrokedLine& m_line;
    LineBox m_visible; ///< with all from where strokes reach into it
    double m_width;
    std::vector<double> m_pattern; ///< empty for a solid line
    double m_period = 0.0;
    bool m_isThinned = false;
    std::vector<double> m_lengths;
    std::optional<LineTracer> m_tracer;
    std::optional<LineSegment> m_before;
};

Stroker::Stroker(const InkSheet& sheet, const StrokedLine& line, const LineView& view)
    : m_sheet(sheet)
    , m_line(line)
    , m_width(line.stroke().width * sheet.ratio)
{
    constexpr double kShortestPeriod = 2.0; // of which strokes and gaps can be told apart
    LineView reached = view;
    reached.visible = view.visible.grown(m_width + 2.0);
    m_isThinned = isTooDense(reached);
    if (m_isThinned)
        reached.visible = view.visible;
    m_visible = reached.visible;
    for (const double part : line.stroke().pattern) {
        m_pattern.push_back(part * sheet.ratio);
        m_period += part * sheet.ratio;
    }
    if (m_isThinned || m_period < kShortestPeriod)
        m_pattern.clear();
    if (!m_pattern.empty())
        m_lengths = line.points().lengths(view);
    m_tracer.emplace(line.points(), reached, m_lengths);
}

bool Stroker::isTooDense(const LineView& view) const
{
    const LineBox& box = view.visible;
    const double most = std::hypot(box.right - box.left, box.high - box.low) + m_width;
    if (static_cast<double>(m_line.points().size()) * most * m_width <= StrokedLine::kMostInk)
        return false;
    InkMeter meter(view.visible, m_width);
    const std::vector<double> noLengths;
    LineTracer tracer(m_line.points(), view, noLengths);
    while (meter.ink() <= StrokedLine::kMostInk && tracer.step(meter)) { }
    return meter.ink() > StrokedLine::kMostInk;
}

bool Stroker::step()
{
    constexpr int kSteps = 8;
    for (int i = 0; i < kSteps; ++i) {
        if (!m_tracer->step(*this)) {
            addTo(m_sheet.picture);
            m_sheet.mask.clear();
            return false;
        }
    }
    return true;
}

double Stroker::share() const
{
    const auto size = static_cast<double>(std::max<std::size_t>(m_line.points().size(), 1));
    return static_cast<double>(m_tracer->position()) / size;
}

void Stroker::add(const LineSegment& segment)
{
    if (const auto seen = clipped(segment, m_visible)) {
        const QPointF way = segment.to - segment.from;
        if (m_isThinned)
            m_sheet.mask.addThin(segment.from + seen->first * way,
                                 segment.from + seen->second * way);
        else if (segment.from == segment.to)
            m_sheet.mask.add(segment.from, segment.to, m_line.stroke().dot * m_sheet.ratio,
                             StrokeEnd::Round, StrokeEnd::Round);
        else if (m_pattern.empty())
            m_sheet.mask.add(segment.from, segment.to, m_width, StrokeEnd::Round, StrokeEnd::Round);
        else
            addDashes(segment, seen->first, seen->second);
    }
    m_before = segment;
}

/// How a stroke goes on that comes round a corner: round, where the corner would show a notch.
StrokeEnd Stroker::jointBefore(const LineSegment& segment) const
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
void Stroker::addDashes(const LineSegment& segment, double first, double last)
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
            m_sheet.mask.add(segment.from + way * (at / length),
                             segment.from + way * (std::min(next, end) / length), m_width,
                             at == 0.0 && phase > 0.0 ? jointBefore(segment) : StrokeEnd::Flat,
                             next > end ? StrokeEnd::Joined : StrokeEnd::Flat);
        }
        at = next;
        phase = 0.0;
        part = (part + 1) % m_pattern.size();
    }
}

/// Joins segments to a path; single points stand beside it.
class PathSink : public SegmentSink
{
public:
    void add(const LineSegment& segment) override
    {
        if (segment.from == segment.to) {
            m_points.push_back(segment.from);
            return;
        }
        if (m_path.isEmpty() || m_path.currentPosition() != segment.from)
            m_path.moveTo(segment.from);
        m_path.lineTo(segment.to);
    }
    const QPainterPath& path() const { return m_path; }
    const std::vector<QPointF>& points() const { return m_points; }

private:
    std::vector<QPointF> m_points;
    QPainterPath m_path;
};

} // namespace

void StrokedLine::cover(CoverGrid& grid, const LineView& view) const
{
    const auto pixel = [&](std::size_t point) {
        return view.pixel(m_points->x(point), m_points->y(point));
    };
    grid.addRuns(
        *m_points, view, [](const LineBox& box) { return box; },
        [&](std::size_t point) {
            const std::size_t next = std::min(point + 1, m_points->size() - 1);
            grid.add(pixel(point), pixel(m_points->isFinite(next) ? next : point));
        });
}

std::unique_ptr<ShapeDrawing> StrokedLine::begin(const InkSheet& sheet, const LineView& view) const
{
    return std::make_unique<Stroker>(sheet, *this, view);
}

void StrokedLine::paint(QPainter& painter, const LineView& view) const
{
    constexpr double kFine = 0.1; // pixels; a page is looked at closer than a screen
    LineView fine = view;
    fine.visible = view.visible.grown(m_stroke.width + 2.0);
    fine.resolution = kFine;
    PathSink sink;
    const std::vector<double> noLengths;
    LineTracer tracer(*m_points, fine, noLengths);
    while (tracer.step(sink)) { }
    const bool isSolid = m_stroke.pattern.empty();
    QPen pen(m_stroke.color, m_stroke.width, Qt::SolidLine, isSolid ? Qt::RoundCap : Qt::FlatCap,
             Qt::RoundJoin);
    QVector<qreal> dashes;
    for (const double part : m_stroke.pattern)
        dashes.append(part / m_stroke.width);
    if (!isSolid)
        pen.setDashPattern(dashes);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(sink.path());
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_stroke.color);
    for (const QPointF& point : sink.points())
        painter.drawEllipse(point, m_stroke.dot / 2.0, m_stroke.dot / 2.0);
}

} // namespace corvala::plot
