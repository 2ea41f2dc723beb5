// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <array>
#include <cstdint>

namespace corvala::samples {

/// Cells of an embedded zone.
enum class DemoCells { Ordered, Triangles, Hexahedra, Tetrahedra, Polygons, Vertices, Empty };

/// A box of points of an embedded zone, and what cells join them.
struct DemoZone
{
    DemoCells cells = DemoCells::Ordered;
    std::array<int, 3> points {{1, 1, 1}}; ///< per direction
    std::array<double, 3> origin {{0, 0, 0}};
    std::array<double, 3> size {{1, 1, 1}};
    double time = 0.0;
};

/// Zone metadata that goes with the box; name, strand and source index are left alone.
host::ZoneInfo infoOf(const DemoZone& zone);

/// Flow past a cylinder of radius 1 along Z through the origin, with vortices that drift with time.
/// Arrays "U", "V", "W", "Pressure", "Density" at the points. Null for an empty zone.
vtkSmartPointer<vtkDataSet> flowZone(const DemoZone& zone);

/// A damped oscillation over "Time": arrays "Time", "Force", "Moment", "Power", "Error", "Angle"
/// (degrees) and "Gain" at the points.
vtkSmartPointer<vtkDataSet> signalZone(const DemoZone& zone, int number);

} // namespace corvala::samples
