// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/stroke_mask.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr std::uint8_t kFull = 255; ///< a pixel that is covered as a whole

void StrokeMask::resize(const QSize& size)
{
    m_size = size;
    m_tilesOfRow = static_cast<std::size_t>((size.width() + kTile - 1) / kTile);
    const auto rows = static_cast<std::size_t>(size.height());
    m_coverage.assign(m_tilesOfRow * kTile * rows, 0);
    m_tiles.assign(m_tilesOfRow * rows, 0);
    m_top = size.height();
    m_bottom = -1;
}

void StrokeMask::clear()
{
    const std::size_t end = m_tilesOfRow * static_cast<std::size_t>(m_bottom + 1);
    for (std::size_t tile = m_tilesOfRow * static_cast<std::size_t>(m_top); tile < end; ++tile) {
        if (m_tiles[tile] != 0) {
            std::fill_n(m_coverage.begin() + static_cast<std::ptrdiff_t>(tile * kTile), kTile, 0);
            m_tiles[tile] = 0;
        }
    }
    m_top = m_size.height();
    m_bottom = -1;
}

void StrokeMask::touch(int top, int bottom)
{
    m_top = std::min(m_top, top);
    m_bottom = std::max(m_bottom, bottom);
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
    double m_perAlongX; ///< inverse of that; 0 where the axis does not go that way
    double m_perAlongY;
};

static double inverse(double slope)
{
    constexpr double kLevel = 1e-12;
    return std::abs(slope) > kLevel ? 1.0 / slope : 0.0;
}

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
    m_perAlongX = inverse(m_alongX);
    m_perAlongY = inverse(m_alongY);
}

/// Narrows [left, right] to where x / perSlope + offset lies in [lowest, highest]; 0 for a slope of
/// 0.
static void narrow(double perSlope, double offset, double lowest, double highest, double& left,
                   double& right)
{
    if (perSlope != 0.0) {
        const double one = (lowest - offset) * perSlope;
        const double other = (highest - offset) * perSlope;
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
    narrow(m_perAlongY, -down * m_alongX, -m_reach, m_reach, first, last);
    narrow(m_perAlongX, down * m_alongY, -beyond(m_start), m_length + beyond(m_end), first, last);
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
    const auto put = [pixels = row + left](int i, float covered) {
        const auto value = static_cast<std::uint8_t>(std::max(covered, 0.0F) * 255.0F + 0.5F);
        pixels[i] = std::max(pixels[i], value);
    };
    int first = 0;
    int last = right - left;
    while (first <= last && row[left + first] == kFull)
        ++first;
    while (first <= last && row[left + last] == kFull)
        --last;
    // Between the ends, which have no effect a pixel away from them.
    const float ways[] = {static_cast<float>(first) * alongX, static_cast<float>(last) * alongX};
    if (std::min(fromStart + std::min(ways[0], ways[1]), fromEnd - std::max(ways[0], ways[1]))
        >= 1.0F) {
        for (int i = first; i <= last; ++i)
            put(i, std::min(1.0F, reach - std::abs(apart + static_cast<float>(i) * alongY)));
        return;
    }
    const float start = m_start == StrokeEnd::Round ? kNever : static_cast<float>(beyond(m_start));
    const float end = m_end == StrokeEnd::Round ? kNever : static_cast<float>(beyond(m_end));
    for (int i = first; i <= last; ++i) {
        const auto step = static_cast<float>(i);
        const float aside = apart + step * alongY;
        const float past = std::max({0.0F, -fromStart - step * alongX, step * alongX - fromEnd});
        put(i,
            std::min({1.0F, reach - std::sqrt(aside * aside + past * past),
                      fromStart + step * alongX + start, fromEnd - step * alongX + end}));
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
    touch(top, bottom);
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
    const auto row = [&](double y) { return std::clamp(y, 0.0, m_size.height() - 1.0); };
    const auto [high, low] = std::minmax({row(from.y()), row(to.y())});
    touch(static_cast<int>(high), static_cast<int>(low));
    for (int i = 0; i <= steps; ++i) {
        const auto x = static_cast<std::size_t>(
            std::clamp(from.x() + i * step.x(), 0.0, m_size.width() - 1.0));
        const auto y = static_cast<std::size_t>(row(from.y() + i * step.y()));
        m_coverage[y * m_tilesOfRow * kTile + x] = 255;
        m_tiles[y * m_tilesOfRow + x / kTile] = 1;
    }
}

/// `share` of 255 of each part of a colour, rounded: two parts in one number.
static QRgb scaled(QRgb color, unsigned share)
{
    constexpr unsigned kParts = 0x00ff00ff;
    constexpr unsigned kHalves = 0x00800080;
    const auto divided = [](unsigned parts) { // by 255
        return parts + kHalves + ((parts + kHalves) >> 8 & kParts);
    };
    return (divided((color & kParts) * share) >> 8 & kParts)
        | (divided((color >> 8 & kParts) * share) & ~kParts);
}

static QRgb blended(QRgb color, unsigned share, QRgb below)
{
    return share == kFull ? color : scaled(color, share) + scaled(below, kFull - share);
}

void StrokeMask::paint(QImage& picture, QRgb color) const
{
    for (int y = m_top; y <= m_bottom; ++y) {
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
