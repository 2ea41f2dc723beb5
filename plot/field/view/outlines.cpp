// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/highlight.h"
#include "plot/field/view/field_view.h"

#include <QPainter>

/// What marks the maps that the user has selected.
namespace corvala::plot {

/// Edges of a box in a plot; in a flat one, of its rectangle. Those that reach behind the viewer
/// are left out.
template<class Project>
static void addEdges(const vtkBoundingBox& box, Project project, QVector<QLineF>& lines)
{
    for (int corner = 0; corner < 8; ++corner) {
        for (const int axis : {1, 2, 4}) {
            if (corner & axis)
                continue;
            std::array<double, 3> from;
            std::array<double, 3> to;
            box.GetCorner(corner, from.data());
            box.GetCorner(corner | axis, to.data());
            const auto one = project(from);
            const auto other = project(to);
            if (one && other)
                lines.append({*one, *other});
        }
    }
}

void FieldView::paintOutlines(QPainter& painter, const host::NumberSet& maps) const
{
    constexpr std::size_t kMost = 200;
    if (maps.isEmpty())
        return;
    const QRectF& plot = m_layout.plot;
    const PlaneWindow window = planeWindow();
    const SpaceView space = spaceView();
    const auto project = [&](const std::array<double, 3>& place) -> std::optional<QPointF> {
        if (!m_flat)
            return space.project(place, plot);
        const double unit = plot.width() / (window.xMaximum - window.xMinimum);
        return QPointF(plot.left() + (place[0] - window.xMinimum) * unit,
                       plot.bottom() - (place[1] - window.yMinimum) * unit);
    };
    QVector<QLineF> lines;
    for (const vtkBoundingBox& box : m_scene->boxesOf(maps, kMost))
        if (box.IsValid())
            addEdges(box, project, lines);
    painter.save();
    painter.setClipRect(plot);
    for (const QPen& pen : highlightPens()) {
        painter.setPen(pen);
        painter.drawLines(lines);
    }
    painter.restore();
}

} // namespace corvala::plot
