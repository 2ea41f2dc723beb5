// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/stroke_mask.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

void StrokeMask::resize(const QSize& size)
{
    m_size = size;
    m_tilesOfRow = static_cast<std::size_t>((size.width() + kTile - 1) / kTile);
    const auto rows = static_cast<std::size_t>(size.height());
    m_coverage.assign(m_tilesOfRow * kTile * rows, 0);
    m_tiles.assign(m_tilesOfRow * rows, 0);
}

void StrokeMask::clear()
{
    for (std::size_t tile = 0; tile < m_tiles.size(); ++tile) {
        if (m_tiles[tile] != 0) {
            std::fill_n(m_coverage.begin() + static_cast<std::ptrdiff_t>(tile * kTile), kTile, 0);
            m_tiles[tile] = 0;
        }
    }
}

/// The shape of one stroke, seen by its axis: how far along it and how far from it a pixel is.
class StrokeMask::Stroke
{
public:
    Stroke(const QPointF& from, const QPointF& to, double width, StrokeEnd start, StrokeEnd end);

    /// Narrows [left, right] to the pixels of a row that it may touch; false for none.
    bool isInRow(int y, int& left, int& right) const;
    void cover(int y, int left, int right, std::uint8_t* row) const;
    double top() const { return std::min(m_from.y(), m_to.y()) - m_most; }
    double bottom() const { return std::max(m_from.y(), m_to.y()) + m_most; }

private:
    /// From an end to where nothing is covered any more.
    double beyond(StrokeEnd end) const
    {
        return end == StrokeEnd::Flat ? 0.5 : end == StrokeEnd::Joined ? 1.5 : m_reach;
    }

    QPointF m_from;
    QPointF m_to;
    double m_length;
    double m_reach; ///< from the axis to where nothing is covered any more
    double m_most; ///< the largest of that and the ends
    StrokeEnd m_start;
    StrokeEnd m_end;
    double m_alongX = 1.0; ///< direction of the axis
    double m_alongY = 0.0;
};

StrokeMask::Stroke::Stroke(const QPointF& from, const QPointF& to, double width, StrokeEnd start,
                           StrokeEnd end)
    : m_from(from)
    , m_to(to)
    , m_length(std::hypot(to.x() - from.x(), to.y() - from.y()))
    , m_reach(width / 2.0 + 0.5)
    , m_most(m_reach + 1.5)
    , m_start(start)
    , m_end(end)
{
    if (m_length > 0.0) {
        m_alongX = (to.x() - from.x()) / m_length;
        m_alongY = (to.y() - from.y()) / m_length;
    }
}

/// Narrows [left, right] to where slope * x + offset lies in [lowest, highest].
static void narrow(double slope, double offset, double lowest, double highest, double& left,
                   double& right)
{
    constexpr double kLevel = 1e-12;
    if (std::abs(slope) > kLevel) {
        const double one = (lowest - offset) / slope;
        const double other = (highest - offset) / slope;
        left = std::max(left, std::min(one, other));
        right = std::min(right, std::max(one, other));
    } else if (offset < lowest || offset > highest) {
        right = left - 1.0;
    }
}

bool StrokeMask::Stroke::isInRow(int y, int& left, int& right) const
{
    const double down = y + 0.5 - m_from.y();
    double first = left + 0.5 - m_from.x();
    double last = right + 0.5 - m_from.x();
    narrow(m_alongY, -down * m_alongX, -m_reach, m_reach, first, last);
    narrow(m_alongX, down * m_alongY, -beyond(m_start), m_length + beyond(m_end), first, last);
    if (first > last)
        return false;
    left = static_cast<int>(std::ceil(first + m_from.x() - 0.5));
    right = static_cast<int>(std::floor(last + m_from.x() - 0.5));
    return left <= right;
}

