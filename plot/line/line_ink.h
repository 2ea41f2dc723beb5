// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/chart_shape.h"
#include "plot/line/line_axes.h"

#include <QImage>

#include <cstdint>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

namespace corvala::plot {

/// Which shape of a chart: by layer, from back to front, and within a layer by map.
struct ShapeKey
{
    std::size_t layer = 0;
    std::int64_t map = 0;

    /// The layer of what marks maps, over all that they show, and hides nothing.
    static constexpr std::size_t kMarks = 31;

    bool operator<(const ShapeKey& other) const
    {
        return std::tie(layer, map) < std::tie(other.layer, other.map);
    }
};

/// A picture of the shapes of a chart, made in slices in the order of their keys. What a picture
/// shows depends on the shapes and the view only, and not on the slices.
class LineInk
{
public:
    LineInk();
    ~LineInk();

    /// A new or changed shape, along two of the axes.
    void set(const ShapeKey& key, std::shared_ptr<const ChartShape> shape,
             const LineAxes& axes = {});
    void remove(const ShapeKey& key);
    /// Shows the layers of these bits; all are shown at first.
    void setLayers(std::uint32_t layers);

    /// Draws what this view shows from now on, `ratio` pixels to a pixel of the widget.
    void setView(const ChartView& view, const QSize& size, double ratio);
    /// Whether nothing is drawn yet of the shapes and the view as they are now.
    bool isStale() const { return m_isStale; }
    /// Works for about `milliseconds`, negative until all is done; true while work is left.
    bool advance(int milliseconds);
    bool hasWork() const { return m_hasWork && !m_isCancelled; }
    /// Done and in all, in hundredths of a shape.
    std::pair<std::int64_t, std::int64_t> progress() const;
    void cancel() { m_isCancelled = m_hasWork; }
    void resume() { m_isCancelled = false; }

    /// What is drawn so far; of shapes or a view that are no more, while it is stale.
    QImage picture() const;
    /// Whether it is complete, and nothing is in it.
    bool isBlank() const;
    /// Shapes that are missing because drawing was cancelled.
    std::int64_t missingCount() const;
    /// Shapes that are drawn simpler than they look.
    int simplifiedCount() const { return m_simplified; }

    /// Draws all shapes of a view at once, as lines, areas and texts of the painter.
    void paint(QPainter& painter, const ChartView& view) const;

    /// The map of the shape nearest to a pixel of a view, less than `tolerance` pixels away; 0 for
    /// none.
    std::int64_t mapAt(const ChartView& view, const QPointF& pixel, double tolerance) const;

    struct Placed
    {
        std::shared_ptr<const ChartShape> shape;
        LineAxes axes;
    };
    /// Grows with every change of what is shown.
    std::int64_t changeCount() const { return m_changes; }
    const std::map<ShapeKey, Placed>& shapes() const { return m_shapes; }
    bool isShown(const ShapeKey& key) const { return (m_layers >> key.layer & 1U) != 0; }

private:
    void restart();
    void wipe();
    bool beginNext();
    std::int64_t shownCount() const;

    std::map<ShapeKey, Placed> m_shapes;
    std::uint32_t m_layers = ~0U;
    ChartView m_view; ///< in pixels of the picture
    double m_ratio = 1.0;
    QImage m_picture; ///< the shapes that are done
    StrokeMask m_mask;
    ShapeKey m_current; ///< of the shape in work, or of the one before
    std::unique_ptr<ShapeDrawing> m_drawing; ///< null between shapes
    std::int64_t m_done = 0; ///< shapes
    std::int64_t m_changes = 0;
    int m_simplified = 0;
    bool m_hasWork = false;
    bool m_isStale = false;
    bool m_isCancelled = false;
};

} // namespace corvala::plot
