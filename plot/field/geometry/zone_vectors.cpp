// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/zone_vectors.h"

#include <algorithm>

namespace corvala::plot {

vtkSmartPointer<vtkDoubleArray>
joinedVectors(const std::array<vtkSmartPointer<vtkDataArray>, 3>& parts, vtkIdType count)
{
    if (std::all_of(parts.begin(), parts.end(), [](const auto& part) { return !part; }))
        return nullptr;
    auto vectors = vtkSmartPointer<vtkDoubleArray>::New();
    vectors->SetNumberOfComponents(3);
    vectors->SetNumberOfTuples(count);
    vectors->Fill(0.0);
    for (int axis = 0; axis < 3; ++axis)
        if (vtkDataArray* const part = parts[static_cast<std::size_t>(axis)])
            vectors->CopyComponent(axis, part, 0);
    return vectors;
}

vtkSmartPointer<vtkDoubleArray> pointVectors(const host::DataSet& data, std::int64_t zone,
                                             const VectorVariables& variables)
{
    std::array<vtkSmartPointer<vtkDataArray>, 3> parts;
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (variables[axis] > 0)
            parts[axis] = zoneValues(data, zone, variables[axis], host::ValueLocation::Points);
    return joinedVectors(parts, data.zone(zone).pointCount);
}

} // namespace corvala::plot
