// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>

#include <cstddef>
#include <limits>
#include <vector>

namespace corvala::plot {

/// A closed range of both coordinates; empty until something is added.
struct LineBox
{
    double left = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return left > right; }
    void add(double x, double y);
    void add(const LineBox& other);
    bool meets(const LineBox& other) const;
    /// The same with so much more on each side.
    LineBox grown(double by) const { return {left - by, right + by, low - by, high + by}; }
    /// Whether it is at most this wide, or this high.
    bool isThin(double width) const;
};

/// From a pixel to the nearest one of a segment.
double distanceToSegment(const QPointF& pixel, const QPointF& from, const QPointF& to);

/// How one coordinate becomes pixels: `value` lies at `pixel`, and a unit is `scale` pixels long.
struct LineScale
{
    double value = 0.0;
    double pixel = 0.0;
    double scale = 1.0;

    double operator()(double coordinate) const;
};

/// How the plane of a line becomes pixels, and what of it is seen.
struct LineView
{
    LineScale x;
    LineScale y;
    LineBox visible; ///< pixels; nothing outside need be drawn
    double resolution = 0.5; ///< pixels that need not be told apart

    QPointF pixel(double across, double up) const { return {x(across), y(up)}; }
    LineBox pixels(const LineBox& box) const;
};

/// Points that are joined in their order; a point that is not finite breaks the line. Knows the
/// boxes of ever longer runs of its points, so that runs which a picture cannot show in detail cost
/// nothing.
class Polyline
{
public:
    /// Points in a run of the lowest level; the runs of each level up are twice as long. Runs share
    /// the points between them.
    static constexpr std::size_t kRun = 32;

    struct Run
    {
        LineBox box; ///< of the finite points
        bool isWhole = true; ///< all points are finite
    };

    Polyline() = default;
    /// Both vectors have one number for each point.
    Polyline(std::vector<double> x, std::vector<double> y);

    std::size_t size() const { return m_x.size(); }
    double x(std::size_t point) const { return m_x[point]; }
    double y(std::size_t point) const { return m_y[point]; }
    bool isFinite(std::size_t point) const;

    /// From single runs up to the whole line; none for a line without points.
    std::size_t levelCount() const { return m_levels.size(); }
    const std::vector<Run>& level(std::size_t number) const { return m_levels[number]; }
    /// The first point of a run, or the end of the run before.
    std::size_t firstPoint(std::size_t level, std::size_t run) const;
    LineBox bounds() const;

    /// Pixels between the line and a pixel, when less than `limit`, else `limit`.
    double distance(const LineView& view, const QPointF& pixel, double limit) const;
    /// Length in pixels from the last break to the first point of every lowest run.
    std::vector<double> lengths(const LineView& view) const;

private:
    void nearest(const LineView& view, std::size_t level, std::size_t run, const QPointF& pixel,
                 double& limit) const;

    std::vector<double> m_x;
    std::vector<double> m_y;
    std::vector<std::vector<Run>> m_levels;
};

} // namespace corvala::plot
