// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/surface_values.h"

#include "plot/field/geometry/zone_cuts.h"

#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>
#include <vtkCellData.h>
#include <vtkCellDataToPointData.h>
#include <vtkNew.h>
#include <vtkPointData.h>

namespace corvala::plot {

/// `array` by the numbers of the surface.
static vtkSmartPointer<vtkDoubleArray> gather(vtkDataArray& array, vtkIdType count,
                                              const std::vector<vtkIdType>& ids)
{
    auto values = vtkSmartPointer<vtkDoubleArray>::New();
    values->SetNumberOfTuples(count);
    for (vtkIdType i = 0; i < count; ++i)
        values->SetValue(i, array.GetTuple1(ids.empty() ? i : ids[static_cast<std::size_t>(i)]));
    return values;
}

static vtkSmartPointer<vtkDoubleArray> averagedAtPoints(vtkDoubleArray& cellArray,
                                                        vtkPolyData& shape)
{
    vtkNew<vtkPolyData> cells;
    cells->CopyStructure(&shape);
    cellArray.SetName("value");
    cells->GetCellData()->AddArray(&cellArray);
    vtkNew<vtkCellDataToPointData> average;
    average->SetInputData(cells);
    average->Update();
    return vtkDoubleArray::SafeDownCast(average->GetOutput()->GetPointData()->GetArray("value"));
}

/// Values of a variable of the points, `array`, at those of the surface.
static vtkSmartPointer<vtkDoubleArray> atPoints(const host::DataSet& data, std::int64_t zone,
                                                std::int64_t variable, vtkDataArray& array,
                                                const ZoneSurface& surface)
{
    return surface.isCut ? cutValues(data, zone, variable, surface)
                         : gather(array, surface.shape->GetNumberOfPoints(), surface.pointIds);
}

vtkSmartPointer<vtkDoubleArray> pointValues(const host::DataSet& data, std::int64_t zone,
                                            std::int64_t variable, const ZoneSurface& surface)
{
    const host::ZoneValues values = data.values(zone, variable);
    if (!values.array)
        return nullptr;
    const bool isIso = surface.isCut && surface.choice.iso.variable != 0;
    if (isIso || values.location == host::ValueLocation::Points)
        return atPoints(data, zone, variable, *values.array, surface);
    const auto cells = gather(*values.array, surface.shape->GetNumberOfCells(), surface.cellIds);
    return averagedAtPoints(*cells, *surface.shape);
}

static vtkSmartPointer<vtkDoubleArray> fromCorners(vtkDoubleArray& points, vtkPolyData& shape,
                                                   CellValue rule)
{
    auto values = vtkSmartPointer<vtkDoubleArray>::New();
    values->SetNumberOfTuples(shape.GetNumberOfCells());
    vtkIdType next = 0;
    for (vtkCellArray* const cells : {shape.GetVerts(), shape.GetLines(), shape.GetPolys()}) {
        const auto cell = vtk::TakeSmartPointer(cells->NewIterator());
        for (cell->GoToFirstCell(); !cell->IsDoneWithTraversal(); cell->GoToNextCell()) {
            vtkIdType count = 0;
            const vtkIdType* corners = nullptr;
            cell->GetCurrentCell(count, corners);
            const vtkIdType used = rule == CellValue::Primary ? 1 : count;
            double sum = 0.0;
            for (vtkIdType i = 0; i < used; ++i)
                sum += points.GetValue(corners[i]);
            values->SetValue(next++, sum / static_cast<double>(used));
        }
    }
    return values;
}

vtkSmartPointer<vtkDoubleArray> cellValues(const host::DataSet& data, std::int64_t zone,
                                           std::int64_t variable, const ZoneSurface& surface,
                                           CellValue rule)
{
    const host::ZoneValues values = data.values(zone, variable);
    if (!values.array)
        return nullptr;
    if (values.location == host::ValueLocation::Cells)
        return gather(*values.array, surface.shape->GetNumberOfCells(), surface.cellIds);
    const auto points = atPoints(data, zone, variable, *values.array, surface);
    return fromCorners(*points, *surface.shape, rule);
}

} // namespace corvala::plot
