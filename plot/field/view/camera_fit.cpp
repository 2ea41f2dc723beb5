// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/camera_fit.h"

#include <vtkCamera.h>
#include <vtkMath.h>
#include <vtkMatrix4x4.h>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

using Point = std::array<double, 3>;
using SeenCorners = std::array<Point, 8>; ///< of a box: to the right, up and towards the viewer

AxisDirections directionsOfAxes(vtkCamera& camera)
{
    vtkMatrix4x4* const matrix = camera.GetViewTransformMatrix();
    AxisDirections directions;
    for (int axis = 0; axis < 3; ++axis) {
        for (int part = 0; part < 3; ++part) {
            directions[static_cast<std::size_t>(axis)][static_cast<std::size_t>(part)] =
                matrix->GetElement(part, axis);
        }
    }
    return directions;
}

double slopeOfView(vtkCamera& camera)
{
    return std::tan(vtkMath::RadiansFromDegrees(camera.GetViewAngle() / 2));
}

/// From the centre of the box.
static SeenCorners seenCorners(const vtkBoundingBox& box, const AxisDirections& directions)
{
    double lengths[3];
    box.GetLengths(lengths);
    SeenCorners corners {};
    for (std::size_t corner = 0; corner < corners.size(); ++corner)
        for (std::size_t axis = 0; axis < 3; ++axis)
            for (std::size_t part = 0; part < 3; ++part)
                corners[corner][part] +=
                    directions[axis][part] * lengths[axis] * ((corner >> axis) & 1 ? 0.5 : -0.5);
    return corners;
}

/// Moves the corners so that they lie in the middle of what is seen from `distance`.
static void centre(SeenCorners& corners, double distance, std::array<double, 2>& moved)
{
    for (std::size_t part = 0; part < 2; ++part) {
        const auto slope = [&](const auto& corner) {
            return corner[part] / std::max(distance - corner[2], 1e-9 * distance);
        };
        double lowest = slope(corners[0]);
        double highest = lowest;
        for (const auto& corner : corners) {
            lowest = std::min(lowest, slope(corner));
            highest = std::max(highest, slope(corner));
        }
        const double by = -distance * (lowest + highest) / 2;
        moved[part] += by;
        for (auto& corner : corners)
            corner[part] += by;
    }
}

/// How far away each corner lies inside the picture; the corners are moved into its middle.
static double distanceFor(SeenCorners corners, double least, const double (&slopes)[2],
                          std::array<double, 2>& moved)
{
    constexpr int kRounds = 4;
    double distance = 1.0;
    for (int round = 0; round < kRounds; ++round) {
        distance = least;
        for (const auto& corner : corners)
            for (const std::size_t part : {0, 1})
                distance = std::max(distance,
                                    corner[2] + kFitMargin * std::abs(corner[part]) / slopes[part]);
        if (round + 1 < kRounds)
            centre(corners, distance, moved);
    }
    return distance;
}

/// Half the height at which each corner lies inside the picture.
static double scaleFor(const SeenCorners& corners, double least, const double (&shares)[2])
{
    double scale = least;
    for (const auto& corner : corners)
        for (const std::size_t part : {0, 1})
            scale = std::max(scale, kFitMargin * std::abs(corner[part]) / shares[part]);
    return scale;
}

void fitToBox(vtkCamera& camera, const vtkBoundingBox& box, const QSizeF& used, double height)
{
    const AxisDirections directions = directionsOfAxes(camera);
    const SeenCorners corners = seenCorners(box, directions);
    const double length = box.GetMaxLength();
    const double least = length > 0.0 ? 1e-6 * length : 1.0;
    const double shares[] = {used.width() / height, used.height() / height};
    double distance = 3.0 * std::max(length, least); // in parallel, anywhere in front
    std::array<double, 2> moved {};
    if (camera.GetParallelProjection()) {
        camera.SetParallelScale(scaleFor(corners, least, shares));
    } else {
        const double slope = slopeOfView(camera);
        distance = distanceFor(corners, least, {slope * shares[0], slope * shares[1]}, moved);
    }
    double focalPoint[3];
    double position[3];
    box.GetCenter(focalPoint);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        focalPoint[axis] -= moved[0] * directions[axis][0] + moved[1] * directions[axis][1];
        position[axis] = focalPoint[axis] + distance * directions[axis][2];
    }
    camera.SetFocalPoint(focalPoint);
    camera.SetPosition(position);
}

} // namespace corvala::plot
