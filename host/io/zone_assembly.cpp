// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/zone_assembly.h"

#include "host/io/attribute_filler.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIdTypeArray.h>
#include <vtkImageData.h>
#include <vtkMatrix3x3.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkRectilinearGrid.h>
#include <vtkStructuredData.h>
#include <vtkStructuredGrid.h>
#include <vtkTypeInt32Array.h>
#include <vtkTypeInt64Array.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>

namespace corvala::host::io {

namespace {

/// Takes the arrays of a zone one after the other.
class Assembly
{
public:
    Assembly(const ZoneTable& table, const StoredZone& zone, const MappedNumbers& numbers)
        : m_table(table)
        , m_zone(zone)
        , m_numbers(numbers)
        , m_next(static_cast<std::size_t>(zone.firstArray))
    {
    }

    vtkSmartPointer<vtkDataSet> make();

private:
    const StoredArray& next() { return m_table.arrays[m_next++]; }
    void show(const StoredArray& stored, vtkDataArray& array) const;
    /// Null for an array that the zone does not have.
    vtkSmartPointer<vtkDataArray> takeArray();
    /// Null when the array is of another type.
    template<typename Array>
    vtkSmartPointer<Array> takeArrayOf();
    vtkSmartPointer<vtkPoints> takePoints();
    vtkSmartPointer<vtkCellArray> takeCells();
    template<typename Array>
    bool showCells(const StoredArray& offsets, const StoredArray& connectivity,
                   vtkCellArray& cells) const;
    void takeAttributes(std::int32_t count, vtkIdType tuples, vtkDataSetAttributes& attributes);

    vtkSmartPointer<vtkDataSet> structure();
    vtkSmartPointer<vtkDataSet> image();
    vtkSmartPointer<vtkDataSet> rectilinearGrid();
    vtkSmartPointer<vtkDataSet> structuredGrid();
    vtkSmartPointer<vtkDataSet> unstructuredGrid();
    vtkSmartPointer<vtkDataSet> surface();