void StrokeMask::Stroke::cover(int y, int left, int right, std::uint8_t* row) const
{
    constexpr float kNever = 1e30F;
    const double down = y + 0.5 - m_from.y();
    const double across = left + 0.5 - m_from.x();
    const auto alongX = static_cast<float>(m_alongX);
    const auto alongY = static_cast<float>(m_alongY);
    const auto apart = static_cast<float>(across * m_alongY - down * m_alongX);
    const auto fromStart = static_cast<float>(across * m_alongX + down * m_alongY);
    const auto fromEnd = static_cast<float>(m_length - across * m_alongX - down * m_alongY);
    const auto reach = static_cast<float>(m_reach);
    const float start = m_start == StrokeEnd::Round ? kNever : static_cast<float>(beyond(m_start));
    const float end = m_end == StrokeEnd::Round ? kNever : static_cast<float>(beyond(m_end));
    for (int i = 0; i <= right - left; ++i) {
        const auto step = static_cast<float>(i);
        const float aside = apart + step * alongY;
        const float past = std::max({0.0F, -fromStart - step * alongX, step * alongX - fromEnd});
        const float covered =
            std::min({1.0F, reach - std::sqrt(aside * aside + past * past),
                      fromStart + step * alongX + start, fromEnd - step * alongX + end});
        const auto value = static_cast<std::uint8_t>(std::max(covered, 0.0F) * 255.0F + 0.5F);
        row[left + i] = std::max(row[left + i], value);
    }
}

void StrokeMask::add(const QPointF& from, const QPointF& to, double width, StrokeEnd start,
                     StrokeEnd end)
{
    if (!std::isfinite(from.x() + to.x()) || !std::isfinite(from.y() + to.y()))
        return;
    const Stroke stroke(from, to, width, start, end);
    const double height = m_size.height() - 1.0;
    const int top = static_cast<int>(std::clamp(stroke.top(), 0.0, height + 1.0));
    const int bottom = static_cast<int>(std::clamp(stroke.bottom(), -1.0, height));
    for (int y = top; y <= bottom; ++y) {
        int left = 0;
        int right = m_size.width() - 1;
        if (!stroke.isInRow(y, left, right))
            continue;
        const std::size_t tiles = static_cast<std::size_t>(y) * m_tilesOfRow;
        stroke.cover(y, left, right, &m_coverage[tiles * kTile]);
        for (int tile = left / kTile; tile <= right / kTile; ++tile)
            m_tiles[tiles + static_cast<std::size_t>(tile)] = 1;
    }
}

void StrokeMask::addThin(const QPointF& from, const QPointF& to)
{
    const QPointF way = to - from;
    const double most = std::max(std::abs(way.x()), std::abs(way.y()));
    const int steps = static_cast<int>(std::ceil(most));
    const QPointF step = way / std::max(steps, 1);
    for (int i = 0; i <= steps; ++i) {
        const auto x = static_cast<std::size_t>(
            std::clamp(from.x() + i * step.x(), 0.0, m_size.width() - 1.0));
        const auto y = static_cast<std::size_t>(
            std::clamp(from.y() + i * step.y(), 0.0, m_size.height() - 1.0));
        m_coverage[y * m_tilesOfRow * kTile + x] = 255;
        m_tiles[y * m_tilesOfRow + x / kTile] = 1;
    }
}

/// `share` of 255 of a number from 0 to 255.
static unsigned scaled(unsigned number, unsigned share)
{
    return (number * share + 127) / 255;
}

static QRgb blended(QRgb color, unsigned share, QRgb below)
{
    const auto mixed = [&](int (*part)(QRgb)) {
        return static_cast<int>(scaled(static_cast<unsigned>(part(color)), share)
                                + scaled(static_cast<unsigned>(part(below)), 255 - share));
    };
    return qRgba(mixed(qRed), mixed(qGreen), mixed(qBlue), mixed(qAlpha));
}

void StrokeMask::paint(QImage& picture, QRgb color) const
{
    for (int y = 0; y < m_size.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        const std::size_t tiles = static_cast<std::size_t>(y) * m_tilesOfRow;
        for (std::size_t tile = 0; tile < m_tilesOfRow; ++tile) {
            if (m_tiles[tiles + tile] == 0)
                continue;
            const std::uint8_t* const coverage = &m_coverage[(tiles + tile) * kTile];
            const std::size_t width = static_cast<std::size_t>(m_size.width()) - tile * kTile;
            for (std::size_t x = 0; x < std::min<std::size_t>(kTile, width); ++x)
                if (coverage[x] != 0)
                    line[tile * kTile + x] = blended(color, coverage[x], line[tile * kTile + x]);
        }
    }
}

} // namespace corvala::plot
