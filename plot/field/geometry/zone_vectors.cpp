// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/zone_vectors.h"

#include <vtkCellData.h>
#include <vtkCellDataToPointData.h>
#include <vtkDataSet.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPointDataToCellData.h>

#include <algorithm>

namespace corvala::plot {

static constexpr const char* kValue = "value";

static vtkSmartPointer<vtkDataArray> averaged(vtkDataSet& zone, vtkDataArray& values,
                                              host::ValueLocation to)
{
    const auto own = vtkSmartPointer<vtkDataSet>::Take(zone.NewInstance());
    own->CopyStructure(&zone);
    const auto named = vtkSmartPointer<vtkDataArray>::Take(values.NewInstance());
    named->ShallowCopy(&values);
    named->SetName(kValue);
    if (to == host::ValueLocation::Points) {
        own->GetCellData()->AddArray(named);
        vtkNew<vtkCellDataToPointData> average;
        average->SetInputData(own);
        average->Update();
        return vtkDataSet::SafeDownCast(average->GetOutput())->GetPointData()->GetArray(kValue);
    }
    own->GetPointData()->AddArray(named);
    vtkNew<vtkPointDataToCellData> average;
    average->SetInputData(own);
    average->Update();
    return vtkDataSet::SafeDownCast(average->GetOutput())->GetCellData()->GetArray(kValue);
}

vtkSmartPointer<vtkDataArray> zoneValues(const host::DataSet& data, std::int64_t zone,
                                         std::int64_t variable, host::ValueLocation location)
{
    const host::ZoneValues values = data.values(zone, variable);
    if (!values.array || values.location == location)
        return values.array;
    return averaged(*data.geometry(zone), *values.array, location);
}

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
