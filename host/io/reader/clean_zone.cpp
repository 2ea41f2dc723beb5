// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/clean_zone.h"

#include "host/io/attribute_filler.h"
#include "host/io/reader/block_tree.h"

#include <vtkCellData.h>
#include <vtkCellTypes.h>
#include <vtkDataArray.h>
#include <vtkGenericCell.h>
#include <vtkImageData.h>
#include <vtkInformation.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkRectilinearGrid.h>
#include <vtkStructuredGrid.h>

#include <algorithm>

namespace corvala::host::io::reader {

/// The same values with clean names of the components, so that the array of the reader stays as it
/// is.
static vtkSmartPointer<vtkDataArray> cleanArray(vtkDataArray& array)
{
    vtkSmartPointer<vtkDataArray> copy;
    copy.TakeReference(array.NewInstance());
    copy->ShallowCopy(&array);
    if (copy->HasInformation())
        copy->GetInformation()->Clear();
    for (int c = 0; array.HasAComponentName() && c < array.GetNumberOfComponents(); ++c)
        if (array.GetComponentName(c))
            copy->SetComponentName(c, cleanName(array.GetComponentName(c), {}).c_str());
    return copy;
}

static void cleanAttributes(vtkDataSetAttributes& source, vtkIdType tuples,
                            vtkDataSetAttributes& target, QSet<QString>& droppedArrays)
{
    target.Initialize();
    AttributeFiller filler(target, source.GetNumberOfArrays());
    for (int i = 0; i < source.GetNumberOfArrays(); ++i) {
        vtkAbstractArray* any = source.GetAbstractArray(i);
        const std::string name = cleanName(any->GetName(), "Array " + std::to_string(i + 1));
        auto* array = vtkDataArray::SafeDownCast(any);
        if (array && array->GetNumberOfTuples() == tuples && array->GetNumberOfComponents() > 0)
            filler.add(*cleanArray(*array), name);
        else
            droppedArrays.insert(QString::fromStdString(name));
    }
}

vtkSmartPointer<vtkDataSet> cleanZone(vtkDataSet& zone, QSet<QString>& droppedArrays)
{
    // Only the plain kinds are handed over: a grid with holes is an image with ghost cells.
    // Each zone is an object of its own: one that is used again keeps the kinds of cells it had.
    vtkSmartPointer<vtkDataSet> copy;
    if (vtkImageData::SafeDownCast(&zone))
        copy = vtkSmartPointer<vtkImageData>::New();
    else
        copy.TakeReference(zone.NewInstance());
    copy->CopyStructure(&zone);
    cleanAttributes(*zone.GetPointData(), zone.GetNumberOfPoints(), *copy->GetPointData(),
                    droppedArrays);
    cleanAttributes(*zone.GetCellData(), zone.GetNumberOfCells(), *copy->GetCellData(),
                    droppedArrays);
    return copy;
}

static int cellDimension(vtkDataSet& zone)
{
    vtkNew<vtkCellTypes> types;
    zone.GetCellTypes(types);
    int result = 0;
    vtkNew<vtkGenericCell> cell;
    for (vtkIdType i = 0; i < types->GetNumberOfTypes(); ++i) {
        cell->SetCellType(types->GetCellType(i));
        result = std::max(result, cell->GetCellDimension());
    }
    return result;
}

/// I, J, K of an ordered grid; false for any other zone.
static bool getDimensions(vtkDataSet& zone, int dimensions[3])
{
    if (auto* grid = vtkStructuredGrid::SafeDownCast(&zone))
        grid->GetDimensions(dimensions);
    else if (auto* image = vtkImageData::SafeDownCast(&zone))
        image->GetDimensions(dimensions);
    else if (auto* rectilinear = vtkRectilinearGrid::SafeDownCast(&zone))
        rectilinear->GetDimensions(dimensions);
    else
        return false;
    return true;
}

ZoneInfo zoneInfo(vtkDataSet& zone)
{
    ZoneInfo info;
    int dimensions[3] = {0, 0, 0};
    info.ordered = getDimensions(zone, dimensions);
    std::copy(dimensions, dimensions + 3, info.dimensions.begin());
    info.pointCount = zone.GetNumberOfPoints();
    info.cellCount = zone.GetNumberOfCells();
    info.cellDimension = info.ordered ? static_cast<int>(std::count_if(
                             dimensions, dimensions + 3, [](int size) { return size > 1; }))
                                      : cellDimension(zone);
    return info;
}

} // namespace corvala::host::io::reader
