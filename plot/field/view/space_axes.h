// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/view/decorations.h"

#include <QLineF>

#include <vtkBoundingBox.h>

#include <optional>
#include <vector>

namespace corvala::plot {

/// From where space is seen in perspective.
struct SpaceView
{
    AxisDirections directions;
    std::array<double, 3> eye {{0, 0, 1}};
    double pixelsPerSlope = 1.0; ///< pixels from the middle of a point as far aside as it is away

    /// A point from the viewer: to the right, up and towards the viewer.
    std::array<double, 3> fromEye(const std::array<double, 3>& point) const;
    /// Where a point lies in the plot; nothing when it is not in front of the viewer.
    std::optional<QPointF> project(const std::array<double, 3>& point, const QRectF& plot) const;
};

/// Room that axes of this size of text take round what they measure, in pixels.
QSizeF spaceAxesMargin(double font);

/// Lines at the ticks of the axes, across those faces of their box that are not seen: they lie
/// behind what is shown. Within the plot.
std::vector<QLineF> spaceGrid(const FieldLayout& layout, const vtkBoundingBox& shown,
                              const SpaceView& view);

/// Axes with ticks, numbers and titles a little outside the box of what is shown, along edges that
/// cover nothing of it: where a face that is seen meets one that is not. There are none for a
/// viewer inside the box.
void paintSpaceAxes(QPainter& painter, const FieldLayout& layout, const vtkBoundingBox& shown,
                    const SpaceView& view, const std::array<QString, 3>& titles);

} // namespace corvala::plot
