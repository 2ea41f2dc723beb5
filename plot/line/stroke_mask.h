// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPointF>

#include <cstdint>
#include <vector>

namespace corvala::plot {

/// How a stroke ends.
enum class StrokeEnd {
    Flat, ///< at the point
    Joined, ///< a little beyond it, where another stroke takes over
    Round ///< half a width beyond it
};

/// Collects strokes as coverage of pixels. Where strokes meet or cross, a pixel is covered as by
/// the one that covers most of it, so that a line of many pieces looks like one stroke, at a cost
/// that grows with the pixels that it covers only.
class StrokeMask
{
public:
    void resize(const QSize& size);

    /// Adds a stroke of `width` pixels, at least 1. The points may lie anywhere.
    void add(const QPointF& from, const QPointF& to, double width, StrokeEnd start, StrokeEnd end);
    /// Adds a stroke one pixel wide, without smoothing, between points within the picture.
    void addThin(const QPointF& from, const QPointF& to);
    /// Paints what was collected on a picture of the same size, ARGB32 premultiplied, with an
    /// opaque colour.
    void paint(QImage& picture, QRgb color) const;
    /// Starts again with nothing.
    void clear();

private:
    class Stroke;

    void touch(int top, int bottom);

    static constexpr int kTile = 16; ///< pixels of a row that are painted and cleared together

    QSize m_size;
    std::size_t m_tilesOfRow = 0;
    std::vector<std::uint8_t> m_coverage; ///< 0 to 255, row by row of whole tiles
    std::vector<std::uint8_t> m_tiles; ///< whether something is in it
    int m_top = 0; ///< of the rows that strokes have touched
    int m_bottom = -1;
};

} // namespace corvala::plot
