// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/line_axes.h"
#include "plot/line/line_tracer.h"
#include "plot/line/stroke_mask.h"

#include <QColor>
#include <QImage>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace corvala::plot {

/// How a line is stroked; lengths in pixels of the widget.
struct LineStroke
{
    QColor color;
    double width = 1.0; ///< at least 1
    std::vector<double> pattern; ///< strokes and gaps in turn; empty for a solid line
};

/// A picture of lines, made in slices. Lines are known by the number of their map and drawn in this
/// order. What a picture shows depends on the lines and the view only, and not on the slices.
class LineInk
{
public:
    LineInk();
    ~LineInk();

    /// Pixels that the strokes of one line may cover at its own width, each as often as it is
    /// covered. A line that would cover more is drawn thin, solid and without smoothing.
    static constexpr double kMostInk = 3e8;

    /// A new or changed line.
    void setLine(std::int64_t map, Polyline line);
    /// How a line that is there is drawn.
    void setLook(std::int64_t map, LineStroke stroke, const LineAxes& axes = {});
    void remove(std::int64_t map);

    /// Draws what this view shows from now on, `ratio` pixels to a pixel of the widget.
    void setView(const ChartView& view, const QSize& size, double ratio);
    /// Whether nothing is drawn yet of the lines and the view as they are now.
    bool isStale() const { return m_isStale; }
    /// Works for about `milliseconds`, negative until all is done; true while work is left.
    bool advance(int milliseconds);
    bool hasWork() const { return m_hasWork && !m_isCancelled; }
    /// Done and in all, in hundredths of a line.
    std::pair<std::int64_t, std::int64_t> progress() const;
    void cancel() { m_isCancelled = m_hasWork; }
    void resume() { m_isCancelled = false; }

    /// What is drawn so far; of lines or a view that are no more, while it is stale.
    QImage picture() const;
    /// Lines that are missing because drawing was cancelled.
    std::int64_t missingCount() const;
    /// Lines that are drawn thinner than they look.
    int thinnedCount() const { return m_thinned; }

    /// The line nearest to a pixel of a view, less than `tolerance` pixels away; 0 for none.
    std::int64_t lineAt(const ChartView& view, const QPointF& pixel, double tolerance) const;

    struct Line
    {
        Polyline points; ///< in the plane of its axes
        LineStroke stroke;
        LineAxes axes;
    };
    const std::map<std::int64_t, Line>& lines() const { return m_lines; }

private:
    class Stroker;

    void restart();
    void wipe();
    void paintOn(QImage& picture) const; ///< what there is of the line in work

    std::map<std::int64_t, Line> m_lines;
    ChartView m_view; ///< in pixels of the picture
    double m_ratio = 1.0;
    QImage m_picture; ///< the lines that are done
    StrokeMask m_mask;
    std::int64_t m_current = 0; ///< map of the line in work
    std::unique_ptr<Stroker> m_stroker; ///< of the line in work; null between lines
    std::int64_t m_done = 0; ///< lines
    int m_thinned = 0;
    bool m_hasWork = false;
    bool m_isStale = false;
    bool m_isCancelled = false;
};

} // namespace corvala::plot
