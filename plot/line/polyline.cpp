// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/polyline.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvala::plot {

void LineBox::add(double x, double y)
{
    left = std::min(left, x);
    right = std::max(right, x);
    low = std::min(low, y);
    high = std::max(high, y);
}

void LineBox::add(const LineBox& other)
{
    left = std::min(left, other.left);
    right = std::max(right, other.right);
    low = std::min(low, other.low);
    high = std::max(high, other.high);
}

bool LineBox::meets(const LineBox& other) const
{
    return left <= other.right && right >= other.left && low <= other.high && high >= other.low;
}

bool LineBox::isThin(double width) const
{
    return right - left <= width || high - low <= width;
}

double LineScale::operator()(double coordinate) const
{
    // Far enough to leave every picture, near enough for arithmetic.
    constexpr double kFarthest = 1e12;
    return std::clamp((coordinate - value) * scale + pixel, -kFarthest, kFarthest);
}

LineBox LineView::pixels(const LineBox& box) const
{
    LineBox result;
    const QPointF one = pixel(box.left, box.low);
    const QPointF other = pixel(box.right, box.high);
    result.add(one.x(), one.y());
    result.add(other.x(), other.y());
    return result;
}

Polyline::Polyline(std::vector<double> x, std::vector<double> y)
    : m_x(std::move(x))
    , m_y(std::move(y))
{
    if (m_x.empty())
        return;
    m_levels.emplace_back(std::max<std::size_t>((size() + kRun - 2) / kRun, 1));
    for (std::size_t i = 0; i < m_levels[0].size(); ++i) {
        Run& run = m_levels[0][i];
        for (std::size_t point = i * kRun; point <= firstPoint(0, i + 1); ++point) {
            if (isFinite(point))
                run.box.add(m_x[point], m_y[point]);
            else
                run.isWhole = false;
        }
    }
    while (m_levels.back().size() > 1) {
        const std::vector<Run>& below = m_levels.back();
        std::vector<Run> level((below.size() + 1) / 2);
        for (std::size_t i = 0; i < below.size(); ++i) {
            level[i / 2].box.add(below[i].box);
            level[i / 2].isWhole = level[i / 2].isWhole && below[i].isWhole;
        }
        m_levels.push_back(std::move(level));
    }
}

bool Polyline::isFinite(std::size_t point) const
{
    return std::isfinite(m_x[point]) && std::isfinite(m_y[point]);
}

std::size_t Polyline::firstPoint(std::size_t level, std::size_t run) const
{
    return std::min((run << level) * kRun, size() - 1);
}

LineBox Polyline::bounds() const
{
    return m_levels.empty() ? LineBox() : m_levels.back().front().box;
}

double distanceToSegment(const QPointF& pixel, const QPointF& from, const QPointF& to)
{
    const QPointF along = to - from;
    const double square = QPointF::dotProduct(along, along);
    const double share = square > 0.0
        ? std::clamp(QPointF::dotProduct(pixel - from, along) / square, 0.0, 1.0)
        : 0.0;
    const QPointF apart = pixel - from - share * along;
    return std::hypot(apart.x(), apart.y());
}

void Polyline::nearest(const LineView& view, std::size_t level, std::size_t run,
                       const QPointF& pixel, double& limit) const
{
    const LineBox box = view.pixels(m_levels[level][run].box);
    if (m_levels[level][run].box.isEmpty() || pixel.x() < box.left - limit
        || pixel.x() > box.right + limit || pixel.y() < box.low - limit
        || pixel.y() > box.high + limit)
        return;
    if (level > 0) {
        nearest(view, level - 1, 2 * run, pixel, limit);
        if (2 * run + 1 < m_levels[level - 1].size())
            nearest(view, level - 1, 2 * run + 1, pixel, limit);
        return;
    }
    const std::size_t last = firstPoint(0, run + 1);
    for (std::size_t point = firstPoint(0, run); point <= last; ++point) {
        const std::size_t next = point < last && isFinite(point + 1) ? point + 1 : point;
        if (isFinite(point))
            limit = std::min(limit,
                             distanceToSegment(pixel, view.pixel(m_x[point], m_y[point]),
                                               view.pixel(m_x[next], m_y[next])));
    }
}

double Polyline::distance(const LineView& view, const QPointF& pixel, double limit) const
{
    if (!m_levels.empty())
        nearest(view, m_levels.size() - 1, 0, pixel, limit);
    return limit;
}

std::vector<double> Polyline::lengths(const LineView& view) const
{
    std::vector<double> result;
    double length = 0.0;
    for (std::size_t point = 0; point < size(); ++point) {
        if (point > 0 && isFinite(point) && isFinite(point - 1)) {
            const QPointF step =
                view.pixel(m_x[point], m_y[point]) - view.pixel(m_x[point - 1], m_y[point - 1]);
            length += std::hypot(step.x(), step.y());
        } else {
            length = 0.0;
        }
        if (point % kRun == 0)
            result.push_back(length);
    }
    return result;
}

} // namespace corvala::plot
