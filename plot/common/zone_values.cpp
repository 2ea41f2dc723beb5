// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/zone_values.h"

#include <vtkCellData.h>
#include <vtkCellDataToPointData.h>
#include <vtkDataSet.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPointDataToCellData.h>

namespace corvala::plot {

static constexpr const char* kValue = "value";

static vtkSmartPointer<vtkDataArray> averaged(vtkDataSet& zone, vtkDataArray& values,
                                              host::ValueLocation to)
{
    const auto own = vtkSmartPointer<vtkDataSet>::Take(zone.NewInstance());
    own->CopyStructure(&zone);
    const bool isReal = values.GetDataType() == VTK_FLOAT || values.GetDataType() == VTK_DOUBLE;
    const auto named = vtkSmartPointer<vtkDataArray>::Take(
        isReal ? values.NewInstance() : vtkDoubleArray::New()); // averages of integers are not
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

} // namespace corvala::plot
