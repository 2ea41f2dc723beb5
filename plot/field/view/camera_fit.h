// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/view/decorations.h"

#include <QSizeF>

#include <vtkBoundingBox.h>

class vtkCamera;

namespace corvala::plot {

/// Of what is shown, so that lines at the rim are whole.
constexpr double kFitMargin = 1.06;

/// Where the axes X, Y and Z point in the picture of a camera.
AxisDirections directionsOfAxes(vtkCamera& camera);

/// Half the height that a camera sees at a distance of 1, in perspective.
double slopeOfView(vtkCamera& camera);

/// Moves a camera, which goes on looking in the same direction, so that a box with a margin fills
/// `used` of a plot `height` pixels high, in perspective or in parallel as the camera sees.
void fitToBox(vtkCamera& camera, const vtkBoundingBox& box, const QSizeF& used, double height);

} // namespace corvala::plot