    const ZoneTable& m_table;
    StoredZone m_zone; ///< a copy, as VTK takes extents without promising to leave them alone
    const MappedNumbers& m_numbers;
    std::size_t m_next;
};

void Assembly::show(const StoredArray& stored, vtkDataArray& array) const
{
    array.SetNumberOfComponents(stored.components);
    m_numbers.show(array, stored.offset, stored.tuples * stored.components);
}

vtkSmartPointer<vtkDataArray> Assembly::takeArray()
{
    const StoredArray& stored = next();
    if (stored.type == 0)
        return nullptr;
    const auto array =
        vtkSmartPointer<vtkDataArray>::Take(vtkDataArray::CreateDataArray(stored.type));
    show(stored, *array);
    return array;
}

template<typename Array>
vtkSmartPointer<Array> Assembly::takeArrayOf()
{
    const StoredArray& stored = next();
    const auto array = vtkSmartPointer<Array>::New();
    if (stored.bytesOfNumber() != array->GetDataTypeSize())
        return nullptr;
    show(stored, *array);
    return array;
}

vtkSmartPointer<vtkPoints> Assembly::takePoints()
{
    const vtkSmartPointer<vtkDataArray> places = takeArray();
    if (!places || places->GetNumberOfComponents() != 3)
        return nullptr;
    const auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetData(places);
    return points;
}

template<typename Array>
bool Assembly::showCells(const StoredArray& offsets, const StoredArray& connectivity,
                         vtkCellArray& cells) const
{
    const vtkNew<Array> starts;
    const vtkNew<Array> corners;
    if (offsets.bytesOfNumber() != starts->GetDataTypeSize()
        || connectivity.bytesOfNumber() != starts->GetDataTypeSize())
        return false;
    show(offsets, *starts);
    show(connectivity, *corners);
    cells.SetData(starts.Get(), corners.Get());
    return true;
}

vtkSmartPointer<vtkCellArray> Assembly::takeCells()
{
    const StoredArray& offsets = next();
    const StoredArray& connectivity = next();
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    const bool isShown = showCells<vtkTypeInt64Array>(offsets, connectivity, *cells)
        || showCells<vtkTypeInt32Array>(offsets, connectivity, *cells);
    return isShown ? cells : nullptr;
}

void Assembly::takeAttributes(std::int32_t count, vtkIdType tuples,
                              vtkDataSetAttributes& attributes)
{
    AttributeFiller filler(attributes, count);
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t number = m_table.arrays[m_next].label;
        const vtkSmartPointer<vtkDataArray> array = takeArray();
        if (!array || array->GetNumberOfTuples() != tuples)
            continue;
        const ArrayLabel& label = m_table.labels[static_cast<std::size_t>(number)];
        for (std::size_t c = 0; c < label.components.size(); ++c)
            array->SetComponentName(static_cast<vtkIdType>(c), label.components[c].c_str());
        filler.add(*array, label.name);
    }
}

vtkSmartPointer<vtkDataSet> Assembly::image()
{
    const auto image = vtkSmartPointer<vtkImageData>::New();
    image->SetExtent(m_zone.extent.data());
    image->SetOrigin(m_zone.origin.data());
    image->SetSpacing(m_zone.spacing.data());
    image->SetDirectionMatrix(m_zone.direction.data());
    return image;
}

vtkSmartPointer<vtkDataSet> Assembly::rectilinearGrid()
{
    const auto grid = vtkSmartPointer<vtkRectilinearGrid>::New();
    grid->SetExtent(m_zone.extent.data());
    std::array<vtkSmartPointer<vtkDataArray>, 3> axes;
    for (std::size_t i = 0; i < axes.size(); ++i) {
        axes[i] = takeArray();
        const std::int64_t size = std::int64_t(m_zone.extent[2 * i + 1]) - m_zone.extent[2 * i] + 1;
        if (!axes[i] || axes[i]->GetNumberOfTuples() != size)
            return nullptr;
    }
    grid->SetXCoordinates(axes[0]);
    grid->SetYCoordinates(axes[1]);
    grid->SetZCoordinates(axes[2]);
    return grid;
}

vtkSmartPointer<vtkDataSet> Assembly::structuredGrid()
{
    const auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
    grid->SetExtent(m_zone.extent.data());
    const vtkSmartPointer<vtkPoints> points = takePoints();
    grid->SetPoints(points);
    return points
            && vtkStructuredData::GetNumberOfPoints(m_zone.extent.data())
                == points->GetNumberOfPoints()
        ? grid
        : nullptr;
}

vtkSmartPointer<vtkDataSet> Assembly::unstructuredGrid()
{
    const auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    grid->SetPoints(takePoints());
    const auto types = takeArrayOf<vtkUnsignedCharArray>();
    const vtkSmartPointer<vtkCellArray> cells = takeCells();
    const auto faceLocations = takeArrayOf<vtkIdTypeArray>();
    const auto faces = takeArrayOf<vtkIdTypeArray>();
    if (types && cells && types->GetNumberOfTuples() == cells->GetNumberOfCells())
        grid->SetCells(types, cells, faceLocations, faces);
    return grid;
}

vtkSmartPointer<vtkDataSet> Assembly::surface()
{
    const auto surface = vtkSmartPointer<vtkPolyData>::New();
    surface->SetPoints(takePoints());
    surface->SetVerts(takeCells());
    surface->SetLines(takeCells());
    surface->SetPolys(takeCells());
    surface->SetStrips(takeCells());
    return surface;
}

vtkSmartPointer<vtkDataSet> Assembly::structure()
{
    switch (m_zone.kind) {
    case VTK_IMAGE_DATA: return image();
    case VTK_RECTILINEAR_GRID: return rectilinearGrid();
    case VTK_STRUCTURED_GRID: return structuredGrid();
    case VTK_UNSTRUCTURED_GRID: return unstructuredGrid();
    default: return surface();
    }
}

vtkSmartPointer<vtkDataSet> Assembly::make()
{
    const vtkSmartPointer<vtkDataSet> zone = structure();
    if (!zone)
        return nullptr;
    takeAttributes(m_zone.pointArrays, zone->GetNumberOfPoints(), *zone->GetPointData());
    takeAttributes(m_zone.cellArrays, zone->GetNumberOfCells(), *zone->GetCellData());
    return zone;
}

} // namespace

vtkSmartPointer<vtkDataSet> assembleZone(const ZoneTable& table, std::size_t index,
                                         const MappedNumbers& numbers)
{
    return Assembly(table, table.zones[index], numbers).make();
}

} // namespace corvala::host::io
