// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_vectors.h"

#include <vtkPolyData.h>

#include <tuple>

namespace corvala::plot {

/// How the vectors of a zone are drawn.
struct ArrowChoice
{
    VectorVariables variables {{0, 0, 0}};
    double scale = 0.0; ///< length of an arrow by magnitude, or of each when it is uniform
    bool isUniform = false;
    double headSize = 0.25; ///< share of the length
    double headAngle = 20.0; ///< between shaft and barb, in degrees
    VectorType_e type = VectorType_TailAtPoint;
    ArrowheadStyle_e head = ArrowheadStyle_Plain;
    bool isTangent = false;

    auto tied() const
    {
        return std::tie(variables, scale, isUniform, headSize, headAngle, type, head, isTangent);
    }
};

inline bool operator==(const ArrowChoice& left, const ArrowChoice& right)
{
    return left.tied() == right.tied();
}

/// What arrows stand on: points with their vectors, and what else there is of them.
struct ArrowPlaces
{
    vtkPoints& points;
    vtkDoubleArray& vectors;
    vtkDataArray* normals; ///< in which plane heads lie; null where there is none
    vtkDataArray* colors; ///< may be null
};

/// Arrows, shafts as lines with the length along them as first texture coordinate. Heads lie across
/// the normals; without normals there are two to an arrow, one across the other, so that one is
/// seen from each side. Vectors of no length, and those that are no numbers, have none.
vtkSmartPointer<vtkPolyData> arrows(const ArrowPlaces& places, const ArrowChoice& choice);

} // namespace corvala::plot
